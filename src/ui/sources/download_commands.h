// The command `ScaricaInternet`: a list is fetched, saved and loaded as if the user had opened it.
#pragma once

#include "ui/session/session.h"
#include "ui/sources/download.h"
#include "ui/sources/download_frame.h"
#include "ui/sources/sdx_commands.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>

#include <map>

namespace Ui {

class DownloadCommands : public QObject {
  Q_OBJECT

 public:
  DownloadCommands(Session& session, SdxCommands& sdx, DownloadFrame& frame, QWidget& window);

  // Tells the window that a list has come and is about to be loaded.
  std::function<void()> onLoad;

  void Connect(Actions& actions);

 private:
  void ScaricaInternet();
  void Fetch(const QString& address);
  // False where there is no network to be had, which a box has told then.
  bool MakeReady();
  Base::Outcome KeepOldList();
  void RemoveOldList();
  void OpenProgress();
  void ShowProgress(qint64 received, qint64 total);
  // In the result line, with where the list is that was there before.
  void TellFailed(const QString& what);
  void Take(bool good, const QByteArray& reply);

  Session& session_;
  SdxCommands& sdx_;
  DownloadFrame& frame_;
  QWidget& window_;
  std::unique_ptr<Download> download_;  // none before the first
  QPointer<QProgressDialog> progress_;
  QElapsedTimer since_;  // the transfer has begun
  QString address_;
  std::string path_;
  struct OldList {
    std::string copy;
    bool made = false;  // by this program: one that was there before is not its to remove
  };
  std::map<std::string, OldList> oldLists_;  // what files had before they were emptied, by resolved path
};

}  // namespace Ui
