// The command that checks the list's transponders by a list of today.
#pragma once

#include "ui/session/actions.h"
#include "ui/session/session.h"

class QMainWindow;

namespace Ui {

class TransponderCommands {
 public:
  TransponderCommands(Session& session, QMainWindow& window) : session_(session), window_(window) {}

  void Connect(Actions& actions);

 private:
  void ControllaTransponder();

  Session& session_;
  QMainWindow& window_;
};

}  // namespace Ui
