// A part that is loaded with the first transfer.
#include "ui/sources/download.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>
#include <QSslError>
#include <QTimer>
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

class NetworkDownload : public QObject, public Download {
 public:
  explicit NetworkDownload(const Limits& limits);

  [[nodiscard]] bool Running() const override { return reply_ != nullptr; }
  void Start(const QString& address) override;
  void Cancel() override;
  [[nodiscard]] QString Reason() const override { return reason_; }

 private:
  void Take();
  void Stop(const QString& reason);
  void End();

  Limits limits_;
  QNetworkAccessManager network_;
  QTimer wholeTime_;
  QNetworkReply* reply_ = nullptr;
  QByteArray bytes_;
  QString reason_;  // empty while nothing has gone wrong
};

NetworkDownload::NetworkDownload(const Limits& limits) : limits_(limits) {
  wholeTime_.setSingleShot(true);
  connect(&wholeTime_, &QTimer::timeout, this, [this] { Stop("il server è troppo lento"); });
}

void NetworkDownload::Start(const QString& address) {
  const QUrl url(address.trimmed(), QUrl::StrictMode);
  bytes_.clear();
  reason_.clear();
  if (!url.isValid() || (url.scheme() != "http" && url.scheme() != "https")) {
    reason_ = "si scarica solo da indirizzi http e https";
    onFinished(false, {});
    return;
  }
  QNetworkRequest request(url);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setTransferTimeout(limits_.silence);
  reply_ = network_.get(request);
  wholeTime_.start(limits_.whole);
  connect(reply_, &QNetworkReply::readyRead, this, &NetworkDownload::Take);
  connect(reply_, &QNetworkReply::downloadProgress, this, onProgress);
  connect(reply_, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) {
    reason_ = "certificato del server non valido: " + errors.value(0).errorString();
  });
  connect(reply_, &QNetworkReply::finished, this, &NetworkDownload::End);
}

void NetworkDownload::Cancel() {
  if (reply_ == nullptr) return;
  wholeTime_.stop();
  reply_->disconnect(this);
  reply_->abort();
  reply_->deleteLater();
  reply_ = nullptr;
}

void NetworkDownload::Take() {
  bytes_ += reply_->readAll();
  if (bytes_.size() > limits_.bytes) Stop("la risposta è troppo grande");
}

void NetworkDownload::Stop(const QString& reason) {
  reason_ = reason;
  reply_->abort();
}

void NetworkDownload::End() {
  QNetworkReply* reply = reply_;
  reply_ = nullptr;
  wholeTime_.stop();
  if (reply->isOpen()) bytes_ += reply->readAll();
  if (reason_.isEmpty()) reason_ = ReasonOf(*reply);
  reply->deleteLater();
  onFinished(reason_.isEmpty(), bytes_);
}

}  // namespace

Download* NewNetworkDownload(const Download::Limits& limits) { return new NetworkDownload(limits); }

}  // namespace Ui
