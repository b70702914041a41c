// The flash images opened last, kept in trovalis.ini, and the submenu that lists them.
#pragma once

#include "model/write_settings.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <vector>

class QAction;
class QMainWindow;
class QMenu;

namespace Ui {

class RecentFiles : public QObject {
  Q_OBJECT

 public:
  // Puts the submenu `FileRecenti` behind the commands of the menu File that open a flash.
  RecentFiles(QString settingsFile, QMainWindow& window);
  ~RecentFiles() override;

  // The latest first, at most 8.
  [[nodiscard]] QStringList Paths() const;
  // Its writing waits for the disk, and therefore until the list that was opened is on the screen.
  void Add(const QString& path, const Routines::Settings& used);
  // What a file among them has been used with, as far as that is known.
  [[nodiscard]] Routines::Settings UsedWith(const QString& path) const;
  void KeepUsed(const QString& path, const Routines::Settings& used);
  void Remove(const QString& path);

 Q_SIGNALS:
  void Changed();
  // The user wants one of them opened.
  void Chosen(const QString& path);

 private:
  void Write();
  void Store(const QStringList& paths, const QString& path, const Routines::Settings& used);
  void FillMenu();

  QString settingsFile_;
  QString unwritten_;
  Routines::Settings unwrittenUse_;
  QTimer write_;
  QAction& open_;  // ApriFlashInput
  QMenu* menu_;
  std::vector<QAction*> items_;
};

}  // namespace Ui
