#include "ui/list/grid.h"

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <utility>

namespace Ui {
namespace {

// Counts the cells whose text is asked for.
class CountedRows : public TableModel {
 public:
  explicit CountedRows(int rows)
      : TableModel("^Prog.|<Canale                 |^SID   ", nullptr), rows_(rows) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : rows_;
  }
  int TakeCount() { return std::exchange(asked_, 0); }

 protected:
  [[nodiscard]] QString CellText(int row, int) const override {
    ++asked_;
    return QString::number(row);
  }
  [[nodiscard]] Routines::Colour CellColour(int, int) const override { return Routines::Colours::Tv; }

 private:
  int rows_;
  mutable int asked_ = 0;
};

TEST(Grid, OnlyTheRowsInViewAreAskedForHoweverLongTheList) {
  CountedRows list(3996);
  Grid grid(nullptr);
  grid.resize(500, 400);
  grid.show();
  const int rowsInView = grid.height() / grid.verticalHeader()->defaultSectionSize() + 1;
  const int page = rowsInView * list.columnCount();
  const auto painted = [&list] {
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
    return list.TakeCount();
  };
  grid.ShowList(&list);
  const int shown = painted();
  EXPECT_GT(shown, 0);
  EXPECT_LE(shown, 2 * page) << "the first picture";
  Q_EMIT list.dataChanged(list.index(0, 0), list.index(3995, 2));
  EXPECT_LE(painted(), page) << "an edit that says that every row may be another";
  Q_EMIT list.dataChanged(list.index(3000, 0), list.index(3000, 2));
  EXPECT_EQ(painted(), 0) << "a row out of view";
  grid.verticalScrollBar()->setValue(3);
  EXPECT_LE(painted(), 5 * list.columnCount()) << "a turn of the wheel paints the rows that come into view";
}

TEST(Grid, ColumnsShareTheSpareWidthExceptThoseThatTheUserHasSet) {
  CountedRows list(10);
  Grid grid(nullptr);
  grid.resize(500, 400);
  grid.show();
  grid.ShowList(&list);
  const std::vector<int> before = {grid.columnWidth(0), grid.columnWidth(1), grid.columnWidth(2)};
  grid.resize(1500, 400);
  EXPECT_EQ(grid.columnWidth(0), before[0]) << "the number needs no more";
  EXPECT_GT(grid.columnWidth(1) - before[1], grid.columnWidth(2) - before[2]);
  EXPECT_GT(grid.columnWidth(2), before[2]);
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width());
  grid.horizontalHeader()->resizeSection(2, 90);
  grid.resize(1700, 400);
  EXPECT_EQ(grid.columnWidth(2), 90);
  EXPECT_EQ(grid.horizontalHeader()->length(), grid.viewport()->width());
}

}  // namespace
}  // namespace Ui
