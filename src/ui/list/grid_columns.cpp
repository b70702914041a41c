// The columns of a grid: how wide they are, and which are seen.
#include "ui/kit/screen_fit.h"
#include "ui/list/grid.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <numeric>
#include <utility>

namespace Ui {
namespace {

constexpr int CellMargin = 14;
constexpr int TickRoom = 14;
constexpr int Narrowest = 8;
constexpr int Widest = 4000;

}  // namespace

ColumnWidths Grid::WidthsOf(const TableModel& list) const {
  const auto own = own_.find(&list);
  return own == own_.end() ? ColumnWidths() : own->second;
}

void Grid::SetWidths(const TableModel& list, const ColumnWidths& widths) {
  ColumnWidths& own = own_[&list];
  own.clear();
  for (const auto& [column, width] : widths) {
    if (column >= 0 && column < list.columnCount()) own[column] = std::clamp(width, Narrowest, Widest);
  }
  if (&list != model()) return;
  ReadHeader();
  FitColumns();
}

// The widths that the header gives, under those that the user has given.
void Grid::ReadHeader() {
  widths_.clear();
  for (const HeaderColumn& column : List()->Header())
    widths_.push_back(fontMetrics().horizontalAdvance(column.widthText) + CellMargin);
  if (List()->KnowsChannelList()) widths_.front() += TickRoom;
  for (const auto& [column, width] : own_[List()]) widths_[static_cast<std::size_t>(column)] = width;
}

ColumnSet Grid::HiddenOf(const TableModel& list) const {
  const auto hidden = hidden_.find(&list);
  return hidden == hidden_.end() ? ColumnSet() : hidden->second;
}

void Grid::SetHidden(const TableModel& list, ColumnSet columns) {
  std::erase_if(columns, [&list](int column) { return !MayHide(column) || column >= list.columnCount(); });
  hidden_[&list] = std::move(columns);
  if (&list == model()) {
    HideColumns();
    FitColumns();
  }
  Q_EMIT ColumnsChanged();
}

// The current cell is one that is seen.
void Grid::HideColumns() {
  const ColumnSet hidden = HiddenOf(*List());
  {
    const QSignalBlocker quiet(horizontalHeader());  // its width is none that anybody has given it
    for (int column = 0; column < model()->columnCount(); ++column)
      setColumnHidden(column, hidden.contains(column));
  }
  const QModelIndex current = currentIndex();
  if (current.isValid() && hidden.contains(current.column()))
    selectionModel()->setCurrentIndex(current.siblingAtColumn(1), QItemSelectionModel::NoUpdate);
}

// In front of the columns that are scrolled away stand those that are fixed.
void Grid::AskForColumnMenu(QPoint place) {
  const QHeaderView& header =
      IsFrozen() && place.x() < FrozenWidth() ? *frozen_->horizontalHeader() : *horizontalHeader();
  const int column = header.logicalIndexAt(place);
  if (column >= 0) Q_EMIT ColumnMenuWanted(column, horizontalHeader()->mapToGlobal(place));
}

// Columns are as wide as their letters want them, those that the user has set as well. Rounded, so that they have their
// widths again where the letters have their size.
void Grid::FollowLetters() {
  const int before = std::exchange(letters_, Letters(*this, 100));
  for (auto& [list, widths] : own_) {
    for (auto& [column, width] : widths)
      width = std::clamp((width * letters_ + before / 2) / before, Narrowest, Widest);
  }
  if (model() != nullptr) ReadHeader();
  FitColumns();
}

bool Grid::HasOwnWidth(std::size_t column) const {
  const auto own = own_.find(List());
  return column == 0 || (own != own_.end() && own->second.contains(static_cast<int>(column)));
}

std::vector<int> Grid::SharedWidths() const {
  std::vector<int> widths = widths_;
  for (const int column : HiddenOf(*List())) widths[static_cast<std::size_t>(column)] = 0;
  int spare = viewport()->width() - std::accumulate(widths.begin(), widths.end(), 0);
  if (spare <= 0) return widths;
  int sharing = 0;
  for (std::size_t i = 0; i < widths.size(); ++i) sharing += HasOwnWidth(i) ? 0 : widths[i];
  // Each takes its part of what those before it have left, so that no pixel is.
  for (std::size_t i = 0; i < widths.size(); ++i) {
    if (HasOwnWidth(i)) continue;
    const int share = spare * widths[i] / std::max(sharing, 1);
    sharing -= widths[i];
    widths[i] += share;
    spare -= share;
  }
  return widths;
}

void Grid::FitColumns() {
  if (widths_.empty() || !isVisible()) return;
  const std::vector<int> widths = SharedWidths();
  {
    // Told of each width, the view would paint once before and once after it has taken them in.
    const QSignalBlocker quiet(horizontalHeader());
    for (std::size_t i = 0; i < widths.size(); ++i) {
      if (widths[i] > 0) setColumnWidth(static_cast<int>(i), widths[i]);
    }
  }
  updateGeometries();
  viewport()->update();
  PlaceFrozen();
}

// A column that the user has made wider or narrower keeps that width when the window changes its own.
void Grid::KeepWidth(int column, int width) {
  if (static_cast<std::size_t>(column) >= widths_.size() || width == 0) return;
  widths_[static_cast<std::size_t>(column)] = width;
  own_[List()][column] = width;
  PlaceFrozen();
  Q_EMIT ColumnsChanged();
}

}  // namespace Ui
