#include "ui/favourites/favourites_commands.h"

#include "ui/favourites/favourites_window.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/settings_file.h"
#include "ui/kit/side_part.h"

#include <QMainWindow>

#include <utility>

namespace Ui {
namespace {

constexpr const char* DockedKey = "Preferiti/Agganciati";
constexpr const char* OpenKey = "Preferiti/Aperti";
constexpr const char* GeometryKey = "Preferiti/Geometria";

// What the lists of the window and the channels keep where favourites are docked of themselves, and at the least.
bool HasAmpleRoom(const SidePart& side) { return side.HasRoom(20, 110); }
bool HasRoom(const SidePart& side) { return side.HasRoom(14, 50); }

}  // namespace

FavouritesCommands::FavouritesCommands(Session& session, Actions& actions, QMainWindow& window,
                                       SidePart& side)
    : session_(session),
      window_(window),
      side_(side),
      edits_(session),
      stay_(Setting(session.SettingsFile(), OpenKey).toBool()),
      comeBack_(stay_) {
  const QVariant docked = Setting(session.SettingsFile(), DockedKey);
  if (docked.isValid()) wanted_ = docked.toBool();
  actions.Connect("VisualizzaPreferiti", [this] { Show(); });
  session.onChange.emplace_back([this] { ComeBack(); });
  QObject::connect(&session_.settings, &SettingsPanel::Clicked, &session_.settings,
                   [this] { FollowSettings(); });
}

void FavouritesCommands::Show() {
  if (!lists_ || lists_->isHidden()) Open(wanted_ ? *wanted_ && HasRoom(side_) : HasAmpleRoom(side_));
  lists_->BringUp();
  lists_->Enter(lists_->Current());
}

void FavouritesCommands::Open(bool docked) {
  lists_ = new FavouritesWindow(session_.document, edits_, window_, docked);
  QObject::connect(&session_.status, &StatusLine::ResultShown, lists_, &FavouritesWindow::ShowResult);
  QObject::connect(lists_, &FavouritesWindow::DockWanted, lists_, [this](bool dock) { Want(dock); });
  QObject::connect(lists_, &QDialog::finished, lists_, [this] { TellClosed(); });
  Stay(docked);
  if (docked) return side_.Dock(*lists_);
  ResizeOnScreen(*lists_, {900, 620});
  lists_->restoreGeometry(Setting(session_.SettingsFile(), GeometryKey).toByteArray());
}

void FavouritesCommands::Want(bool docked) {
  if (docked && !HasRoom(side_)) {
    session_.status.ShowResult(
        "Liste non agganciate: accanto alla griglia non c'è posto, la finestra è troppo piccola");
    return;
  }
  wanted_ = docked;
  KeepSetting(session_.SettingsFile(), DockedKey, docked);
  // Another one in the other form: a window that becomes a part of another takes the keyboard's focus with it.
  const std::size_t current = lists_->Current();
  lists_->setObjectName({});
  lists_->close();
  Open(docked);
  lists_->BringUp();
  lists_->Enter(current);
}

void FavouritesCommands::Stay(bool open) {
  if (std::exchange(stay_, open) != open) KeepSetting(session_.SettingsFile(), OpenKey, open);
}

// Docked lists whose channels are gone come back with the next ones.
void FavouritesCommands::TellClosed() {
  if (!lists_->Docked()) {
    KeepSetting(session_.SettingsFile(), GeometryKey, lists_->saveGeometry());
  } else if (session_.document.Tables().Loaded) {
    Stay(false);
    session_.view.ListGrid().setFocus();
  }
}

void FavouritesCommands::ComeBack() {
  const bool loaded = session_.document.Tables().Loaded;
  if (!loaded) comeBack_ = stay_;
  if (!loaded || !comeBack_ || !session_.favouritesAtHand) return;
  comeBack_ = false;
  if ((!lists_ || lists_->isHidden()) && HasRoom(side_)) Open(true);
}

void FavouritesCommands::FollowSettings() {
  const Routines::Settings chosen = session_.settings.Chosen();
  if (!Routines::CheckSettings(chosen)) return;
  session_.favouritesAtHand = chosen.Type() != Routines::FlashType::One;
  session_.ShowList();
}

}  // namespace Ui
