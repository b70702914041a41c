// The overview's lines lead to their rows.
#include "ui/window_fixture.h"

namespace Ui {

class OverviewLines : public SmallWindow {
 protected:
  void SetUp() override {
    SmallWindow::SetUp();
    ASSERT_TRUE(driver_->Choose("Riepilogo"));
    tree_ = window_->findChild<QDialog*>("FinestraRiepilogo")->findChild<QTreeWidget*>();
  }
  [[nodiscard]] QTreeWidgetItem* Line(const QString& text) const {
    return tree_->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
  }
  void Choose(QTreeWidgetItem* line) {
    tree_->setCurrentItem(line);
    QTest::keyClick(tree_, Qt::Key_Return);
  }

  QTreeWidget* tree_ = nullptr;
};

TEST_F(OverviewLines, ALineMarksItsRowsAndGoesOnDoingSo) {
  EXPECT_EQ(Line("Radio")->text(2) + " " + Line("Radio")->text(3), "2 18,2");
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Choose(Line("Radio"));
  EXPECT_EQ(driver_->TextOf("Text1"), "Canali");
  EXPECT_EQ(driver_->Grid().Selected().front(), 8);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "1 di 2");
  Action("CercaSuccessivo").trigger();
  EXPECT_EQ(driver_->Grid().Selected().front(), 9);
  Delete(8, 8);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "1 di 1") << "the marks follow the list";
  EXPECT_EQ(Line("Radio")->text(2), "1");
  while (Action("Annulla").isEnabled()) Action("Annulla").trigger();
  EXPECT_EQ(tree_->topLevelItemCount(), 0);
  EXPECT_EQ(driver_->TextOf("RiepilogoTotali"), "Nessuna flash caricata");
}

TEST_F(OverviewLines, ALinesChannelsAreSelectedSwitchedOffAndDeleted) {
  tree_->setCurrentItem(Line("Radio"));
  Click("SelezionaRighe");
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({8, 9}));
  driver_->ExpectQuestion("Si disattivano 2 canali: Radio Otto, Radio Nove. Continuo?", true);
  Click("DisattivaRighe");
  EXPECT_EQ(Said(), "Disattivati 2 canali: Radio Otto, Radio Nove");
  tree_->setCurrentItem(Line("di cui non attivi"));
  driver_->ExpectQuestion("Si eliminano 3 canali: Radio Otto, Radio Nove, Dodici. Continuo?", true);
  Click("EliminaRighe");
  EXPECT_EQ(Names(8, 10), "Dati,due,");

  driver_->SelectRows(1, 1);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy"));
  driver_->ExpectLine("Inserire il numero di canale da cui inserire", "2");
  driver_->ExpectQuestion(HowToPaste.arg(2).arg(1), false);
  ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));
  EXPECT_EQ(Said(), "Incollato Uno al 2, sovrascritto Due");
  tree_->setCurrentItem(Line("Canali doppi"));
  driver_->ExpectQuestion(
      "Si eliminano 2 canali: Uno, Uno. Sono tutte le copie, anche la prima: per tenerne una c'è Controlla "
      "Canali Doppi. Continuo?",
      false);
  Click("EliminaRighe");
  EXPECT_EQ(Names(1, 3), "Uno,Uno,Tre");
}

TEST_F(OverviewLines, ALineOfTranspondersShowsThem) {
  Choose(Line("Transponder senza canali"));
  EXPECT_EQ(Said(), "Riepilogo: Transponder senza canali: nessuna riga");
  Choose(tree_->findItems("Transponder", Qt::MatchExactly).front()->child(1));
  EXPECT_EQ(Said(), "Riepilogo: Transponder Liberi: 7 transponder");
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(driver_->Grid().Selected().front(), 4);
  window_->findChild<QLineEdit*>("Filtro")->clear();
  EXPECT_FALSE(window_->findChild<QLineEdit*>("Filtro")->isVisible()) << "what is typed finds channels only";
}

}  // namespace Ui
