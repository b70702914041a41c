// Editing in the grid, the popup menu and the window of the favourites lists.
#include "model/favourites.h"
#include "ui/window_fixture.h"

namespace Ui {

class Cells : public Window {
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
  std::vector<int> Entries(std::size_t list) {
    return Routines::FavouriteEntriesOf(List().FavouritesBlock, list);
  }
};

TEST_F(Cells, TakeWhatIsTypedOrKeepWhatTheyHad) {
  const Routines::State before = List();
  ASSERT_TRUE(Type(2, 1, "Città Mia"));
  EXPECT_EQ(driver_->Cell(2, 1), "Città Mia");
  EXPECT_EQ(Said(), "Canale 2, Nome: Città Mia");
  EXPECT_EQ(Action("Annulla").text(), "Annulla Modifica Nome");

  ASSERT_TRUE(Type(2, 4, "70000"));
  EXPECT_TRUE(Editing()) << "a refused value can be mended";
  EXPECT_EQ(Said(), "Non modificato: Serve un numero da 0 a 65535, con sole cifre decimali");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  ASSERT_TRUE(Type(2, 2, "19"));
  EXPECT_EQ(driver_->Cell(2, 2), "019");
  Grid().setCurrentIndex(Grid().model()->index(1, 9));
  QTest::keyClick(&Grid(), 'A');
  QTest::keyClick(QApplication::focusWidget(), '4');
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  EXPECT_EQ(driver_->Cell(2, 9), "A4") << "by typing alone, although the list has popped up";
  ASSERT_TRUE(Type(2, 10, "", Qt::Key_Tab));
  EXPECT_EQ(driver_->Grid().currentIndex().row() + 1, 3) << "on to the name in the next row";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(Editing()) << "nothing typed, nothing refused";

  Click(Grid(), Grid().model()->index(1, 10), true);
  EXPECT_EQ(driver_->Cell(2, 10), "N");
  const auto transponders = List().TransponderTable;
  ASSERT_TRUE(Type(3, 3, "1234", Qt::Key_End));
  ASSERT_TRUE(driver_->Press("Toolbar1_TRANSPONDERS"));
  EXPECT_EQ(Said(), "Canale 3, SID: 1234") << "a command takes what is being typed, into its own list";
  EXPECT_EQ(List().TransponderTable, transponders);
  ASSERT_TRUE(Type(1, 1, "11000"));
  EXPECT_EQ(driver_->Cell(1, 1), "11000");
  EXPECT_FALSE(Type(1, 10, "Mio")) << "bouquets are looked up";
  while (Action("Annulla").text() != "Annulla Apri Flash") ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(List(), before);
}

TEST_F(Cells, ThePopupMenuWorksOnAllSelectedRows) {
  const auto trigger = [this](const char* action) {
    driver_->OpenMenu();
    Action(action).trigger();
    window_->findChild<QMenu*>("MenuCanali")->close();
  };
  driver_->SelectRows(19, 22);
  trigger("Disattiva");
  EXPECT_EQ(Said(), "Attivo N: 2 canali") << "two of the four are empty";
  EXPECT_TRUE(driver_->Cell(20, 1).isEmpty());
  trigger("Codifica_44");
  EXPECT_EQ(driver_->Cell(22, 9), "44");
  driver_->ExpectLine("Inserire la codifica, due cifre esadecimali", "XY");
  driver_->ExpectMessage("Servono due cifre esadecimali, per esempio 24, o una codifica dell'elenco");
  trigger("Codifica_altra");
  driver_->ExpectDialog("Trovalis", [](QDialog& box) {
    auto* choice = box.findChild<QComboBox*>();
    EXPECT_TRUE(choice->currentText().startsWith("050 ")) << "the transponder it has";
    choice->setCurrentIndex(choice->findText("018 ", Qt::MatchStartsWith));
    EXPECT_EQ(qobject_cast<QInputDialog*>(&box)->labelText(), "Transponder dei canali da 19 a 22");
    box.accept();
  });
  trigger("ImpostaTransponder");
  EXPECT_EQ(driver_->Cell(19, 2) + driver_->Cell(22, 2), "018018");

  const QString pushed = driver_->Cell(22, 1);
  const auto sports = Entries(1);
  trigger("InserisciRiga");
  EXPECT_EQ(driver_->Cell(26, 1), pushed);
  EXPECT_EQ(Entries(1).front(), sports.front() + 4) << "favourites follow";
  driver_->SelectRows(26, 26);
  trigger("VaiAlTransponder");
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(driver_->Grid().Selected()->first, 18);
}

TEST_F(Cells, FavouritesAreAddedByKeyMovedAndNamed) {
  const auto cinema = Entries(0);
  driver_->SelectRows(19, 22);
  driver_->Key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(Said(), "Sport: 2 preferiti in più, 2 posti vuoti saltati");
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  auto* lists = window_->findChild<QDialog*>("ListePreferiti");
  auto* first = lists->findChild<QListView*>("Preferiti_1");
  auto* second = lists->findChild<QListView*>("Preferiti_2");
  ASSERT_TRUE(QTest::qWaitForWindowActive(lists));
  first->setFocus();
  first->setCurrentIndex(first->model()->index(0, 0));
  QTest::keyClick(first, Qt::Key_Down, Qt::AltModifier);
  QTest::keyClick(first, Qt::Key_Delete);
  EXPECT_EQ(Entries(0)[0], cinema[1]) << "the selection went along, and so the first one went away";
  const std::unique_ptr<QMimeData> dragged(first->model()->mimeData({first->model()->index(0, 0)}));
  second->model()->dropMimeData(dragged.get(), Qt::MoveAction, 1, 0, {});
  QTest::qWait(1);
  EXPECT_EQ(Entries(1)[1], cinema[1]);

  auto* name = lists->findChild<QLineEdit*>("NomePreferiti_2");
  const auto type = [name](const QString& text, Qt::Key end) {
    name->setFocus();
    name->selectAll();
    name->insert(text);
    QTest::keyClick(name, end);
    return name->text();
  };
  EXPECT_EQ(type("Nove byte", Qt::Key_Return), "Sport") << "the ninth byte has no place";
  EXPECT_EQ(type("Mai", Qt::Key_Escape), "Sport");
  EXPECT_TRUE(lists->isVisible()) << "what was typed is given up, not the window";
  type("Città", Qt::Key_Return);
  EXPECT_EQ(Action("Annulla").text(), "Annulla Nome lista preferiti");
  Click(*second, second->model()->index(2, 0), true);
  EXPECT_EQ(driver_->Grid().Selected()->first, Entries(1)[2]);
}

}  // namespace Ui
