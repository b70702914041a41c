// The look of the program with nothing behind it: its menus and buttons, options, table, tree and status bar, all of them the
// toolkit's own.
#pragma once

#include <QMainWindow>

class QTableView;
class QTreeView;

namespace Bench {

struct BareLook : QMainWindow {
  BareLook();

  QTableView* table;
  QTreeView* tree;
};

}  // namespace Bench
