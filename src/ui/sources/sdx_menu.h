// The popup menu of `GrigliaSDX`: what can be done with the selected rows, and with all of them.
#pragma once

#include "ui/sources/sdx_commands.h"

class QAction;
class QMainWindow;
class QMenu;

namespace Ui {

class SdxMenu {
 public:
  SdxMenu(Session& session, SdxCommands& sdx, SdxPane& pane, QMainWindow& window);

 private:
  QAction* Add(const char* name, const char* caption, const std::function<void()>& run);
  void Show(QPoint place);

  QMenu* menu_;
  SdxPane& pane_;
  QAction* toChannel_ = nullptr;
};

}  // namespace Ui
