// Keeps the work that no flash image has yet in a file of the program's folder, so that neither closing nor a crash
// loses it, and offers it at the next start. Each of several running programs has a file of its own.
#pragma once

#include "ui/session/session.h"

#include <QElapsedTimer>
#include <QLockFile>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

namespace Ui {

class KeptWork : public QObject {
  Q_OBJECT

 public:
  explicit KeptWork(Session& session);
  ~KeptWork() override;

  // Asks for each file that an ended program has left, until one is taken.
  void Offer();

  // The list, the clipboard or the options may have changed: the file follows within a second.
  void Follow();

  // The file is up to date when this returns; an error where it could not be written.
  Base::Outcome Flush();

 private:
  // A file and what keeps other running programs off it.
  struct Place {
    std::string path;
    std::unique_ptr<QLockFile> lock;
  };

  [[nodiscard]] std::string PathOf(int number) const;
  // Nothing where another running program has that number.
  [[nodiscard]] std::optional<Place> Claim(int number) const;
  // Sees to it that there is a file to write to.
  Base::Outcome FindPlace();
  bool Take(const std::string& path);
  void Restore(Edit::Recovery& recovery);

  [[nodiscard]] bool NothingToKeep() const;
  [[nodiscard]] Base::Bytes Contents();
  void Write();
  Base::Outcome WriteNow();
  void Written(const Base::Outcome& outcome);
  void KeepBeforeReplacing();
  void SetReplacedAside();
  void Discard();

  Session& session_;
  QTimer timer_;
  QElapsedTimer sinceWrite_;
  QThreadPool writer_;
  bool writing_ = false;
  bool failed_ = false;  // the last write
  Place own_;            // without a path until a file is needed
  int keptList_ = 0;     // ListNumber of what the file holds
};

}  // namespace Ui
