// Lists that come into the SDX table from elsewhere: a second flash, and texts of other programs.
#pragma once

#include "ui/sources/sdx_commands.h"

namespace Ui {

class ForeignCommands {
 public:
  ForeignCommands(Session& session, SdxCommands& sdx, QWidget& window)
      : session_(session), sdx_(sdx), window_(window) {}

  void Connect(Actions& actions);

 private:
  void CaricaAggiuntiva();
  // Menu commands Digiquest and Pelko; `kind` is the control name, under which the choices are remembered.
  void Import(const QString& kind, const QString& caption);

  Session& session_;
  SdxCommands& sdx_;
  QWidget& window_;
};

}  // namespace Ui
