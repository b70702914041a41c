#include "ui/session/commands.h"

#include "ui/kit/menu_letters.h"
#include "ui/kit/themed_icon.h"
#include "ui/session/command_tips.h"

#include <QAction>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <string_view>

namespace Ui {
namespace {

QString ButtonName(const char* key) { return "Toolbar1_" + QString(key).replace(' ', '_'); }

void AddCommand(QMainWindow& window, QMenu& menu, const Command& command) {
  if (command.startsGroup) menu.addSeparator();
  auto* action = new QAction(command.caption, &window);
  action->setObjectName(command.name);
  if (*command.icon != '\0') action->setIcon(IconNamed(command.icon));
  if (*command.key != '\0') action->setShortcut(QKeySequence(command.key));
  if (command.forRows) action->setShortcutContext(Qt::WidgetShortcut);
  action->setStatusTip(CommandTip(command.name));
  action->setToolTip(CommandTip(command.name));
  action->setCheckable(command.checkable);
  if (command.checkable) action->setIconVisibleInMenu(false);  // it would hide the tick
  action->setEnabled(false);
  menu.addAction(action);
}

}  // namespace

void BuildMenus(QMainWindow& window) {
  QMenuBar& bar = *window.menuBar();
  QMenu* file = bar.addMenu("&File");
  QMenu* utilities = bar.addMenu("&Utilities");
  QMenu* sdx = bar.addMenu("&SDX");
  QMenu* exchange = bar.addMenu("&Importa-Esporta");
  QMenu* import = exchange->addMenu("Importa");
  QMenu* exports = exchange->addMenu("Esporta");
  QMenu* about = bar.addMenu("&About");
  const std::array menus = {file, utilities, sdx, import, exports, about};
  for (QMenu* menu : menus) MenuLetters::Follow(*menu);
  for (const Command& command : Commands) {
    AddCommand(window, *menus[static_cast<std::size_t>(command.menu)], command);
  }
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
    action->setObjectName(ButtonName(button.key));
    action->setToolTip(button.tip);
    action->setStatusTip(button.tip);
    action->setEnabled(false);
    action->setVisible(!button.hidden);
    auto* widget = qobject_cast<QToolButton*>(toolbar->widgetForAction(action));
    widget->setObjectName(ButtonName(button.key));
    widget->setAccessibleName(button.tip);
  }
  // The toolkit's own, where the window is too narrow for all.
  if (auto* more = toolbar->findChild<QToolButton*>("qt_toolbar_ext_button")) {
    more->setAccessibleName("Altri pulsanti");
    more->setToolTip("Altri pulsanti");
  }
  // The recount is a button only; the keyboard has it in the menu, behind the commands for the whole list.
  const QAction& last = CommandAction(window, "ConvertiSR");
  auto* utilities = qobject_cast<QMenu*>(last.associatedObjects().value(0));
  const QList<QAction*> commands = utilities->actions();
  utilities->insertAction(commands.value(commands.indexOf(&last) + 1),
                          &ButtonAction(window, "CanaliXTransponder"));
}

QString CommandTip(std::string_view name) {
  const auto tip = std::find_if(CommandTips.begin(), CommandTips.end(),
                                [name](const auto& entry) { return entry.first == name; });
  return tip == CommandTips.end() ? QString() : QString(tip->second);
}

QAction& CommandAction(const QMainWindow& window, const char* name) {
  auto* action = window.findChild<QAction*>(name);
  Q_ASSERT(action != nullptr);
  return *action;
}

QAction& ButtonAction(const QMainWindow& window, const char* key) {
  auto* action = window.findChild<QAction*>(ButtonName(key));
  Q_ASSERT(action != nullptr);
  return *action;
}

}  // namespace Ui
