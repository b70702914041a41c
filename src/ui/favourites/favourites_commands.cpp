#include "ui/favourites/favourites_commands.h"

#include "ui/favourites/favourites_window.h"

#include <QMainWindow>

namespace Ui {

FavouritesCommands::FavouritesCommands(Session& session, Actions& actions, QMainWindow& window)
    : session_(session), window_(window), edits_(session) {
  actions.Connect("VisualizzaPreferiti", [this] { Show(); });
  QObject::connect(&session_.settings, &SettingsPanel::Clicked, &session_.settings,
                   [this] { FollowSettings(); });
}

void FavouritesCommands::Show() {
  auto* lists = OpenWindow<FavouritesWindow>(window_);
  if (lists == nullptr) {
    lists = new FavouritesWindow(session_.document, edits_, window_);
    QObject::connect(&session_.status, &StatusLine::ResultShown, lists, &FavouritesWindow::ShowResult);
  }
  lists->BringUp();
}

void FavouritesCommands::FollowSettings() {
  const Routines::Settings chosen = session_.settings.Chosen();
  if (!Routines::CheckSettings(chosen)) return;
  session_.favouritesAtHand = chosen.Type() != Routines::FlashType::One;
  session_.ShowList();
}

}  // namespace Ui
