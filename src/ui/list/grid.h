// A grid whose first column, or more of them, stays in view when it is scrolled sideways, and whose columns
// share the spare width.
#pragma once

#include "ui/list/grid_place.h"
#include "ui/list/row_order.h"
#include "ui/list/table_model.h"

#include <QTableView>

#include <map>
#include <optional>
#include <set>

namespace Ui {

// The widths that the user has given columns, in pixels, by the column from 0; and columns that are hidden.
using ColumnWidths = std::map<int, int>;
using ColumnSet = std::set<int>;

class Grid : public QTableView {
  Q_OBJECT

 public:
  // The first `frozen` columns stay in view.
  explicit Grid(QWidget* parent, int frozen = 1);

  // Shows a list from its first row on: row 1 is current, nothing is selected. Its columns share the
  // spare width of the window by the widths that the header gives them, all but the first one and those that have
  // been given a width.
  void ShowList(TableModel* list);

  // Where the list is left, and the way back there: as far as it has as many rows still, and with the rows selected
  // where they hold what they held.
  [[nodiscard]] GridPlace Place() const;
  void ComeBackTo(const GridPlace& place);

  // Of any list, shown or not.
  [[nodiscard]] ColumnWidths WidthsOf(const TableModel& list) const;
  void SetWidths(const TableModel& list, const ColumnWidths& widths);
  [[nodiscard]] ColumnSet HiddenOf(const TableModel& list) const;
  // Hides these columns and shows all others. Number and name of a row cannot be hidden.
  void SetHidden(const TableModel& list, ColumnSet columns);
  [[nodiscard]] static bool MayHide(int column) { return column >= AlwaysShown; }

  // The selected rows in rising order, from slot 1 on.
  [[nodiscard]] Edit::Slots Selected() const;
  // Selects rows, in rising order, and makes the first of them current, where it is or scrolled to.
  void Select(const Edit::Slots& rows);
  void SelectRow(int row) { Select({row}); }
  void SelectInMiddle(int row);
  // Selects rows that may be out of view; the current row and what is in view stay.
  void SelectUnseen(const Edit::Slots& rows);
  // Scrolls to a row, or the nearest one that is shown.
  void ShowInMiddle(int row);
  // All rows that hold anything.
  void selectAll() override;
  // Selects a row, or the nearest one that is shown.
  void SelectNear(int row);
  // Makes a row the first visible one, as far as the list's end lets it.
  void ScrollToTop(int slot);

  // Hides all rows but these, in rising order; nothing shows all of them. Rows that are hidden are selected no longer.
  void ShowOnly(std::optional<Edit::Slots> rows);
  [[nodiscard]] int HiddenRows() const;

  // Shows the rows in the order of what a column says; the list itself, and the numbers of its rows, stay as they are.
  // Another list is shown in its own order.
  void SortView(int column, bool descending);
  void ShowListOrder();
  [[nodiscard]] bool IsSorted() const { return order_.has_value(); }
  // What stands before the title of the column that the view is sorted by.
  [[nodiscard]] QString SortMark(int column) const;
  // The list has changed.
  void SortAgain();
  // Where a row stands in the view, and the row that stands somewhere, both from 1; 0 where there is none.
  [[nodiscard]] int PlaceOf(int row) const;
  [[nodiscard]] int RowAt(int place) const;

  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 Q_SIGNALS:
  // The user has changed a column's width, or which columns are hidden.
  void ColumnsChanged();
  // The user wants the menu of a column, at a place of the screen.
  void ColumnMenuWanted(int column, QPoint place);
  void SelectionMoved();
  void CurrentMoved();
  // The user wants the menu of the selected rows, at a place of the screen.
  void MenuWanted(QPoint place);
  // The view is sorted by another column, or not any longer.
  void ViewSorted();
  // A row that is hidden is about to be selected.
  void HiddenWanted();

 protected:
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const override;
  void setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void startDrag(Qt::DropActions actions) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void reset() override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
  static constexpr int AlwaysShown = 2;  // columns

  void SetUp(QTableView& view);
  [[nodiscard]] const TableModel* List() const { return static_cast<const TableModel*>(model()); }
  [[nodiscard]] QItemSelection SelectionOf(const Edit::Slots& rows) const;
  [[nodiscard]] int ShownNear(int row) const;
  [[nodiscard]] int TopInListOrder() const;
  void HideRowsOf(QTableView& view);
  void Arrange();
  void ArrangeRowsOf(QTableView& view);
  void SelectFirstPlace();
  void LeaveHiddenRows();
  void ShowDropLine(QPoint place);
  void ReadHeader();
  void FollowLetters();
  void HideColumns();
  void AskForColumnMenu(QPoint place);
  [[nodiscard]] bool HasOwnWidth(std::size_t column) const;
  [[nodiscard]] std::vector<int> SharedWidths() const;
  void FitColumns();
  void KeepWidth(int column, int width);
  [[nodiscard]] bool IsFrozen() const { return frozen_ != nullptr && !frozen_->isHidden(); }
  void MakeFrozen();
  void ShowFrozen(int sideways);
  void PlaceFrozen();
  [[nodiscard]] int FrozenWidth() const;

  int frozenColumns_;
  QTableView* frozen_ = nullptr;  // the first columns, on the same model, once they were wanted
  QWidget* dropLine_;             // where dragged rows would land, across all columns
  std::vector<int> widths_;       // of the columns without the spare width
  int letters_;                   // how wide some of them were when the widths were given
  std::map<const TableModel*, ColumnWidths> own_;  // columns that take no part of it
  std::map<const TableModel*, ColumnSet> hidden_;
  std::optional<RowOrder> order_;
  int placeBefore_ = 0;              // where the current row stood before the last change of a sorted view
  std::optional<Edit::Slots> only_;  // the rows shown where others are hidden
};

}  // namespace Ui
