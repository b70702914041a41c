// Tells that the first window is painted, with the memory that the process then has, and ends it.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace Bench {

class FirstPaint : public QObject {
 public:
  explicit FirstPaint(QApplication& application) : QObject(&application) {
    application.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !seen_) {
      seen_ = true;
      // The rest of the window is painted before the timer's turn comes.
      QTimer::singleShot(0, this, &FirstPaint::Tell);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  static void Tell() {
    long all = 0;
    long resident = 0;
    std::FILE* const memory = std::fopen("/proc/self/statm", "r");
    if (memory == nullptr || std::fscanf(memory, "%ld %ld", &all, &resident) != 2) std::_Exit(1);
    std::printf("%ld\n", resident * ::sysconf(_SC_PAGESIZE));
    std::fflush(stdout);
    std::_Exit(0);
  }

  bool seen_ = false;
};

}  // namespace Bench
