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
// where there was no such file.
Base::Result<std::string> SetAside(const std::string& path, const std::string& ending) {
  constexpr int MostSetAside = 99;
  if (!Exists(path)) return std::string();
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
  if (!error) return Base::FileName(aside);
  return Base::Error{"Impossibile mettere da parte " + Base::FileName(path) + ": " +
                     Base::SystemReason(error.default_error_condition().value())};
}

// What a refused or damaged file is called now.
QString AsideText(const QString& what, const Base::Result<std::string>& aside) {
  return aside ? what + " come " + PathText(*aside) : Text(aside.error().message);
}

}  // namespace

KeptWork::KeptWork(Session& session) : session_(session) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &KeptWork::Write);
  writer_.setMaxThreadCount(1);
  session_.onChange.emplace_back([this] { Follow(); });
  session_.mayReplaceList = [this] { return MayReplace(); };
  connect(&session_.settings, &SettingsPanel::Clicked, this, &KeptWork::Follow);
  connect(&session_.document, &Document::AboutToReplace, this, &KeptWork::KeepBeforeReplacing);
}

KeptWork::~KeptWork() { writer_.waitForDone(); }

std::string KeptWork::PathOf(int number) const {
  const std::string suffix = number == 1 ? "" : "-" + std::to_string(number);
  return Base::PathIn(session_.programFolder, "trovalis" + suffix + ".recupero");
}

QString KeptWork::FileAndTime(int number) const {
  const QFileInfo file(PathText(PathOf(number)));
  return file.fileName() + " (" + file.lastModified().toString("dd/MM/yyyy HH:mm") + ")";
}

// Where the folder takes no lock the file is tried all the same: its error is the one to tell.
std::optional<KeptWork::Place> KeptWork::Claim(int number) const {
  auto lock = std::make_unique<Base::SystemFile>();
  if (lock->Hold(PathOf(number) + ".lock") == EBUSY) return std::nullopt;
  return Place{PathOf(number), std::move(lock)};
}

// Files that nobody has been asked about yet are left for the next start.
Base::Outcome KeptWork::FindPlace() {
  // A disk without room for the lock may have it again, and another program may have come to the file since.
  if (own_.lock && !own_.lock->IsOpen() && own_.lock->Hold(own_.path + ".lock") == EBUSY) own_ = {};
  for (int number = 1; own_.path.empty() && number <= MostPrograms; ++number) {
    if (Exists(PathOf(number))) continue;
    if (auto place = Claim(number)) own_ = std::move(*place);
  }
  if (own_.path.empty()) return Base::Error{"Troppi file di recupero in " + session_.programFolder};
  return Base::Done{};
}

void KeptWork::Offer() {
  QStringList results;
  for (int number = 1; number <= MostPrograms; ++number)
    if (Exists(PathOf(number))) results += OfferOne(number);
  results.removeAll(QString());
  if (!results.isEmpty()) session_.status.ShowResult(results.join("; "));
}

QString KeptWork::OfferOne(int number) {
  const QString file = FileAndTime(number);
  auto place = Claim(number);
  if (!place) return file + ": modifiche di un altro Trovalis aperto";
  const auto bytes = Base::ReadFile(place->path, LargestFile);
  auto recovery = bytes ? Edit::DecodeRecovery(*bytes) : bytes.error();
  if (!recovery)
    return AsideText(Text(recovery.error().message) + ", messo da parte", SetAside(place->path, Damaged));
  const QString list = PathText(Base::FileName(recovery->state.InputFlash));
  if (!session_.dialogs.YesNo("Esistono modifiche non salvate dell'ultima sessione in " + file +
                              (list.isEmpty() ? "" : ", lista " + list) + ". Si desidera recuperarle?"))
    return AsideText("Modifiche messe da parte", SetAside(place->path, Old));
  if (!MayReplace()) return {};
  Restore(*recovery);
  own_ = std::move(*place);
  return "Recuperate le modifiche dell'ultima sessione da " + file;
}

// List numbers count within one session, so the list gets a new one, and the clipboard with it where it came from
// that list.
void KeptWork::Restore(Edit::Recovery& recovery) {
  Document& document = session_.document;
  const bool sameList = recovery.clipboard.listNumber == recovery.state.ListNumber;
  const int number = document.NextListNumber();
  recovery.state.ListNumber = number;
  recovery.clipboard.listNumber = sameList ? number : document.NextListNumber();
  session_.settings.Choose(recovery.settings);
  document.Apply(
      "Recuperato il lavoro non salvato",
      [&recovery](Routines::State& state, Edit::Clipboard& clipboard) {
        state = recovery.state;
        clipboard = recovery.clipboard;
      },
      Edit::History::Kind::List);
  keptList_ = number;
  session_.view.ShowOpened(recovery.state.InputFlash);
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
  if (const auto ready = MakeReady(); !ready || NothingToKeep()) {
    Written(ready);
    return;
  }
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
  if (auto ready = MakeReady(); !ready || NothingToKeep()) return ready;
  return Base::ReplaceFile(own_.path, Contents());
}

// Another list may have taken the place of the one in the file, which was never saved: an import is unsaved at once.
Base::Outcome KeptWork::MakeReady() {
  const bool replaced = !own_.path.empty() && session_.document.Tables().ListNumber != keptList_;
  if (replaced) {
    if (auto aside = SetAside(own_.path, Old); !aside) return aside.error();
  }
  if (!NothingToKeep()) return FindPlace();
  // What the file holds is saved or taken back.
  std::error_code error;
  if (!own_.path.empty()) std::filesystem::remove(SystemPath(own_.path), error);
  return Base::Done{};
}

bool KeptWork::MayReplace() {
  if (!session_.document.Unsaved()) return true;
  const auto aside = PutAside();
  if (aside) return true;
  return session_.dialogs.FinalYesNo(Text(aside.error().message) + WorkWouldBeLost +
                                     " Si desidera continuare?");
}

Base::Outcome KeptWork::PutAside() {
  if (auto kept = Flush(); !kept) return kept;
  if (auto aside = SetAside(own_.path, Old); !aside) return aside.error();
  setAside_ = session_.document.Revision();
  Follow();  // the list may yet stay
  return Base::Done{};
}

// The file is what remains of a list that another one replaces, so it has to hold the last changes too.
void KeptWork::KeepBeforeReplacing() {
  if (timer_.isActive() && session_.document.Revision() != setAside_) static_cast<void>(Flush());
}

}  // namespace Ui
