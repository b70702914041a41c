#include "ui/kit/patience.h"

#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace Ui {
namespace {

constexpr std::chrono::milliseconds BeforeTheBox{500};
constexpr int LookEvery = 30;  // milliseconds

class Job {
 public:
  explicit Job(std::function<void(Base::PointOfNoReturn&)> work) : work_(std::move(work)) {}

  void Run() {
    work_(Point);
    const std::lock_guard lock(mutex_);
    done_ = true;
    changed_.notify_all();
  }

  bool DoneWithin(std::chrono::milliseconds time) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, time, [this] { return done_; });
  }

  Base::PointOfNoReturn Point;

 private:
  std::function<void(Base::PointOfNoReturn&)> work_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool done_ = false;
};

QString& Doing() {
  static QString doing;
  return doing;
}

// Until the work is done, true, or given up.
bool WaitInBox(const QString& doing, Job& job) {
  QProgressDialog box(QApplication::activeWindow());
  box.setObjectName("OperazioneInCorso");
  box.setWindowTitle("Trovalis");
  auto* text = new QLabel(doing + "…", &box);
  text->setTextFormat(Qt::PlainText);
  text->setAlignment(Qt::AlignCenter);
  box.setLabel(text);
  auto* giveUp = new QPushButton("Annulla operazione", &box);
  giveUp->setObjectName("AnnullaOperazione");
  box.setCancelButton(giveUp);
  box.setRange(0, 0);
  box.setWindowModality(Qt::ApplicationModal);
  box.setAutoClose(false);
  box.setMinimumDuration(0);

  QEventLoop loop;
  bool done = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    done = job.DoneWithin(std::chrono::milliseconds(0));
    if (done) loop.quit();
    if (!box.isVisible()) box.show();  // closed when it was too late
  });
  look.start(LookEvery);
  QObject::disconnect(&box, &QProgressDialog::canceled, &box, &QProgressDialog::cancel);
  QObject::connect(&box, &QProgressDialog::canceled, &loop, [&] {
    if (job.Point.GiveUp()) {
      loop.quit();
    } else {
      text->setText(doing + ": manca solo l'ultimo passo…");
      giveUp->setEnabled(false);
    }
  });
  const QString before = std::exchange(Doing(), doing);
  box.show();
  loop.exec();
  Doing() = before;
  return done;
}

}  // namespace

const QString& UnderWay() { return Doing(); }

bool IsGivenUp(const Base::Error& error) { return error.systemCode == ECANCELED; }

Base::LastLook LookAt(Base::PointOfNoReturn& point) {
  return [&point]() -> Base::Outcome {
    if (point.Pass()) return Base::Done{};
    return Base::Error{"", "", ECANCELED};
  };
}

bool Internal::RunPatiently(const QString& doing, std::function<void(Base::PointOfNoReturn&)> work) {
  const auto job = std::make_shared<Job>(std::move(work));
  try {
    std::thread([job] { job->Run(); }).detach();
  } catch (const std::system_error&) {
    job->Run();  // no thread to be had
  }
  if (Waiting([&job] { return job->DoneWithin(BeforeTheBox); })) return true;
  return WaitInBox(doing, *job);
}

Base::Error Internal::GivenUp(const QString& doing) {
  return {(doing + " annullata").toStdString(), "", ECANCELED};
}

}  // namespace Ui
