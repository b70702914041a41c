// The rows of a grid: which are selected, and which are shown.
#include "ui/list/grid.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace Ui {

Edit::Slots Grid::Selected() const {
  Edit::Slots rows;
  if (selectionModel() == nullptr) return rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row + 1);
  }
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

GridPlace Grid::Place() const {
  if (model() == nullptr) return {};
  GridPlace place = {TopInListOrder(), horizontalScrollBar()->value(), currentIndex().row() + 1,
                     currentIndex().column(), Selected()};
  place.fingerprint = List()->Fingerprint(place.selected);
  return place;
}

// Which row is to be the first one in the list's own order, in which it is seen again: the current one then stands as
// far down as it does now.
int Grid::TopInListOrder() const {
  const int top = rowAt(0) + 1;
  const QModelIndex current = currentIndex();
  if (!order_ || !current.isValid()) return top;
  const QRect cell = visualRect(current);
  const int above = viewport()->rect().intersects(cell) ? cell.top() / std::max(cell.height(), 1) : 0;
  return std::max(current.row() + 1 - above, 1);
}

// Of what is hidden nothing is selected or current.
void Grid::ComeBackTo(const GridPlace& place) {
  const int rows = model()->rowCount();
  if (rows == 0) return;
  updateGeometries();  // the scroll bars have to reach there
  const bool fits = place.selected.empty() || place.selected.back() <= rows;
  if (fits && List()->Fingerprint(place.selected) == place.fingerprint) {
    Edit::Slots shown = place.selected;
    std::erase_if(shown, [this](int row) { return isRowHidden(row - 1); });
    selectionModel()->select(SelectionOf(shown), QItemSelectionModel::ClearAndSelect);
  }
  const int row = ShownNear(std::clamp(place.row, 1, rows));
  const int column = std::clamp(place.column, 0, model()->columnCount() - 1);
  selectionModel()->setCurrentIndex(model()->index(row - 1, column), QItemSelectionModel::NoUpdate);
  ScrollToTop(std::clamp(place.top, 1, rows));
  horizontalScrollBar()->setValue(place.sideways);
}

QItemSelection Grid::SelectionOf(const Edit::Slots& rows) const {
  QItemSelection selection;
  const int lastColumn = model()->columnCount() - 1;
  for (std::size_t i = 0, run = 0; i < rows.size(); ++i) {
    if (i + 1 < rows.size() && rows[i + 1] == rows[i] + 1) continue;
    selection.append({model()->index(rows[run] - 1, 0), model()->index(rows[i] - 1, lastColumn)});
    run = i + 1;
  }
  return selection;
}

void Grid::Select(const Edit::Slots& rows) {
  if (rows.empty()) return clearSelection();
  if (std::any_of(rows.begin(), rows.end(), [this](int row) { return isRowHidden(row - 1); }))
    Q_EMIT HiddenWanted();
  const QModelIndex first = model()->index(rows.front() - 1, 1);
  const int sideways = horizontalScrollBar()->value();
  selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
  selectionModel()->select(SelectionOf(rows), QItemSelectionModel::ClearAndSelect);
  // All of them where they fit, else the first ones.
  scrollTo(model()->index(rows.back() - 1, 1));
  scrollTo(first);
  horizontalScrollBar()->setValue(sideways);
}

void Grid::SelectInMiddle(int row) {
  SelectRow(row);
  scrollTo(currentIndex(), PositionAtCenter);
}

void Grid::SelectUnseen(const Edit::Slots& rows) {
  selectionModel()->select(SelectionOf(rows), QItemSelectionModel::ClearAndSelect);
}

void Grid::ShowInMiddle(int row) {
  if (const int near = ShownNear(row); near != 0) scrollTo(model()->index(near - 1, 1), PositionAtCenter);
}

void Grid::selectAll() {
  if (selectionModel() == nullptr) return;
  Edit::Slots used;
  for (int row = 1; row <= model()->rowCount(); ++row) {
    if (List()->Used(row) && !isRowHidden(row - 1)) used.push_back(row);
  }
  selectionModel()->select(SelectionOf(used), QItemSelectionModel::ClearAndSelect);
}

// Shift selects a range and nothing else, with Ctrl beside what was selected before; the toolkit's keys take Ctrl for
// going on without a selection, even then.
QItemSelectionModel::SelectionFlags Grid::selectionCommand(const QModelIndex& index,
                                                           const QEvent* event) const {
  using Flags = QItemSelectionModel;
  const bool input = event != nullptr && event->isInputEvent();
  const Qt::KeyboardModifiers keys =
      input ? static_cast<const QInputEvent*>(event)->modifiers() : QGuiApplication::keyboardModifiers();
  const bool beside = (keys & Qt::ControlModifier) != 0;
  if (input && event->type() == QEvent::KeyPress && beside && (keys & Qt::ShiftModifier) != 0)
    return Flags::SelectCurrent | Flags::Rows;
  const auto command = QTableView::selectionCommand(index, event);
  return command.testFlags(Flags::SelectCurrent) && !beside ? command | Flags::Clear : command;
}

// The toolkit would open the editor of the cell.
void Grid::keyPressEvent(QKeyEvent* event) {
  const bool toggle = event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier;
  if (!toggle || !currentIndex().isValid()) return QTableView::keyPressEvent(event);
  selectionModel()->select(currentIndex(), QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
}

// A rectangle takes what is seen in it: no row that is hidden, and where the view is sorted those that stand there.
void Grid::setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command) {
  if (!only_ && !verticalHeader()->sectionsMoved()) return QTableView::setSelection(area, command);
  const int first = PlaceOf(rowAt(std::min(area.top(), area.bottom())) + 1);
  const int last = PlaceOf(rowAt(std::max(area.top(), area.bottom())) + 1);
  if (first < 1 || last < 1) return;
  Edit::Slots rows;
  for (int place = first; place <= last; ++place) {
    if (!isRowHidden(RowAt(place) - 1)) rows.push_back(RowAt(place));
  }
  std::sort(rows.begin(), rows.end());
  selectionModel()->select(SelectionOf(rows), command);
}

// Where the view is sorted, the row that stands now where the current one stood.
void Grid::SelectNear(int row) {
  const int wanted = order_ && placeBefore_ > 0 ? RowAt(std::min(placeBefore_, model()->rowCount())) : row;
  const int near = ShownNear(wanted);
  Select(near == 0 ? Edit::Slots() : Edit::Slots{near});
}

// The row itself, else the next one below, else the last one above; 0 where none is shown.
int Grid::ShownNear(int row) const {
  const int rows = model()->rowCount();
  const int place = row > rows ? rows : PlaceOf(row);
  for (int below = place; below > 0 && below <= rows; ++below) {
    if (!isRowHidden(RowAt(below) - 1)) return RowAt(below);
  }
  for (int above = place; above > 0; --above) {
    if (!isRowHidden(RowAt(above) - 1)) return RowAt(above);
  }
  return 0;
}

void Grid::ScrollToTop(int slot) {
  int above = 0;
  for (int place = 1; place < PlaceOf(slot); ++place) above += isRowHidden(RowAt(place) - 1) ? 0 : 1;
  verticalScrollBar()->setValue(above);
}

int Grid::HiddenRows() const {
  return only_ && model() != nullptr ? model()->rowCount() - static_cast<int>(only_->size()) : 0;
}

void Grid::ShowOnly(std::optional<Edit::Slots> rows) {
  if (model() == nullptr || (!rows && !only_)) return;
  const bool others = rows.has_value() != only_.has_value();
  only_ = std::move(rows);
  HideRowsOf(*this);
  if (IsFrozen()) HideRowsOf(*frozen_);
  LeaveHiddenRows();
  if (others) scrollTo(currentIndex());
}

void Grid::HideRowsOf(QTableView& view) {
  auto shown = only_ ? only_->begin() : Edit::Slots::const_iterator();
  bool changed = false;
  {
    // Told of each row, the view would lay itself out as often.
    const QSignalBlocker quiet(view.verticalHeader());
    for (int row = 0; row < model()->rowCount(); ++row) {
      const bool hide = only_ && (shown == only_->end() || *shown != row + 1);
      if (only_ && !hide) ++shown;
      if (view.isRowHidden(row) == hide) continue;
      view.setRowHidden(row, hide);
      changed = true;
    }
  }
  if (changed) view.doItemsLayout();
}

// A command must not act on what nobody sees.
void Grid::LeaveHiddenRows() {
  Edit::Slots hidden = Selected();
  std::erase_if(hidden, [this](int row) { return !isRowHidden(row - 1); });
  if (!hidden.empty()) selectionModel()->select(SelectionOf(hidden), QItemSelectionModel::Deselect);
  if (!currentIndex().isValid() || !isRowHidden(currentIndex().row())) return;
  const int near = ShownNear(currentIndex().row() + 1);
  if (near != 0)
    selectionModel()->setCurrentIndex(model()->index(near - 1, 1), QItemSelectionModel::NoUpdate);
}

}  // namespace Ui
