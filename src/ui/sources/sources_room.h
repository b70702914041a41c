// The commands of this room and the two places of the window that they fill, ready to use.
#pragma once

#include "ui/sources/download_commands.h"
#include "ui/sources/foreign_commands.h"
#include "ui/sources/sdx_menu.h"
#include "ui/sources/service_list_commands.h"

#include <QMainWindow>

namespace Ui {

struct SourcesRoom {
  // `pane` and `frame` are the caller's, to be laid out and kept as long as this.
  SourcesRoom(Session& session, Actions& actions, SdxPane& listPane, DownloadFrame& frame,
              QMainWindow& window)
      : pane(listPane),
        sdx(session, pane, window),
        download(session, sdx, frame, window),
        foreign(session, sdx, window),
        lists(session, sdx, window),
        menu(session, sdx, pane, window) {
    sdx.Connect(actions);
    download.Connect(actions);
    foreign.Connect(actions);
    lists.Connect(actions);
  }

  SdxPane& pane;
  SdxCommands sdx;
  DownloadCommands download;
  ForeignCommands foreign;
  ServiceListCommands lists;
  SdxMenu menu;
};

}  // namespace Ui
