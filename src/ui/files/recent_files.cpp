#include "ui/files/recent_files.h"

#include "ui/kit/settings_file.h"
#include "ui/session/commands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

namespace Ui {
namespace {

constexpr int Most = 8;
constexpr int LongestPath = 420;  // pixels
constexpr int WriteAfter = 300;   // milliseconds
constexpr const char* Key = "FileRecenti/Percorsi";

}  // namespace

RecentFiles::RecentFiles(QString settingsFile, QMainWindow& window)
    : settingsFile_(std::move(settingsFile)),
      open_(CommandAction(window, "ApriFlashInput")),
      menu_(new QMenu("File recenti", &window)) {
  menu_->setObjectName("FileRecenti");
  menu_->setToolTipsVisible(true);
  menu_->menuAction()->setStatusTip("Riapre una delle ultime flash aperte");
  for (int i = 1; i <= Most; ++i) {
    QAction* item = menu_->addAction(QString());
    item->setObjectName(QString("FileRecenti_%1").arg(i));
    connect(item, &QAction::triggered, this, [this, item] { Q_EMIT Chosen(item->data().toString()); });
    items_.push_back(item);
  }
  // A group of its own, in front of the line above the last command.
  auto* file = qobject_cast<QMenu*>(open_.associatedObjects().value(0));
  const QList<QAction*> commands = file->actions();
  QAction* line = commands.value(commands.indexOf(&CommandAction(window, "Fine")) - 1);
  file->insertSeparator(line);
  file->insertMenu(line, menu_);
  write_.setSingleShot(true);
  write_.setInterval(WriteAfter);
  connect(&write_, &QTimer::timeout, this, &RecentFiles::Write);
  connect(this, &RecentFiles::Changed, this, &RecentFiles::FillMenu);
  connect(&open_, &QAction::changed, this, &RecentFiles::FillMenu);
  FillMenu();
}

RecentFiles::~RecentFiles() { Write(); }

QStringList RecentFiles::Paths() const {
  QStringList paths = Setting(settingsFile_, Key).toStringList();
  if (!unwritten_.isEmpty()) {
    paths.removeAll(unwritten_);
    paths.prepend(unwritten_);
  }
  return paths.mid(0, Most);
}

void RecentFiles::Add(const QString& path) {
  Write();
  unwritten_ = path;
  write_.start();
  Q_EMIT Changed();
}

void RecentFiles::Remove(const QString& path) {
  QStringList paths = Paths();
  paths.removeAll(path);
  Store(paths);
  Q_EMIT Changed();
}

void RecentFiles::Write() {
  if (!unwritten_.isEmpty()) Store(Paths());
}

void RecentFiles::Store(const QStringList& paths) {
  write_.stop();
  unwritten_.clear();
  KeepSetting(settingsFile_, Key, paths);
}

void RecentFiles::FillMenu() {
  const QStringList paths = Paths();
  menu_->setEnabled(open_.isEnabled() && !paths.isEmpty());
  for (int i = 0; i < Most; ++i) {
    QAction& item = *items_[static_cast<std::size_t>(i)];
    const QString path = paths.value(i);
    const QString shown = menu_->fontMetrics().elidedText(path, Qt::ElideMiddle, LongestPath);
    item.setText(QString("&%1  ").arg(i + 1) + QString(shown).replace('&', "&&"));
    item.setData(path);
    item.setToolTip("<span>" + path.toHtmlEscaped() + "</span>");
    item.setStatusTip(path);
    item.setVisible(!path.isEmpty());
  }
}

}  // namespace Ui
