// The window of the favourites lists: when it can be had, opening and closing it.
#pragma once

#include "ui/favourites/favourites_edits.h"

#include <QPointer>

class QMainWindow;

namespace Ui {

class FavouritesWindow;

class FavouritesCommands {
 public:
  FavouritesCommands(Session& session, QMainWindow& window)
      : session_(session), window_(window), edits_(session) {}

  [[nodiscard]] FavouritesEdits& Edits() { return edits_; }

  // Menu command VisualizzaPreferiti.
  void Show();
  void CloseWindow();
  // Makes that command available or not.
  void Enable(bool on);

 private:
  Session& session_;
  QMainWindow& window_;
  FavouritesEdits edits_;
  QPointer<FavouritesWindow> lists_;
};

}  // namespace Ui
