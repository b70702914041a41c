// Keeps the work that no flash image has yet in a file of the program's folder, so that neither closing nor a crash
// loses it, and offers it at the next start. Each of several running programs has a file of its own.
#pragma once

#include "base/system_file.h"
#include "ui/session/session.h"

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

namespace Ui {

// What stands behind the reason, in front of the question that is asked then.
inline constexpr const char* WorkWouldBeLost = "\n\nLe modifiche non salvate andrebbero perse.";

class KeptWork : public QObject {
  Q_OBJECT

 public:
  explicit KeptWork(Session& session);
  ~KeptWork() override;

  // Asks for each file that an ended program has left, and says which ones belong to a running program. Of several that
  // are taken the last one stays loaded, the others are set aside.
  void Offer();

  // The list, the clipboard or the options may have changed: the file follows within a second.
  void Follow();

  // The file is up to date when this returns; an error where it could not be written.
  Base::Outcome Flush();

  // Sets aside what is not saved of a list that another one is about to replace. Where that cannot be done the user
  // decides; false for a No.
  bool MayReplace();

 private:
  // A file and what keeps other running programs off it.
  struct Place {
    std::string path;
    std::unique_ptr<Base::SystemFile> lock;
  };

  [[nodiscard]] std::string PathOf(int number) const;
  // Its name, and when it was written last: "trovalis.recupero (21/11/2026 10:32)".
  [[nodiscard]] QString FileAndTime(int number) const;
  // Nothing where another running program has that number.
  [[nodiscard]] std::optional<Place> Claim(int number) const;
  // Sees to it that there is a file to write to.
  Base::Outcome FindPlace();
  // What became of the file of that number, for the result line.
  QString OfferOne(int number);
  void Restore(Edit::Recovery& recovery);

  [[nodiscard]] bool NothingToKeep() const;
  [[nodiscard]] Base::Bytes Contents();
  void Write();
  Base::Outcome WriteNow();
  void Written(const Base::Outcome& outcome);
  void KeepBeforeReplacing();
  Base::Outcome PutAside();
  // The file of a list that is no longer there is set aside, one without anything to keep removed; else there is a
  // place to write to.
  Base::Outcome MakeReady();

  Session& session_;
  QTimer timer_;
  QElapsedTimer sinceWrite_;
  QThreadPool writer_;
  bool writing_ = false;
  bool failed_ = false;  // the last write
  Place own_;            // without a path until a file is needed
  int keptList_ = 0;     // ListNumber of what the file holds
  int setAside_ = -1;    // the document's revision that has been set aside
};

}  // namespace Ui
