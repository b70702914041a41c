#include "ui/favourites/favourites_commands.h"

#include "ui/favourites/favourites_window.h"
#include "ui/session/commands.h"

#include <QAction>
#include <QMainWindow>

namespace Ui {

void FavouritesCommands::Show() {
  if (!session_.NeedsFlash()) return;
  if (!lists_) {
    lists_ = new FavouritesWindow(session_.document, edits_, window_);
    QObject::connect(&session_.status, &StatusLine::ResultShown, lists_, &FavouritesWindow::ShowResult);
  }
  lists_->show();
  lists_->raise();
  lists_->activateWindow();
}

void FavouritesCommands::Enable(bool on) { CommandAction(window_, "VisualizzaPreferiti").setEnabled(on); }

void FavouritesCommands::CloseWindow() {
  if (lists_) lists_->close();
}

}  // namespace Ui
