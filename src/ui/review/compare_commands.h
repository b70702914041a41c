// The commands that compare the list with another flash or with what is on the disk.
#pragma once

#include "ui/review/other_flash.h"
#include "ui/session/actions.h"

class QMainWindow;

namespace Ui {

class CompareCommands {
 public:
  CompareCommands(Session& session, QMainWindow& window) : session_(session), window_(window) {}

  void Connect(Actions& actions);

 private:
  void Confronta();
  void ConfrontaDisco();
  // Shows the window, or says that there is nothing to show.
  void Compare(OtherFlash other);

  Session& session_;
  QMainWindow& window_;
};

}  // namespace Ui
