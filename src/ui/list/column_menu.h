// The menu of a grid's column, at its title: by which one the view is sorted, which are seen, and how
// wide they are.
#pragma once

#include "ui/list/grid.h"

#include <functional>

class QAction;
class QMenu;

namespace Ui {

inline constexpr const char* ListOrderTold = "Le righe sono nell'ordine della lista";

class ColumnMenu : public QObject {
  Q_OBJECT

 public:
  // The controls' names end in `suffix`.
  ColumnMenu(Grid& grid, const QString& suffix);

  // Below the title of the column that the current cell is in.
  void ShowCurrent();

 Q_SIGNALS:
  // What has come of a command.
  void Told(const QString& result);

 private:
  void Show(int column, QPoint place);
  [[nodiscard]] const TableModel& List() const;
  [[nodiscard]] QString Title(int column) const;
  QAction* Add(QMenu& menu, const QString& name, const QString& caption, const std::function<void()>& run);
  void AddOrders(int column);
  void AddTicks(QMenu& menu);
  void Sort(int column, bool descending);
  void Hide(int column, bool hide);
  void ShowAll();
  void ResetWidths();

  Grid& grid_;
  QString suffix_;
  QMenu* menu_;
};

}  // namespace Ui
