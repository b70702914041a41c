// The commands of this room, ready to use.
#pragma once

#include "ui/edit/bulk_commands.h"
#include "ui/edit/cell_commands.h"
#include "ui/edit/edit_commands.h"
#include "ui/edit/list_commands.h"
#include "ui/edit/move_commands.h"

namespace Ui {

struct EditRoom {
  EditRoom(Session& session, Actions& actions)
      : cells(session), rows(session), moves(session), list(session), bulk(session) {
    session.view.EditWith(cells);
    rows.Connect(actions);
    moves.Connect(actions);
    list.Connect(actions);
    bulk.Connect(actions);
  }

  CellCommands cells;
  EditCommands rows;
  MoveCommands moves;
  ListCommands list;
  BulkCommands bulk;
};

}  // namespace Ui
