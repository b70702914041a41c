#include "bare_look.h"

#include "model/write_settings.h"
#include "ui/kit/text.h"
#include "ui/session/commands.h"

#include <QAction>
#include <QBoxLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QRadioButton>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QTreeView>

#include <map>

namespace Bench {
namespace {

void AddMenus(QMainWindow& window) {
  std::map<Ui::Menu, QMenu*> menus;
  for (const Ui::Command& command : Ui::Commands) {
    QMenu*& menu = menus[command.menu];
    if (menu == nullptr) menu = window.menuBar()->addMenu(command.caption);
    auto* action = menu->addAction(command.caption);
    if (*command.key != '\0') action->setShortcut(QKeySequence(command.key));
  }
}

void AddButtons(QMainWindow& window) {
  QPixmap picture(24, 24);
  picture.fill(Qt::darkGray);
  QToolBar* toolbar = window.addToolBar("");
  for (const Ui::ToolbarButton& button : Ui::ToolbarButtons)
    if (!button.hidden) toolbar->addAction(QIcon(picture), button.tip);
}

QGroupBox* Group(const QString& title, const QStringList& options) {
  auto* group = new QGroupBox(title);
  auto* column = new QVBoxLayout(group);
  for (const QString& option : options) column->addWidget(new QRadioButton(option));
  return group;
}

template <class Options>
QStringList Captions(const Options& options) {
  QStringList captions;
  for (const auto& option : options) captions += Ui::Text(option.caption);
  return captions;
}

QLayout* Options() {
  QStringList rates;
  for (const auto rate : Routines::SRDef) rates += Ui::Text(rate);
  auto* options = new QHBoxLayout;
  options->addWidget(Group("Canali da copiare", Captions(Routines::QuantiCanali)));
  options->addWidget(Group("Tipo Flash in scrittura", Captions(Routines::FlashScrittura)));
  options->addWidget(Group("Definizione SR 22000", rates));
  return options;
}

}  // namespace

BareLook::BareLook() : table(new QTableView(this)), tree(new QTreeView(this)) {
  AddMenus(*this);
  AddButtons(*this);
  auto* contents = new QWidget(this);
  auto* column = new QVBoxLayout(contents);
  column->addLayout(Options());
  auto* lists = new QHBoxLayout;
  lists->addWidget(table, 3);
  lists->addWidget(tree, 1);
  column->addLayout(lists, 1);
  setCentralWidget(contents);
  statusBar()->addWidget(new QLabel("Canali"));
  table->setWordWrap(false);
  table->setHorizontalScrollMode(QTableView::ScrollPerPixel);
  table->verticalHeader()->hide();
  resize(1024, 700);
}

}  // namespace Bench
