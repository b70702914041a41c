// The commands of this room, ready to use.
#pragma once

#include "ui/review/compare_commands.h"
#include "ui/review/duplicates_window.h"
#include "ui/review/overview_window.h"
#include "ui/review/transponder_commands.h"

namespace Ui {

struct ReviewRoom {
  ReviewRoom(Session& session, Actions& actions, QMainWindow& window)
      : compare(session, window), transponders(session, window) {
    compare.Connect(actions);
    transponders.Connect(actions);
    actions.Connect("CanaliDoppi", [&session, &window] { CanaliDoppi(session, window); });
    actions.Connect("Riepilogo", [&session, &window] { ShowOverview(session, window); });
  }

  CompareCommands compare;
  TransponderCommands transponders;
};

}  // namespace Ui
