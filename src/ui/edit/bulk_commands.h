// The commands that change many channels at one go, each seen in a preview before it happens.
#pragma once

#include "ui/session/actions.h"
#include "ui/session/session.h"

namespace Ui {

class BulkCommands {
 public:
  explicit BulkCommands(Session& session) : session_(session) {}

  void Connect(Actions& actions);

  void CambiaNomi();
  void ImpostaCampi();
  void OrdinaCanali();

 private:
  Session& session_;
};

}  // namespace Ui
