#include "ui/files/recent_files.h"

#include "ui/kit/settings_file.h"
#include "ui/session/commands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QSettings>

namespace Ui {
namespace {

constexpr int Most = 8;
constexpr int LongestPath = 420;  // pixels
constexpr int WriteAfter = 300;   // milliseconds
constexpr const char* Key = "FileRecenti/Percorsi";
constexpr const char* UsedKey =
    "FileRecenti/Opzioni";  // "210 /path", the index in each group or "-" for none
constexpr qsizetype PathInUse = 4;

using Routines::Settings;

QString UseLine(const Settings& used, const QString& path) {
  QString line;
  for (const auto& index : {used.quantiCanali, used.flashScrittura, used.srDef})
    line += index ? QString::number(*index) : QString("-");
  return line + " " + path;
}

Settings UseIn(const QString& line) {
  const auto index = [&line](int group, std::size_t options) {
    const auto chosen = static_cast<std::size_t>(line.at(group).digitValue());
    return chosen < options ? std::optional(chosen) : std::nullopt;
  };
  return {index(0, Routines::QuantiCanali.size()), index(1, Routines::FlashScrittura.size()),
          index(2, Routines::SRDef.size())};
}

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

void RecentFiles::Add(const QString& path, const Settings& used) {
  Write();
  unwritten_ = path;
  unwrittenUse_ = used;
  write_.start();
  Q_EMIT Changed();
}

void RecentFiles::Remove(const QString& path) {
  QStringList paths = Paths();
  paths.removeAll(path);
  Store(paths, {}, {});
  Q_EMIT Changed();
}

void RecentFiles::Write() {
  if (!unwritten_.isEmpty()) Store(Paths(), unwritten_, unwrittenUse_);
}

void RecentFiles::Store(const QStringList& paths, const QString& path, const Settings& used) {
  write_.stop();
  ChangeSettings(settingsFile_, [&](QSettings& settings) {
    QStringList uses = settings.value(UsedKey).toStringList();
    uses.removeIf([&](const QString& line) {
      return line.mid(PathInUse) == path || !paths.contains(line.mid(PathInUse));
    });
    if (!path.isEmpty()) uses += UseLine(used, path);
    settings.setValue(Key, paths);
    settings.setValue(UsedKey, uses);
  });
  unwritten_.clear();
}

Settings RecentFiles::UsedWith(const QString& path) const {
  if (path == unwritten_) return unwrittenUse_;
  for (const QString& line : Setting(settingsFile_, UsedKey).toStringList())
    if (line.size() > PathInUse && line.mid(PathInUse) == path) return UseIn(line);
  return {};
}

void RecentFiles::KeepUsed(const QString& path, const Settings& used) {
  if (path.isEmpty() || used == UsedWith(path) || !Paths().contains(path)) return;
  Write();
  Store(Paths(), path, used);
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
