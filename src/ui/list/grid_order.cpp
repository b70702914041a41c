// The order in which a grid shows its rows. They keep their numbers whatever it is: only the places of the vertical header
// change, so that a row is its slot for everybody else.
#include "ui/list/grid.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <numeric>

namespace Ui {

void Grid::SortView(int column, bool descending) {
  if (model() == nullptr) return;
  order_.emplace(*List(), column, descending);
  Arrange();
  if (selectionModel()->hasSelection()) {
    scrollTo(currentIndex(), PositionAtCenter);
  } else {
    SelectFirstPlace();
  }
  Q_EMIT ViewSorted();
}

void Grid::SelectFirstPlace() {
  const int row = ShownNear(RowAt(1));
  if (row != 0) selectionModel()->setCurrentIndex(model()->index(row - 1, 1), QItemSelectionModel::NoUpdate);
  verticalScrollBar()->setValue(0);
}

void Grid::ShowListOrder() {
  if (!order_) return;
  order_.reset();
  Arrange();
  scrollTo(currentIndex(), PositionAtCenter);
  Q_EMIT ViewSorted();
}

void Grid::SortAgain() {
  if (!order_) return;
  placeBefore_ = PlaceOf(currentIndex().row() + 1);
  for (const int row : Selected()) placeBefore_ = std::min(placeBefore_, PlaceOf(row));
  if (order_->ReadAgain()) Arrange();
}

QString Grid::SortMark(int column) const {
  if (!order_ || order_->Column() != column) return {};
  return order_->Descending() ? "▼ " : "▲ ";
}

void Grid::Arrange() {
  ArrangeRowsOf(*this);
  if (IsFrozen()) ArrangeRowsOf(*frozen_);
}

// What the order says; of the columns in front, what the grid shows, which lets a row that has just been edited stay
// where it was. Two at a time: a row that is moved would take all those behind it along.
void Grid::ArrangeRowsOf(QTableView& view) {
  QHeaderView& header = *view.verticalHeader();
  view.horizontalHeader()->viewport()->update();
  if (!order_ && !header.sectionsMoved()) return;
  std::vector<int> rows = order_ && &view == this ? order_->Rows() : std::vector<int>();
  if (&view == frozen_) {
    for (int place = 1; place <= header.count(); ++place) rows.push_back(RowAt(place) - 1);
  } else if (static_cast<int>(rows.size()) != header.count()) {
    rows.resize(static_cast<std::size_t>(header.count()));
    std::iota(rows.begin(), rows.end(), 0);
  }
  {
    // Told of each row, the view would lay itself out as often.
    const QSignalBlocker quiet(&header);
    for (int place = 0; place < header.count(); ++place) {
      const int from = header.visualIndex(rows[static_cast<std::size_t>(place)]);
      if (from != place) header.swapSections(from, place);
    }
  }
  view.doItemsLayout();
}

int Grid::PlaceOf(int row) const { return verticalHeader()->visualIndex(row - 1) + 1; }

int Grid::RowAt(int place) const { return verticalHeader()->logicalIndex(place - 1) + 1; }

}  // namespace Ui
