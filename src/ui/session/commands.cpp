#include "ui/session/commands.h"

#include "ui/kit/menu_letters.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/themed_icon.h"

#include <QAction>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace Ui {
namespace {

QString ControlName(const ToolbarButton& button) {
  return "Toolbar1_" + QString(button.name).replace(' ', '_');
}

void AddCommand(QMainWindow& window, QMenu& menu, const Command& command) {
  if (command.Is(Group)) menu.addSeparator();
  auto* action = new QAction(command.caption, &window);
  action->setObjectName(command.name);
  if (*command.icon != '\0') action->setIcon(IconNamed(command.icon));
  if (*command.key != '\0') action->setShortcut(QKeySequence(command.key));
  if (command.Is(OnRows)) action->setShortcutContext(Qt::WidgetShortcut);
  action->setStatusTip(command.tip);
  action->setToolTip(command.tip);
  action->setCheckable(command.Is(Tick));
  if (command.Is(Tick)) action->setIconVisibleInMenu(false);  // it would hide the tick
  action->setEnabled(false);
  menu.addAction(action);
}

}  // namespace

void BuildMenus(QMainWindow& window) {
  QMenuBar& bar = *window.menuBar();
  QMenu* file = bar.addMenu("&File");
  QMenu* edit = bar.addMenu("&Modifica");
  QMenu* utilities = bar.addMenu("&Utilities");
  QMenu* compare = bar.addMenu("&Confronta");
  QMenu* sdx = bar.addMenu("&SDX");
  QMenu* exchange = bar.addMenu("&Importa-Esporta");
  QMenu* import = exchange->addMenu("Importa");
  QMenu* exports = exchange->addMenu("Esporta");
  QMenu* about = bar.addMenu("&About");
  auto* view = new QMenu("Vista", edit);
  const std::array menus = {file, edit, utilities, compare, sdx, import, exports, about, view};
  for (QMenu* menu : menus) MenuLetters::Follow(*menu);
  for (const Command& command : Commands) {
    AddCommand(window, *menus[static_cast<std::size_t>(command.menu)], command);
  }
  edit->addSeparator();
  edit->addMenu(view);
}

void BuildToolbar(QMainWindow& window) {
  auto* toolbar = window.addToolBar("Barra degli strumenti");
  toolbar->setObjectName("Toolbar1");
  toolbar->setMovable(false);
  toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
  const int icon = std::max(24, window.fontMetrics().height() * 3 / 2);
  toolbar->setIconSize(QSize(icon, icon));
  for (const ToolbarButton& button : ToolbarButtons) {
    if (button.startsGroup) toolbar->addSeparator();
    auto* action = toolbar->addAction(button.hidden ? QIcon() : IconNamed(button.icon), button.tip);
    action->setObjectName(ControlName(button));
    action->setToolTip(button.tip);
    action->setStatusTip(button.tip);
    action->setEnabled(false);
    action->setVisible(!button.hidden);
    auto* widget = qobject_cast<QToolButton*>(toolbar->widgetForAction(action));
    widget->setObjectName(ControlName(button));
    widget->setAccessibleName(button.tip);
  }
  NameMoreButton(*toolbar);
}

QAction& CommandAction(const QMainWindow& window, CommandName command) {
  return *window.findChild<QAction*>(command->name);
}

QAction& ButtonAction(const QMainWindow& window, ButtonName button) {
  return *window.findChild<QAction*>(ControlName(*button));
}

}  // namespace Ui
