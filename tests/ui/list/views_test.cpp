// What the user has made of a view stays: where it was left, and how it looks.
#include "ui/list/cell_delegate.h"
#include "ui/window_fixture.h"

namespace Ui {

class Views : public SmallWindow {
 protected:
  // "top/current/selected" of the list that is shown.
  [[nodiscard]] std::string Place() const {
    const Grid& grid = driver_->Grid();
    QStringList selected;
    for (const int row : grid.Selected()) selected += QString::number(row);
    return QString("%1/%2/%3")
        .arg(grid.rowAt(0) + 1)
        .arg(grid.currentIndex().row() + 1)
        .arg(selected.join(','))
        .toStdString();
  }
  void LeaveAt(int top, const Edit::Slots& rows) {
    driver_->Grid().Select(rows);
    driver_->Grid().ScrollToTop(top);
  }
  void Restart() {
    window_->close();
    StartEmpty();
  }
  // The one of a cell that is open.
  [[nodiscard]] QWidget* Editor() const {
    for (auto* editor : driver_->Grid().findChildren<QWidget*>(CellEditorName))
      if (editor->isVisible()) return editor;
    return nullptr;
  }
  [[nodiscard]] QTreeView& Tree() const { return *window_->findChild<QTreeView*>("TreeView1"); }
};

TEST_F(Views, AreLeftAndFoundAgainWithTheSameChannelsSelected) {
  const std::string other = folder_.Write("altra.dat", SmallFlash());
  LeaveAt(300, {2, 5});
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_EQ(Place(), "1/1/");
  driver_->Grid().SelectRow(3);
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  EXPECT_EQ(Place(), "300/2/2,5");
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_EQ(Place(), "1/3/3");
  Open(other, "QuantiCanali_0");
  EXPECT_EQ(Place(), "1/1/") << "another file";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(Place(), "300/2/2,5");
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(Place(), "300/2/2,5") << "the same file, read again";

  Delete(1, 1);
  LeaveAt(100, {2});
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  EXPECT_EQ(Place(), "100/2/") << "another channel stands there";

  LeaveAt(50, {6, 7});
  Tree().collapse(Tree().model()->index(1, 0));
  Restart();
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(Place(), "50/6/6,7");
  EXPECT_TRUE(Tree().isExpanded(Tree().model()->index(0, 0)));
  EXPECT_FALSE(Tree().isExpanded(Tree().model()->index(1, 0)));
}

TEST_F(Views, KeepTheWidthsOfTheirColumnsUntilTheyAreTakenBack) {
  const auto widths = [this](int column) { return driver_->Grid().columnWidth(column); };
  const auto widen = [this](int column, int width) {
    driver_->Grid().horizontalHeader()->resizeSection(column, width);
  };
  const int before = widths(2);
  widen(2, 201);
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_NE(widths(2), 201);
  widen(3, 155);
  Restart();
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(widths(2), 201);
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_EQ(widths(3), 155);
  ASSERT_TRUE(driver_->Choose("LarghezzeIniziali"));
  EXPECT_NE(widths(3), 155);
  StartEmpty();
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(widths(2), before);
}

TEST_F(Views, ColumnsAreHiddenByTheirMenuAndPassedOver) {
  const auto choose = [this](int column, const char* entry) {
    auto* header = driver_->Grid().horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + 5, 5);
    Q_EMIT header->customContextMenuRequested(place);
    auto* menu = window_->findChild<QMenu*>("MenuColonna");
    EXPECT_TRUE(menu->isVisible());
    auto* action = menu->findChild<QAction*>(entry);
    const bool enabled = action->isEnabled();
    action->trigger();
    menu->close();
    return enabled;
  };
  EXPECT_FALSE(choose(0, "NascondiColonna"));
  EXPECT_FALSE(choose(1, "NascondiColonna"));
  driver_->Grid().setCurrentIndex(driver_->Grid().model()->index(0, 2));
  EXPECT_TRUE(choose(2, "NascondiColonna"));
  EXPECT_TRUE(driver_->Grid().isColumnHidden(2));
  window_->resize(1600, 700);
  QTest::qWait(20);
  EXPECT_EQ(driver_->Grid().horizontalHeader()->length(), driver_->Grid().viewport()->width());
  EXPECT_EQ(driver_->Grid().currentIndex().column(), 1);
  QTest::keyClick(&driver_->Grid(), Qt::Key_F2);
  ASSERT_NE(Editor(), nullptr);
  QTest::keyClick(Editor(), Qt::Key_Tab);
  EXPECT_EQ(driver_->Grid().currentIndex().column(), 3) << "the next cell that is seen";
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_FALSE(driver_->Grid().isColumnHidden(2)) << "of this list";
  Restart();
  Open(flash_, "QuantiCanali_0");
  EXPECT_TRUE(driver_->Grid().isColumnHidden(2));
  EXPECT_TRUE(choose(3, "Colonna_2"));
  EXPECT_FALSE(driver_->Grid().isColumnHidden(2));
  EXPECT_GT(driver_->Grid().columnWidth(2), 20);
}

TEST_F(Views, LettersGrowWithTheRowsAndColumnsAndComeBackAtTheNextStart) {
  const auto* grid = &driver_->Grid();
  const auto sizes = [&] {
    return std::array{grid->rowHeight(0), grid->columnWidth(0), Tree().fontMetrics().height(),
                      grid->horizontalHeader()->fontMetrics().height()};
  };
  grid->horizontalHeader()->resizeSection(2, 120);
  const auto usual = sizes();
  for (int i = 0; i < 3; ++i) driver_->Key(Qt::Key_Plus, Qt::ControlModifier);
  const auto large = sizes();
  for (std::size_t i = 0; i < usual.size(); ++i) EXPECT_GT(large[i], usual[i]) << i;
  EXPECT_GT(grid->columnWidth(2), 120);
  Restart();
  Open(flash_, "QuantiCanali_0");
  grid = &driver_->Grid();
  EXPECT_EQ(sizes(), large);
  driver_->Key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_LT(sizes(), large);
  driver_->Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(sizes(), usual);
}

}  // namespace Ui
