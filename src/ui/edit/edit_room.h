// The commands of this room, ready to use.
#pragma once

#include "ui/edit/bulk_commands.h"
#include "ui/edit/cell_commands.h"
#include "ui/edit/edit_commands.h"
#include "ui/edit/list_commands.h"
#include "ui/edit/move_commands.h"
#include "ui/edit/step_commands.h"

namespace Ui {

struct EditRoom {
  EditRoom(Session& session, Actions& actions)
      : cells(session), rows(session), moves(session), steps(session), list(session), bulk(session) {
    session.view.EditWith(cells);
    rows.Connect(actions);
    moves.Connect(actions);
    steps.Connect(actions);
    list.Connect(actions);
    bulk.Connect(actions);
  }

  CellCommands cells;
  EditCommands rows;
  MoveCommands moves;
  StepCommands steps;
  ListCommands list;
  BulkCommands bulk;
};

}  // namespace Ui
