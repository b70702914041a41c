// Which lists are shown: the channels, the transponders or neither, and beside them one of the two trees or the SDX
// pane, which share a place; and the way between a tree and the grid.
#pragma once

#include "ui/list/tree_pane.h"
#include "ui/session/session.h"
#include "ui/sources/sources_room.h"

class QAction;

namespace Ui {

class SidePart;

class TreeCommands : public QObject {
  Q_OBJECT

 public:
  TreeCommands(Session& session, SourcesRoom& sources, Actions& actions, SidePart& place);

  [[nodiscard]] std::vector<TreePane*> Panes() const { return {channels_, transponders_}; }

 private:
  void Connect(Actions& actions);
  void VisualizzaCanali();
  void VisualizzaBouquet();
  void VediSDX();
  // The user has asked for the channel list: TreeView1 comes back although it was closed once.
  void BringBack();
  void HideTransponders();
  void Hide();
  void ShowTransponders(bool shown);
  void FollowView(View view);
  void Close();
  void GoToChannel(int slot);
  void GoToTransponder(int slot, int firstChannel);
  void ShowSelection();

  Session& session_;
  SourcesRoom& sources_;
  QAction& tick_;           // of VisualizzaBouquet
  TreePane* channels_;      // TreeView1
  TreePane* transponders_;  // TreeView2
  bool choosing_ = false;   // the grid follows a tree
};

}  // namespace Ui
