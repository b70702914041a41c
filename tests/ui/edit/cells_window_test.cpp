// Editing in the grid and its popup menu.
#include "ui/window_fixture.h"

namespace Ui {

class Cells : public SmallWindow {
 protected:
  // Types into the cell of a row, counted as the user does, and ends with a key. The editor stays open where refused.
  bool Type(int row, int column, const QString& text, Qt::Key end = Qt::Key_Return) {
    Grid().setFocus();
    Grid().setCurrentIndex(Grid().model()->index(row - 1, column));
    driver_->Key(Qt::Key_F2);
    QWidget* editor = QApplication::focusWidget();
    if (editor == &Grid()) return false;
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    if (auto* field = qobject_cast<QLineEdit*>(editor)) field->insert(text);
    if (auto* list = qobject_cast<QComboBox*>(editor); list && list->isEditable())
      list->lineEdit()->insert(text);
    QTest::keyClick(editor, end);
    return true;
  }
  Ui::Grid& Grid() { return driver_->Grid(); }
  bool Editing() {
    const auto editors = Grid().findChildren<QWidget*>("ModificaCella");
    return std::any_of(editors.begin(), editors.end(),
                       [](const QWidget* editor) { return editor->isVisible(); });
  }
};

TEST_F(Cells, TakeWhatIsTypedOrKeepWhatTheyHad) {
  ASSERT_TRUE(Type(2, 1, "Città Mia"));
  EXPECT_EQ(driver_->Cell(2, 1), "Città Mia");
  EXPECT_EQ(Said(), "Modificato Due (2), Nome: Città Mia");
  EXPECT_EQ(Action("Annulla").text(), "Annulla: Modificato Due (2), Nome: Città Mia");
  ASSERT_TRUE(Type(2, 3, "70000"));
  EXPECT_TRUE(Editing()) << "a refused value can be mended";
  EXPECT_EQ(Said(), "Non modificato: Serve un numero da 0 a 65535, con sole cifre decimali");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  ASSERT_TRUE(Type(2, 10, "", Qt::Key_Tab));
  EXPECT_EQ(Grid().currentIndex().row() + 1, 3) << "on to the name in the next row";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(Editing()) << "nothing typed, nothing refused";
  ASSERT_TRUE(driver_->Press("Toolbar1_TRANSPONDERS"));
  EXPECT_FALSE(Type(1, 10, "Mio")) << "bouquets are looked up";
}

TEST_F(Cells, ListsOfChoicesAreTypedIntoToo) {
  ASSERT_TRUE(Type(2, 2, "3"));
  EXPECT_EQ(driver_->Cell(2, 2), "003");
  Grid().setCurrentIndex(Grid().model()->index(1, 9));
  QTest::keyClick(&Grid(), 'A');
  QTest::keyClick(QApplication::focusWidget(), '4');
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  EXPECT_EQ(driver_->Cell(2, 9), "A4") << "although the list has popped up";
  Click(Grid(), Grid().model()->index(1, 10), true);
  EXPECT_EQ(driver_->Cell(2, 10), "N");
}

TEST_F(Cells, ACommandTakesWhatIsBeingTypedIntoItsOwnList) {
  const auto transponders = List().TransponderTable;
  ASSERT_TRUE(Type(3, 3, "1234", Qt::Key_End));
  ASSERT_TRUE(driver_->Press("Toolbar1_TRANSPONDERS"));
  EXPECT_EQ(Said(), "Modificato Tre (3), SID: 1234");
  EXPECT_EQ(List().TransponderTable, transponders);
  ASSERT_TRUE(Type(1, 2, "777", Qt::Key_End));
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  EXPECT_EQ(Said(), "Modificato il transponder 1, TID: 777");
}

TEST_F(Cells, ThePopupMenuWorksOnAllSelectedRows) {
  const auto trigger = [this](const char* action) {
    driver_->OpenMenu();
    Action(action).trigger();
    window_->findChild<QMenu*>("MenuCanali")->close();
  };
  Grid().Select({1, 4, 6});
  trigger("Disattiva");
  EXPECT_EQ(Said(), "Disattivati 2 canali: Uno, Città HD") << "one of the three is empty";
  EXPECT_EQ(driver_->Cell(5, 10), "S") << "between them";
  trigger("AggiungiPreferiti_2");
  trigger("InserisciRiga");
  EXPECT_EQ(Names(1, 9), ",Uno,Due,Tre,,,Cinque,,Città HD") << "one in front of each";
  EXPECT_EQ(Routines::FavouriteEntriesOf(List().FavouritesBlock, 1), std::vector<int>({13, 2, 9}));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  driver_->SelectRows(3, 5);
  EXPECT_TRUE(driver_->Cell(4, 1).isEmpty());
  trigger("Codifica_44");
  EXPECT_EQ(driver_->Cell(5, 9), "44");
  driver_->ExpectLine("Inserire la codifica, due cifre esadecimali", "XY");
  driver_->ExpectMessage("Servono due cifre esadecimali, per esempio 24, o una codifica dell'elenco");
  trigger("Codifica_altra");
  driver_->ExpectDialog("Trovalis", [](QDialog& box) {
    auto* choice = box.findChild<QComboBox*>();
    EXPECT_TRUE(choice->currentText().startsWith("001 ")) << "the transponder it has";
    choice->setCurrentIndex(choice->findText("003 ", Qt::MatchStartsWith));
    EXPECT_EQ(qobject_cast<QInputDialog*>(&box)->labelText(), "Transponder dei canali da 3 a 5");
    box.accept();
  });
  trigger("ImpostaTransponder");
  EXPECT_EQ(driver_->Cell(3, 2) + driver_->Cell(5, 2), "003003");
  trigger("InserisciRiga");
  EXPECT_EQ(Names(2, 8), "Due,,,,Tre,,Cinque");
  EXPECT_EQ(Routines::FavouriteEntriesOf(List().FavouritesBlock, 0), std::vector<int>({2, 6, 8}))
      << "favourites follow";
  driver_->SelectRows(6, 6);
  trigger("VaiAlTransponder");
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(Grid().Selected().front(), 3);
}

}  // namespace Ui
