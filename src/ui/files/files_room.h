// The commands of this room, the recent files and the work kept against a crash, ready to use.
#pragma once

#include "ui/files/exchange_commands.h"
#include "ui/files/file_commands.h"
#include "ui/files/file_opening.h"
#include "ui/files/kept_work.h"
#include "ui/files/print_commands.h"
#include "ui/files/recent_files.h"
#include "ui/sources/sources_room.h"

namespace Ui {

struct FilesRoom {
  FilesRoom(Session& session, Actions& actions, SourcesRoom& sources, QMainWindow& window)
      : files(session),
        exchange(session),
        print(session, sources.pane, window),
        recent(session.SettingsFile(), window),
        opening(session, files, exchange, sources.sdx, sources.lists, recent, actions),
        kept(session) {
    files.Connect(actions);
    exchange.Connect(actions);
    print.Connect(actions);
  }

  FileCommands files;
  ExchangeCommands exchange;
  PrintCommands print;
  RecentFiles recent;
  FileOpening opening;
  KeptWork kept;
};

}  // namespace Ui
