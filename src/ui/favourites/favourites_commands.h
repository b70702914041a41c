// The window of the favourites lists: when it can be had, opening and closing it.
#pragma once

#include "ui/favourites/favourites_edits.h"
#include "ui/session/actions.h"

class QMainWindow;

namespace Ui {

class FavouritesCommands {
 public:
  FavouritesCommands(Session& session, Actions& actions, QMainWindow& window);

  [[nodiscard]] FavouritesEdits& Edits() { return edits_; }

 private:
  void Show();
  // The receivers of the first type keep no favourites that could be written.
  void FollowSettings();

  Session& session_;
  QMainWindow& window_;
  FavouritesEdits edits_;
};

}  // namespace Ui
