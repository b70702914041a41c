#include "ui/sources/download.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslError>
#include <QUrl>

namespace Ui {
namespace {

// Why a transfer has failed; empty where it has not.
QString ReasonOf(const QNetworkReply& reply) {
  switch (reply.error()) {
    case QNetworkReply::NoError:
      return {};
    case QNetworkReply::OperationCanceledError:
      return "il server non risponde";
    case QNetworkReply::InsecureRedirectError:
      return "il server rimanda a un indirizzo meno sicuro";
    case QNetworkReply::ProtocolUnknownError:
      return "il server rimanda a un indirizzo che non è http o https";
    default:
      break;
  }
  const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  return status >= 400 ? "il server risponde " + QString::number(status) : reply.errorString();
}

}  // namespace

Download::Download(QObject* parent) : Download(Limits{}, parent) {}

Download::Download(const Limits& limits, QObject* parent) : QObject(parent), limits_(limits) {
  wholeTime_.setSingleShot(true);
  connect(&wholeTime_, &QTimer::timeout, this, [this] { Stop("il server è troppo lento"); });
}

void Download::Start(const QString& address) {
  const QUrl url(address.trimmed(), QUrl::StrictMode);
  bytes_.clear();
  reason_.clear();
  if (!url.isValid() || (url.scheme() != "http" && url.scheme() != "https")) {
    reason_ = "si scarica solo da indirizzi http e https";
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
  connect(reply_, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) {
    reason_ = "certificato del server non valido: " + errors.value(0).errorString();
  });
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
  if (bytes_.size() > limits_.bytes) Stop("la risposta è troppo grande");
}

void Download::Stop(const QString& reason) {
  reason_ = reason;
  reply_->abort();
}

void Download::End() {
  QNetworkReply* reply = reply_;
  reply_ = nullptr;
  wholeTime_.stop();
  if (reply->isOpen()) bytes_ += reply->readAll();
  if (reason_.isEmpty()) reason_ = ReasonOf(*reply);
  reply->deleteLater();
  Q_EMIT Finished(reason_.isEmpty(), bytes_);
}

}  // namespace Ui
