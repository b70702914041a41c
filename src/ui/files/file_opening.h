// Files that come to the window by other ways than the commands' own dialogs: given to the program at its start, chosen
// among the recent ones, dropped on the window.
#pragma once

#include "ui/files/dropped_file.h"
#include "ui/files/exchange_commands.h"
#include "ui/files/file_commands.h"
#include "ui/files/recent_files.h"
#include "ui/session/session.h"
#include "ui/sources/sdx_commands.h"
#include "ui/sources/service_list_commands.h"

#include <QObject>

class QMimeData;

namespace Ui {

class FileOpening : public QObject {
  Q_OBJECT

 public:
  FileOpening(Session& session, FileCommands& files, ExchangeCommands& exchange, SdxCommands& sdx,
              ServiceListCommands& lists, RecentFiles& recent, Actions& actions);

  // As soon as the number of channels has been chosen.
  void OpenWhenChosen(const std::string& path);
  // By the command that fits the file, once the drag is over: told by its ending, or by what is in it. Of several files
  // a flash is opened first, and a list beside it; others are asked about.
  void Drop(const QMimeData& data);

 private:
  enum class Kind { None, Flash, Raw, Exported, Sdx, Services };
  static Kind KindOf(const DroppedFile& file);
  static QString Refusal(const DroppedFile& file);
  void OpenAll(std::vector<DroppedFile> files);
  // False where its command could not be run now.
  bool Open(const DroppedFile& file);
  bool OpenFlash(const std::string& path);
  void OpenRecent(const QString& path);
  [[nodiscard]] QString OpenedPath() const;
  void CompleteUse();

  Session& session_;
  FileCommands& files_;
  ExchangeCommands& exchange_;
  SdxCommands& sdx_;
  ServiceListCommands& lists_;
  RecentFiles& recent_;
  Actions& actions_;
  QMetaObject::Connection waiting_;  // of a file that is opened once the number of channels has been chosen
};

}  // namespace Ui
