// One transfer of a file from a web server, kept as bytes.
#pragma once

#include "base/result.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace Ui {

class Download {
 public:
  struct Limits {
    qint64 bytes = 64LL << 20;
    int silence = 30 * 1000;     // milliseconds without data
    int whole = 10 * 60 * 1000;  // milliseconds for all of it
  };

  Download() = default;
  Download(const Download&) = delete;
  Download& operator=(const Download&) = delete;
  virtual ~Download() = default;

  // Both are set before Start(). Bytes so far, and in all where the server says so, else -1.
  std::function<void(qint64 received, qint64 total)> onProgress = [](qint64, qint64) {};
  // The end of every transfer but a cancelled one. `good` means that the whole reply came without an error; else
  // Reason() says what went wrong.
  std::function<void(bool good, const QByteArray& reply)> onFinished = [](bool, const QByteArray&) {};

  [[nodiscard]] virtual bool Running() const = 0;
  // Begins a GET of an http or https address, following redirects that are no less safe. Not while one is running.
  virtual void Start(const QString& address) = 0;
  virtual void Cancel() = 0;
  [[nodiscard]] virtual QString Reason() const = 0;
};

// The one that has the toolkit's network behind it, which is a part that comes late.
Base::Result<std::unique_ptr<Download>> NewDownload(const Download::Limits& limits = {});
extern "C" Q_DECL_EXPORT Download* NewNetworkDownload(const Download::Limits& limits);

}  // namespace Ui
