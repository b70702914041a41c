// Files that come to the window by other ways than the commands' own dialogs: given to the program at its start, chosen
// among the recent ones, dropped on the window.
#pragma once

#include "ui/files/exchange_commands.h"
#include "ui/files/file_commands.h"
#include "ui/files/recent_files.h"
#include "ui/session/session.h"
#include "ui/sources/sdx_commands.h"

#include <QObject>

class QAction;
class QMimeData;

namespace Ui {

class FileOpening : public QObject {
  Q_OBJECT

 public:
  // `open` is the command ApriFlashInput.
  FileOpening(Session& session, FileCommands& files, ExchangeCommands& exchange, SdxCommands& sdx,
              RecentFiles& recent, const QAction& open, QObject* parent);

  // By the command's own dialog, where `path` is empty.
  void OpenFlash(const std::string& path = {});
  // As soon as the number of channels has been chosen.
  void OpenWhenChosen(const std::string& path);
  // By the command that fits the file, once the drag is over.
  void Drop(const QMimeData& data);

 private:
  void OpenRecent(const QString& path);

  Session& session_;
  FileCommands& files_;
  ExchangeCommands& exchange_;
  SdxCommands& sdx_;
  RecentFiles& recent_;
  const QAction& open_;
};

}  // namespace Ui
