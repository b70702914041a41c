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
  // By the menu of a column's title; whether it can be chosen.
  bool ChooseForColumn(int column, const char* entry) {
    auto* header = driver_->Grid().horizontalHeader();
    Q_EMIT header->customContextMenuRequested(QPoint(header->sectionViewportPosition(column) + 5, 5));
    auto* menu = window_->findChild<QMenu*>("MenuColonna");
    EXPECT_TRUE(menu->isVisible());
    auto* action = window_->findChild<QAction*>(entry);
    const bool enabled = action->isEnabled();
    action->trigger();
    menu->close();
    return enabled;
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

  driver_->Grid().SelectRow(1);
  ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
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
  EXPECT_FALSE(ChooseForColumn(0, "NascondiColonna"));
  EXPECT_FALSE(ChooseForColumn(1, "NascondiColonna"));
  driver_->Grid().setCurrentIndex(driver_->Grid().model()->index(0, 2));
  EXPECT_TRUE(ChooseForColumn(2, "NascondiColonna"));
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
  EXPECT_TRUE(ChooseForColumn(3, "Colonna_2"));
  EXPECT_FALSE(driver_->Grid().isColumnHidden(2));
  EXPECT_GT(driver_->Grid().columnWidth(2), 20);
}

TEST_F(Views, RowsOfASortedViewStayWhatTheyAreInTheList) {
  Grid& grid = driver_->Grid();
  const auto shown = [&grid](int places) {
    Edit::Slots rows;
    for (int place = 1; place <= places; ++place) rows.push_back(grid.RowAt(place));
    return rows;
  };
  const auto said = [this](const char* wanted) { return Said().find(wanted) != std::string::npos; };
  using Slots = Edit::Slots;
  const Routines::State before = List();
  ChooseForColumn(1, "OrdinaVista");
  EXPECT_TRUE(said("Vista ordinata per Canale; la lista non è cambiata"));
  EXPECT_EQ(shown(13), Slots({5, 6, 10, 12, 2, 11, 9, 8, 7, 3, 1, 4, 13})) << "empty ones last";
  EXPECT_TRUE(List() == before);
  EXPECT_EQ(Place(), "5/5/");
  for (const char* command : {"Toolbar1_Paste", "ChiudiVuoti"})
    Tells(command,
          "Con la vista ordinata non si vedono i posti della lista: prima si deve tornare all'ordine della "
          "lista (Ctrl+Shift+L)");
  // Keys and mouse go by what is seen.
  QTest::keyClick(&grid, Qt::Key_Down);
  QTest::keyClick(&grid, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(grid.Selected(), Slots({6, 10}));
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                    grid.visualRect(grid.model()->index(1, 1)).center());
  EXPECT_EQ(grid.Selected(), Slots({2, 6, 10, 12}));
  Delete(10, 10);
  EXPECT_EQ(Names(9, 11), "Radio Nove,due,Dodici");
  EXPECT_EQ(shown(4), Slots({5, 6, 11, 2}));
  EXPECT_EQ(grid.Selected(), Slots({11})) << "what stands there now";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  grid.Select({6, 10, 12});
  grid.selectionModel()->setCurrentIndex(grid.model()->index(11, 1), QItemSelectionModel::NoUpdate);
  ASSERT_TRUE(driver_->Choose("Elimina"));
  EXPECT_EQ(grid.Selected(), Slots({grid.RowAt(2)})) << "where the first of them stood";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  grid.SelectRow(10);
  EXPECT_EQ(grid.Selected(), Slots({10}));
  EXPECT_EQ(shown(4), Slots({5, 6, 10, 12}));
  // A row that is edited stays under the hand; the next one is the one below.
  const auto type = [&](int column, const char* text) {
    grid.setCurrentIndex(grid.model()->index(4, column));
    QTest::keyClick(&grid, Qt::Key_F2);
    QTest::keyClicks(Editor(), text);
    QTest::keyClick(Editor(), Qt::Key_Return);
  };
  type(1, "Zeta");
  EXPECT_EQ(Names(5, 5), "Zeta");
  EXPECT_EQ(shown(2), Slots({5, 6}));
  grid.horizontalHeader()->resizeSection(2, 3000);
  grid.horizontalScrollBar()->setValue(500);
  const auto* numbers = grid.findChild<QTableView*>("ColonnaFissa");
  ASSERT_TRUE(numbers->isVisible());
  for (int place = 1; place <= 13; ++place)
    EXPECT_EQ(numbers->verticalHeader()->logicalIndex(place - 1) + 1, grid.RowAt(place)) << place;
  grid.horizontalScrollBar()->setValue(0);
  type(3, "99");
  auto* filter = window_->findChild<QLineEdit*>("Filtro");
  QTest::keyClicks(filter, "radio");
  EXPECT_EQ(grid.Selected(), Slots({9})) << "the first that is seen, not the first of the list";
  QTest::keyClick(filter, Qt::Key_Return);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "2 di 2");
  EXPECT_EQ(grid.Selected(), Slots({8}));
  ASSERT_TRUE(driver_->Choose("SoloITrovati"));
  ChooseForColumn(3, "OrdinaVistaIndietro");
  EXPECT_EQ(grid.Selected(), Slots({8}));
  ASSERT_TRUE(driver_->Choose("SoloITrovati"));
  EXPECT_EQ(shown(3), Slots({12, 11, 10}));
  EXPECT_EQ(grid.RowAt(11), 5) << "99 is less than 101";
  ASSERT_TRUE(driver_->Choose("OrdineDellaLista"));
  EXPECT_EQ(shown(3), Slots({1, 2, 3}));
  EXPECT_EQ(driver_->TextOf("RigheNascoste"), "");
  ChooseForColumn(1, "OrdinaVista");
  grid.SelectRow(2);
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  EXPECT_EQ(Place(), "1/2/2") << "in sight, whatever stood above it";
  ChooseForColumn(1, "OrdinaVista");
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(shown(3), Slots({1, 2, 3})) << "read again";
}

TEST_F(Views, LettersGrowWithTheRowsAndColumnsAndComeBackAtTheNextStart) {
  const auto* grid = &driver_->Grid();
  const auto sizes = [&] {
    return std::array{grid->rowHeight(0), grid->columnWidth(0), Tree().fontMetrics().height(),
                      grid->horizontalHeader()->viewport()->fontMetrics().height()};
  };
  grid->horizontalHeader()->resizeSection(2, 131);
  const auto usual = sizes();
  for (int i = 0; i < 3; ++i) driver_->Key(Qt::Key_Plus, Qt::ControlModifier);
  const auto large = sizes();
  for (std::size_t i = 0; i < usual.size(); ++i) EXPECT_GT(large[i], usual[i]) << i;
  EXPECT_GT(grid->columnWidth(2), 131);
  Restart();
  Open(flash_, "QuantiCanali_0");
  grid = &driver_->Grid();
  EXPECT_EQ(sizes(), large);
  driver_->Key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_LT(sizes(), large);
  driver_->Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(sizes(), usual);
  EXPECT_EQ(grid->columnWidth(2), 131);
}

}  // namespace Ui
