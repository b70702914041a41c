#include "ui/files/kept_work.h"

#include "base/file.h"
#include "ui/kit/text.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace Ui {
namespace {

constexpr int MostPrograms = 50;
constexpr const char* Old = ".old";
constexpr const char* Damaged = ".danneggiato";
constexpr std::size_t LargestFile = 8U << 20U;
constexpr int SettleTime = 300;      // milliseconds behind a change, as one seldom comes alone
constexpr qint64 LeastPause = 1000;  // between two writes
constexpr int RetryPause = 2000;     // behind one that failed

std::filesystem::path SystemPath(const std::string& path) {
  return QFileInfo(PathText(path)).filesystemFilePath();
}

bool Exists(const std::string& path) {
  std::error_code error;
  return std::filesystem::exists(SystemPath(path), error);
}

// Beside what was set aside before; where no name is free in the place of the oldest. Returns the name it has now, empty
// where it stayed.
std::string SetAside(const std::string& path, const std::string& ending) {
  constexpr int MostSetAside = 99;
  std::error_code error;
  std::string aside;
  auto oldest = std::filesystem::file_time_type::max();
  for (int number = 1; number <= MostSetAside && (aside.empty() || Exists(aside)); ++number) {
    const std::string name = path + ending + (number == 1 ? "" : std::to_string(number));
    const auto time =
        std::filesystem::last_write_time(SystemPath(name), error);  // before any other for a free name
    if (time >= oldest) continue;
    oldest = time;
    aside = name;
  }
  std::filesystem::rename(SystemPath(path), SystemPath(aside), error);
  return error ? std::string() : aside;
}

// A lock that names no program is what a power cut has left of one, unless its program is just about to write it.
void RemoveBrokenLock(QLockFile& lock) {
  constexpr int Seconds = 10;
  qint64 program = 0;
  QString host;
  QString name;
  const QFileInfo file(lock.fileName());
  const bool old = file.lastModified().secsTo(QDateTime::currentDateTime()) > Seconds;
  if (old && !lock.getLockInfo(&program, &host, &name)) QFile::remove(lock.fileName());
}

}  // namespace

KeptWork::KeptWork(Session& session) : session_(session) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &KeptWork::Write);
  writer_.setMaxThreadCount(1);
  session_.onChange.emplace_back([this] { Follow(); });
  connect(&session_.settings, &SettingsPanel::Clicked, this, &KeptWork::Follow);
  connect(&session_.document, &Document::AboutToReplace, this, &KeptWork::KeepBeforeReplacing);
}

KeptWork::~KeptWork() { writer_.waitForDone(); }

std::string KeptWork::PathOf(int number) const {
  const std::string suffix = number == 1 ? "" : "-" + std::to_string(number);
  return session_.programFolder + "/trovalis" + suffix + ".recupero";
}

std::optional<KeptWork::Place> KeptWork::Claim(int number) const {
  auto lock = std::make_unique<QLockFile>(PathText(PathOf(number)) + ".lock");
  lock->setStaleLockTime(0);  // only the end of its program makes a lock stale
  RemoveBrokenLock(*lock);
  if (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError) return std::nullopt;
  // Where the folder takes no lock the file is tried all the same: its error is the one to tell.
  return Place{PathOf(number), std::move(lock)};
}

// Files that nobody has been asked about yet are left for the next start.
Base::Outcome KeptWork::FindPlace() {
  // A disk without room for the lock may have it again, and another program may have come to the file since.
  if (own_.lock && !own_.lock->isLocked() && !own_.lock->tryLock(0) &&
      own_.lock->error() == QLockFile::LockFailedError)
    own_ = {};
  for (int number = 1; own_.path.empty() && number <= MostPrograms; ++number) {
    if (Exists(PathOf(number))) continue;
    if (auto place = Claim(number)) own_ = std::move(*place);
  }
  if (own_.path.empty()) return Base::Error{"Troppi file di recupero in " + session_.programFolder};
  return Base::Done{};
}

void KeptWork::Offer() {
  for (int number = 1; number <= MostPrograms; ++number) {
    if (!Exists(PathOf(number))) continue;
    auto place = Claim(number);
    if (!place || !Take(place->path)) continue;
    own_ = std::move(*place);
    return;
  }
}

bool KeptWork::Take(const std::string& path) {
  const auto bytes = Base::ReadFile(path, LargestFile);
  auto recovery = bytes ? Edit::DecodeRecovery(*bytes) : bytes.error();
  if (!recovery) {
    const std::string aside = SetAside(path, Damaged);
    session_.status.ShowResult(Text(recovery.error().message) +
                               (aside.empty() ? QString(", non si può mettere da parte")
                                              : ", messo da parte come " + PathText(Base::FileName(aside))));
    return false;
  }
  if (!session_.dialogs.YesNo(
          "Esistono modifiche non salvate dell' ultima sessione. Si desidera recuperarle?")) {
    if (const std::string aside = SetAside(path, Old); !aside.empty())
      session_.status.ShowResult("Modifiche messe da parte come " + PathText(Base::FileName(aside)));
    return false;
  }
  Restore(*recovery);
  return true;
}

// List numbers count within one session, so the list gets a new one, and the clipboard with it where it came from
// that list.
void KeptWork::Restore(Edit::Recovery& recovery) {
  Document& document = session_.document;
  const bool sameList = recovery.clipboard.listNumber == recovery.state.ListNumber;
  recovery.state.ListNumber = keptList_ = document.NextListNumber();
  recovery.clipboard.listNumber = sameList ? keptList_ : document.NextListNumber();
  session_.settings.Choose(recovery.settings);
  session_.clipboard = std::move(recovery.clipboard);
  document.Apply(
      "Recupera", [&recovery](Routines::State& state) { state = recovery.state; }, Edit::History::Kind::List);
  session_.view.ShowFromStart(View::Channels);
  session_.status.ShowResult("Recuperate le modifiche dell'ultima sessione");
}

// Without a list there is nowhere to paste what was cut: the file of the list that was undone is set aside with it.
bool KeptWork::NothingToKeep() const {
  const Routines::State& state = session_.document.Tables();
  return !state.Loaded ||
         (!session_.document.Unsaved() && !Edit::HoldsCutChannels(session_.clipboard, state));
}

void KeptWork::Follow() {
  if (timer_.isActive() && timer_.remainingTime() <= LeastPause) return;
  const qint64 pause = sinceWrite_.isValid() ? LeastPause - sinceWrite_.elapsed() : 0;
  timer_.start(static_cast<int>(std::max<qint64>(SettleTime, pause)));
}

Base::Bytes KeptWork::Contents() {
  keptList_ = session_.document.Tables().ListNumber;
  return Edit::EncodeRecovery(session_.document.Tables(), session_.clipboard, session_.settings.Chosen());
}

// A disk may take its time, so the file is written beside the event loop.
void KeptWork::Write() {
  if (writing_) {
    timer_.start(SettleTime);
    return;
  }
  sinceWrite_.start();
  if (NothingToKeep()) {
    Discard();
    Written(Base::Done{});
    return;
  }
  if (const auto place = FindPlace(); !place) {
    Written(place);
    return;
  }
  SetReplacedAside();
  writing_ = true;
  writer_.start([this, path = own_.path, bytes = Contents()] {
    auto outcome = Base::ReplaceFile(path, bytes);
    QMetaObject::invokeMethod(
        this,
        [this, outcome = std::move(outcome)] {
          writing_ = false;
          Written(outcome);
        },
        Qt::QueuedConnection);
  });
}

// A failure is told once, until a write has succeeded again; that it lasts stands beside the list's figures. Room may
// come back while nobody changes anything.
void KeptWork::Written(const Base::Outcome& outcome) {
  const bool failed = !outcome;
  if (failed && !timer_.isActive()) timer_.start(RetryPause);
  if (failed && !failed_) {
    session_.status.ShowResult("Modifiche non conservate per il recupero: " + Text(outcome.error().message));
  }
  if (failed == failed_) return;
  failed_ = failed;
  session_.status.SetKept(!failed);
  session_.status.ShowList(session_.document.Tables(), session_.document.Unsaved(),
                           session_.clipboard.Count());
}

Base::Outcome KeptWork::Flush() {
  timer_.stop();
  writer_.waitForDone();
  auto outcome = WriteNow();
  Written(outcome);
  return outcome;
}

Base::Outcome KeptWork::WriteNow() {
  if (NothingToKeep()) {
    Discard();
    return Base::Done{};
  }
  if (auto place = FindPlace(); !place) return place;
  SetReplacedAside();
  return Base::ReplaceFile(own_.path, Contents());
}

// The file is what remains of a list that another one replaces, so it has to hold the last changes too.
void KeptWork::KeepBeforeReplacing() {
  if (timer_.isActive()) static_cast<void>(Flush());
}

// Another list may have taken the place of the one in the file, which was never saved: an import is unsaved at once.
void KeptWork::SetReplacedAside() {
  if (session_.document.Tables().ListNumber != keptList_) SetAside(own_.path, Old);
}

// What the file holds is saved or taken back, or else set aside.
void KeptWork::Discard() {
  if (own_.path.empty()) return;
  SetReplacedAside();
  std::error_code error;
  std::filesystem::remove(SystemPath(own_.path), error);
}

}  // namespace Ui
