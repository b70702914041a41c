// One transfer of a file from a web server, kept as bytes.
#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>

class QNetworkReply;

namespace Ui {

class Download : public QObject {
  Q_OBJECT

 public:
  struct Limits {
    qint64 bytes = 64LL << 20;
    int silence = 30 * 1000;     // milliseconds without data
    int whole = 10 * 60 * 1000;  // milliseconds for all of it
  };

  explicit Download(QObject* parent);
  Download(const Limits& limits, QObject* parent);

  [[nodiscard]] bool Running() const { return reply_ != nullptr; }
  // Begins a GET of an http or https address, following redirects that are no less safe. Not while one is running.
  void Start(const QString& address);
  void Cancel();
  [[nodiscard]] const QString& Reason() const { return reason_; }

 Q_SIGNALS:
  // Bytes so far, and in all where the server says so, else -1.
  void Progress(qint64 received, qint64 total);
  // The end of every transfer but a cancelled one. `good` means that the whole reply came without an error; else
  // Reason() says what went wrong.
  void Finished(bool good, const QByteArray& reply);

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

}  // namespace Ui
