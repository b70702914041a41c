#include "model/symbol_rates.h"
#include "ui/list/list_model.h"
#include "ui/sources/sdx_model.h"
#include "ui/window_fixture.h"

namespace Ui {
namespace {

class Rows : public TableModel {
 public:
  Rows() : TableModel("^Prog.|<Canale                 |^SID   ", nullptr) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : 10;
  }
  [[nodiscard]] bool Used(int row) const override { return row != 4; }

 protected:
  [[nodiscard]] QString CellText(int row, int) const override { return QString::number(row); }
  [[nodiscard]] Colour CellColour(int, int) const override { return {}; }
};

// What a column says of its rows, divided by blanks: colours as they are told, blue first, with a star where the text is
// white, and the words for those who do not see them.
std::string Colours(const TableModel& list, int column) {
  QStringList colours;
  for (int row = 0; row < list.rowCount(); ++row) {
    const QModelIndex cell = list.index(row, column);
    const QRgb ground = cell.data(Qt::BackgroundRole).value<QBrush>().color().rgb();
    const bool white = cell.data(Qt::ForegroundRole).value<QBrush>().color() == Qt::white;
    colours += QString("%1%2")
                   .arg(qRgb(qBlue(ground), qGreen(ground), qRed(ground)) & 0xFFFFFFU, 6, 16, QChar('0'))
                   .arg(white ? "*" : "");
  }
  return colours.join(' ').toUpper().toStdString();
}

QString Words(const TableModel& list) {
  QStringList words;
  for (int row = 0; row < list.rowCount(); ++row)
    words += list.index(row, 1).data(Qt::AccessibleDescriptionRole).toString();
  return words.join(';');
}

TEST(Grid, EachKindOfRowHasItsColourAndItsWord) {
  using namespace Samples;
  Document document;
  document.Adjust([](Routines::State& state) {
    PlaceUsualRates(state.SymbolRateTable = Routines::EmptySymbolRateTable(), Routines::Sr22000::Come2);
    state.ChannelCount = 5;
    state.Channel(1) = MakeChannel("Uno", 1, 1, 512, 650);
    state.Channel(2) = MakeChannel("Due", 1, 2, 0, 650);
    state.Channel(3) = MakeChannel("Tre", 1, 3, 65535, 0);
    state.Channel(4) = MakeChannel("Quattro", 1, 4, 512, 650, 0x20);
    state.TransponderCount = 7;
    for (int slot = 1; const int megahertz : {12750, 10699, 10700, 12751, 12092})
      state.Transponder(slot++).record = MakeTransponder(megahertz, true, 1, 3, 5);
    Set(state.Transponder(5).record, Routines::TransponderField::SymbolRate, 16);  // none of the table
    state.Transponder(7).record.bytes[1] = 1;
  });
  const ListModel channels(document, ListModel::Channels, nullptr);
  EXPECT_EQ(Colours(channels, 0), "C0FFC0 C0FFC0 C0FFC0 C0FFC0 C0FFC0");
  EXPECT_EQ(Colours(channels, 1), "00FFFF FFFF80 FF80FF C0C0C0 E0E0E0");
  EXPECT_EQ(Words(channels), "TV;Radio;Servizio;Non attivo;Posto vuoto");
  const ListModel transponders(document, ListModel::Transponders, nullptr);
  EXPECT_EQ(Colours(transponders, 1), "FFFFFF 8080FF FFFFFF 8080FF 8080FF 008000* 008000*");
  EXPECT_EQ(Colours(transponders, 2), "FFFFFF 8080FF FFFFFF 8080FF 8080FF FFFFFF 8080FF");
  EXPECT_TRUE(Words(transponders).startsWith(";Fuori banda o senza SR;;") &&
              Words(transponders).contains(";Posto libero;"));
  EXPECT_EQ(transponders.index(6, 1).data(), "0") << "the cell goes by the first byte, the row by all four";
  Formats::SdxTable table;
  for (const char type : {'T', 'R', 'S'}) table.rows.emplace_back().type = type;
  SdxModel sdx(table, nullptr);
  sdx.Refresh();
  EXPECT_EQ(Colours(sdx, 1), "80FFFF FFFFC0 FFC0FF");
}

TEST(Grid, SingleRowsAndRangesAreAddedAndTakenAwayByMouseAndKeys) {
  Rows list;
  Grid grid(nullptr);
  grid.resize(500, 600);
  grid.show();
  grid.ShowList(&list);
  const auto click = [&](int row, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, keys,
                      grid.visualRect(list.index(row - 1, 1)).center());
    return grid.Selected();
  };
  const auto press = [&](Qt::Key key, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(&grid, key, keys);
    return grid.Selected();
  };
  using Slots = Edit::Slots;
  constexpr auto Ctrl = Qt::ControlModifier;
  constexpr auto Shift = Qt::ShiftModifier;
  EXPECT_EQ(click(9), Slots({9}));
  EXPECT_EQ(click(2, Ctrl), Slots({2, 9}));
  EXPECT_EQ(click(4, Ctrl | Shift), Slots({2, 3, 4, 9}));
  EXPECT_EQ(click(3, Ctrl), Slots({2, 4, 9})) << "one that is selected, which a drag could begin on";
  EXPECT_EQ(press(Qt::Key_Down, Ctrl), Slots({2, 4, 9})) << "the current row goes on alone";
  EXPECT_EQ(press(Qt::Key_Down, Ctrl), Slots({2, 4, 9}));
  EXPECT_EQ(press(Qt::Key_Space, Ctrl), Slots({2, 4, 5, 9}));
  EXPECT_EQ(press(Qt::Key_Down, Ctrl | Shift), Slots({2, 4, 5, 6, 9}));
  EXPECT_EQ(press(Qt::Key_Up, Ctrl), Slots({2, 4, 5, 6, 9}));
  EXPECT_EQ(press(Qt::Key_Space, Ctrl), Slots({2, 4, 6, 9}));
  EXPECT_EQ(click(8, Shift), Slots({5, 6, 7, 8})) << "a range is the selection";
  EXPECT_EQ(click(6), Slots({6})) << "as is a row, selected or not";
  EXPECT_EQ(press(Qt::Key_Down, Shift), Slots({6, 7}));
  EXPECT_EQ(press(Qt::Key_A, Ctrl), Slots({1, 2, 3, 5, 6, 7, 8, 9, 10})) << "but what is empty";
  grid.Select({2, 3, 7});
  EXPECT_EQ(grid.Selected(), Slots({2, 3, 7}));
  EXPECT_EQ(grid.currentIndex().row(), 1);
}

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
  grid.resizeColumnToContents(2);
  EXPECT_GT(grid.columnWidth(2), grid.fontMetrics().horizontalAdvance("SID"))
      << "its title is wider than its cells";
}

}  // namespace

TEST_F(SmallWindow, AClosedListIsNotSeenAndTheFirstColumnOfAnOpenOneStays) {
  auto* grid = window_->findChild<Ui::Grid*>("Griglia");
  EXPECT_FALSE(grid->selectionModel()->hasSelection());
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  EXPECT_FALSE(grid->isVisible());
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  const QAbstractItemModelTester tester(grid->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(grid->model()->rowCount(), 999);
  window_->resize(700, 700);
  QTest::qWait(20);
  // Scrolled down before the column is fixed, and while it is.
  grid->verticalScrollBar()->setValue(200);
  grid->horizontalScrollBar()->setValue(grid->horizontalScrollBar()->maximum());
  auto* fixed = grid->findChild<QTableView*>("ColonnaFissa");
  ASSERT_NE(fixed, nullptr);
  EXPECT_TRUE(fixed->isVisible());
  EXPECT_EQ(fixed->geometry().right() + 1, grid->viewport()->geometry().left() + grid->columnWidth(0));
  EXPECT_EQ(grid->rowAt(5), 200);
  EXPECT_EQ(fixed->indexAt(QPoint(5, 5)), grid->model()->index(200, 0));
  grid->verticalScrollBar()->setValue(300);
  EXPECT_EQ(fixed->indexAt(QPoint(5, 5)), grid->model()->index(300, 0));
}

}  // namespace Ui
