// The trees beside the list, in the place that they share with the SDX pane: which of the three is shown, and the way
// between a tree and the grid.
#pragma once

#include "ui/list/tree_pane.h"
#include "ui/session/session.h"
#include "ui/sources/sdx_commands.h"

class QAction;
class QSplitter;

namespace Ui {

class TreeCommands : public QObject {
  Q_OBJECT

 public:
  // `tick` is the menu command VisualizzaBouquet; `settingsFile` remembers that the user has closed TreeView1.
  TreeCommands(Session& session, SdxCommands& sdx, QAction& tick, const QString& settingsFile,
               QSplitter& place);

  void VisualizzaBouquet();
  // The user has asked for the channel list: TreeView1 comes back although it was closed once.
  void BringBack();
  // The SDX pane has been closed: TreeView2 takes its place.
  void FollowSdx();
  void HideTransponders();
  void Hide();

 private:
  void ShowTransponders(bool shown);
  void FollowView(View view);
  void Close();
  void GoToChannel(int slot);
  void GoToTransponder(int slot, int firstChannel);
  void ShowSelection();
  void SelectInGrid(int row);

  Session& session_;
  SdxCommands& sdx_;
  QAction& tick_;
  QString settingsFile_;
  TreePane* channels_;      // TreeView1
  TreePane* transponders_;  // TreeView2
  bool choosing_ = false;   // the grid follows a tree
};

}  // namespace Ui
