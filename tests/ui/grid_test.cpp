#include "ui/list/grid.h"

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

namespace Ui {
namespace {

class Rows : public TableModel {
 public:
  Rows() : TableModel("^Prog.|<Canale                 |^SID   ", nullptr) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : 10;
  }

 protected:
  [[nodiscard]] QString CellText(int row, int) const override { return QString::number(row); }
  [[nodiscard]] Routines::Colour CellColour(int, int) const override { return Routines::Colours::Tv; }
};

TEST(Grid, ColumnsShareTheSpareWidthExceptThoseThatTheUserHasSet) {
  Rows list;
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
