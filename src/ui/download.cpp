#include "ui/download.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace Ui {

void Download::Start(const QString& address) {
  const QUrl url(address.trimmed(), QUrl::StrictMode);
  bytes_.clear();
  tooLarge_ = false;
  if (!url.isValid() || (url.scheme() != "http" && url.scheme() != "https")) {
    Q_EMIT Finished(false, {});
    return;
  }
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setTransferTimeout(LongestSilence);
  reply_ = network_.get(request);
  connect(reply_, &QNetworkReply::readyRead, this, &Download::Take);
  connect(reply_, &QNetworkReply::downloadProgress, this, &Download::Progress);
  connect(reply_, &QNetworkReply::finished, this, &Download::End);
}

void Download::Cancel() {
  if (reply_ == nullptr) return;
  reply_->disconnect(this);
  reply_->abort();
  reply_->deleteLater();
  reply_ = nullptr;
}

void Download::Take() {
  bytes_ += reply_->readAll();
  if (bytes_.size() <= Largest) return;
  tooLarge_ = true;
  reply_->abort();
}

void Download::End() {
  QNetworkReply* reply = reply_;
  reply_ = nullptr;
  bytes_ += reply->readAll();
  const bool good = reply->error() == QNetworkReply::NoError && !tooLarge_;
  reply->deleteLater();
  Q_EMIT Finished(good, bytes_);
}

}  // namespace Ui
