#include "ui/download.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace Ui {

Download::Download(QObject* parent) : Download(Limits{}, parent) {}

Download::Download(const Limits& limits, QObject* parent) : QObject(parent), limits_(limits) {
  wholeTime_.setSingleShot(true);
  connect(&wholeTime_, &QTimer::timeout, this, &Download::Stop);
}

void Download::Start(const QString& address) {
  const QUrl url(address.trimmed(), QUrl::StrictMode);
  bytes_.clear();
  stopped_ = false;
  if (!url.isValid() || (url.scheme() != "http" && url.scheme() != "https")) {
    Q_EMIT Finished(false, {});
    return;
  }
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setTransferTimeout(limits_.silence);
  reply_ = network_.get(request);
  wholeTime_.start(limits_.whole);
  connect(reply_, &QNetworkReply::readyRead, this, &Download::Take);
  connect(reply_, &QNetworkReply::downloadProgress, this, &Download::Progress);
  connect(reply_, &QNetworkReply::finished, this, &Download::End);
}

void Download::Cancel() {
  if (reply_ == nullptr) return;
  wholeTime_.stop();
  reply_->disconnect(this);
  reply_->abort();
  reply_->deleteLater();
  reply_ = nullptr;
}

void Download::Take() {
  bytes_ += reply_->readAll();
  if (bytes_.size() > limits_.bytes) Stop();
}

void Download::Stop() {
  stopped_ = true;
  reply_->abort();
}

void Download::End() {
  QNetworkReply* reply = reply_;
  reply_ = nullptr;
  wholeTime_.stop();
  if (reply->isOpen()) bytes_ += reply->readAll();
  const bool good = reply->error() == QNetworkReply::NoError && !stopped_;
  reply->deleteLater();
  Q_EMIT Finished(good, bytes_);
}

}  // namespace Ui
