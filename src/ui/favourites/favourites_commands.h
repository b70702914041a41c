// Where the favourites lists stand: when they can be had, opening and closing, docking and loosening them.
#pragma once

#include "ui/favourites/favourites_edits.h"
#include "ui/session/actions.h"

#include <QPointer>

#include <optional>

class QMainWindow;

namespace Ui {

class FavouritesWindow;
class SidePart;

class FavouritesCommands {
 public:
  FavouritesCommands(Session& session, Actions& actions, QMainWindow& window, SidePart& side);

  [[nodiscard]] FavouritesEdits& Edits() { return edits_; }

 private:
  void Show();
  void Open(bool docked);
  // The user wants them docked, or loose, from now on.
  void Want(bool docked);
  void Stay(bool open);
  void TellClosed();
  void ComeBack();
  // The receivers of the first type keep no favourites that could be written.
  void FollowSettings();

  Session& session_;
  QMainWindow& window_;
  SidePart& side_;
  FavouritesEdits edits_;
  QPointer<FavouritesWindow> lists_;  // closed, it may still be about to go away
  std::optional<bool> wanted_;        // docked, as the user has said at any time
  bool stay_;                         // docked and open, until the user closes them
  bool comeBack_;                     // as soon as there is a list
};

}  // namespace Ui
