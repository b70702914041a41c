#include "ui/window/tree_commands.h"

#include "ui/kit/settings_file.h"
#include "ui/kit/side_part.h"

#include <QAction>
#include <QScopedValueRollback>

namespace Ui {

using Routines::ListTree;

namespace {

constexpr const char* ClosedKey = "Finestra/TreeView1Chiuso";

}  // namespace

TreeCommands::TreeCommands(Session& session, SourcesRoom& sources, Actions& actions, SidePart& place)
    : session_(session),
      sources_(sources),
      tick_(actions["VisualizzaBouquet"]),
      channels_(new TreePane(session.document, session.bouquets.tables.satellites, ListTree::Shape::Bouquets,
                             "TreeView1", "Canali per bouquet", &place)),
      transponders_(new TreePane(session.document, session.bouquets.tables.satellites,
                                 ListTree::Shape::Transponders, "TreeView2", "Struttura per bouquet",
                                 &place)) {
  Connect(actions);
  for (TreePane* pane : {channels_, transponders_}) {
    pane->hide();
    place.Add(*pane);
    connect(pane, &TreePane::ChannelChosen, this, &TreeCommands::GoToChannel);
    connect(pane, &TreePane::TransponderChosen, this, &TreeCommands::GoToTransponder);
    connect(pane, &TreePane::CurrentWanted, this, &TreeCommands::ShowSelection);
  }
  connect(channels_, &TreePane::Closed, this, &TreeCommands::Close);
  connect(transponders_, &TreePane::Closed, this, &TreeCommands::HideTransponders);
  connect(&session.view, &ListView::Shown, this, &TreeCommands::FollowView);
  connect(&session.view.ListGrid(), &Grid::SelectionMoved, this, &TreeCommands::ShowSelection);
}

void TreeCommands::Connect(Actions& actions) {
  actions.Connect("VisualizzaCanali", [this] { VisualizzaCanali(); });
  actions.Connect("VisualizzaTransponder", [this] { session_.view.Toggle(View::Transponders); });
  actions.Connect("VisualizzaBouquet", [this] { VisualizzaBouquet(); });
  actions.Connect("VediSDX", [this] { VediSDX(); });
  connect(&sources_.pane, &SdxPane::CloseWanted, &actions["VediSDX"], &QAction::trigger);
  sources_.sdx.onShown = [this, &actions](bool shown) {
    actions["VediSDX"].setChecked(shown);
    if (shown) Hide();
  };
  sources_.download.onLoad = [this] { HideTransponders(); };
}

void TreeCommands::VisualizzaCanali() {
  session_.view.Toggle(View::Channels);
  if (session_.view.Current() == View::Channels) BringBack();
}

void TreeCommands::VisualizzaBouquet() {
  if (transponders_->isHidden()) {
    ShowTransponders(true);
  } else {
    HideTransponders();
  }
}

// TreeView2 takes the place of a pane that is closed.
void TreeCommands::VediSDX() {
  sources_.sdx.ShowPane(!sources_.sdx.PaneShown());
  if (!sources_.sdx.PaneShown() && session_.document.Tables().Loaded) ShowTransponders(true);
}

void TreeCommands::ShowTransponders(bool shown) {
  if (shown && sources_.sdx.PaneShown()) sources_.sdx.ShowPane(false);
  if (shown) channels_->hide();
  transponders_->setVisible(shown);
  tick_.setChecked(shown);
}

// What was there before comes back.
void TreeCommands::HideTransponders() {
  ShowTransponders(false);
  FollowView(session_.view.Current());
}

void TreeCommands::Hide() {
  channels_->hide();
  ShowTransponders(false);
}

void TreeCommands::FollowView(View view) {
  const bool free = transponders_->isHidden() && !sources_.sdx.PaneShown();
  const bool closed = Setting(session_.SettingsFile(), ClosedKey).toBool();
  channels_->setVisible(view == View::Channels && free && !closed);
  if (!session_.document.Tables().Loaded) Hide();
}

void TreeCommands::Close() {
  KeepSetting(session_.SettingsFile(), ClosedKey, true);
  channels_->hide();
}

void TreeCommands::BringBack() {
  KeepSetting(session_.SettingsFile(), ClosedKey, {});
  FollowView(View::Channels);
}

void TreeCommands::GoToChannel(int slot) {
  const QScopedValueRollback<bool> choosing(choosing_, true);
  // The keys go on walking the tree.
  QWidget* focus = session_.view.window()->focusWidget();
  session_.view.GoToRow(View::Channels, slot);
  if (focus != nullptr) focus->setFocus();
}

void TreeCommands::GoToTransponder(int slot, int firstChannel) {
  const QScopedValueRollback<bool> choosing(choosing_, true);
  if (session_.view.Current() == View::Transponders) {
    session_.view.GoToRow(View::Transponders, slot);
  } else if (firstChannel != 0) {
    GoToChannel(firstChannel);
  }
}

void TreeCommands::ShowSelection() {
  if (choosing_) return;
  const View view = session_.view.Current();
  const Edit::Slots rows = view == View::None ? Edit::Slots() : session_.view.ListGrid().Selected();
  if (rows.empty()) return;
  for (TreePane* pane : {channels_, transponders_}) {
    if (view == View::Channels) {
      pane->ShowChannel(rows.front());
    } else {
      pane->ShowTransponder(rows.front());
    }
  }
}

}  // namespace Ui
