// A grid whose first column stays in view when it is scrolled sideways, and whose spare width goes to one
// column.
#pragma once

#include "ui/list_model.h"

#include <QTableView>

namespace Ui {

class Griglia : public QTableView {
  Q_OBJECT

 public:
  explicit Griglia(QWidget* parent);

  // Shows a list from its first row on: row 1 is current, nothing is selected. The spare width of the window
  // goes to the column that its header makes widest.
  void ShowList(ListModel* list);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;

 private:
  void SetUp(QTableView& view);
  void FitColumns();
  void PlaceFrozen();

  QTableView* frozen_;  // the first column, on the same model
  std::vector<HeaderColumn> header_;
};

}  // namespace Ui
