// Channels that are there twice: three copies stand in slots 6 to 8.
#include "ui/window_fixture.h"

namespace Ui {

class Duplicates : public SmallWindow {
 protected:
  void SetUp() override {
    SmallWindow::SetUp();
    driver_->SelectRows(1, 3);
    ASSERT_TRUE(driver_->Press("Toolbar1_Copy"));
    Paste(6, 3);
    ASSERT_TRUE(driver_->Choose("CanaliDoppi"));
    found_ = window_->findChild<QDialog*>("FinestraCanaliDoppi");
    ASSERT_NE(found_, nullptr);
    tree_ = found_->findChild<QTreeWidget*>();
  }

  [[nodiscard]] QTreeWidgetItem& Row(int group, int row) const {
    return *tree_->topLevelItem(group)->child(row);
  }
  [[nodiscard]] std::string Counts() const { return driver_->TextOf("ConteggioDoppi").toStdString(); }

  QDialog* found_ = nullptr;
  QTreeWidget* tree_ = nullptr;
};

TEST_F(Duplicates, RowsLeadToTheirChannelsByMouseAndKeys) {
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Click(*tree_, tree_->indexFromItem(&Row(2, 1)), true);
  EXPECT_EQ(driver_->TextOf("Text1"), "Canali");
  EXPECT_EQ(driver_->Grid().Selected().front(), 8);
  tree_->setCurrentItem(&Row(0, 0));
  QTest::keyClick(tree_, Qt::Key_Return);
  EXPECT_EQ(driver_->Grid().Selected().front(), 1);
  QTest::keyClick(tree_, Qt::Key_Down);
  QTest::keyClick(tree_, Qt::Key_Space);
  EXPECT_EQ(Row(0, 1).checkState(0), Qt::Checked);
  EXPECT_EQ(Counts(), "3 gruppi, 6 canali, 1 scelto");
}

TEST_F(Duplicates, TicksStayWithTheirChannels) {
  Row(1, 1).setCheckState(0, Qt::Checked);
  tree_->setCurrentItem(&Row(1, 1));
  Delete(4, 5);
  EXPECT_EQ(Row(1, 1).text(0), "0005") << "channels before it went away";
  EXPECT_EQ(Row(1, 1).checkState(0), Qt::Checked);
  Delete(1, 1);
  EXPECT_EQ(Counts(), "2 gruppi, 4 canali, 1 scelto") << "another group went away";
  EXPECT_EQ(Row(0, 1).checkState(0), Qt::Checked);
  EXPECT_EQ(tree_->currentItem(), &Row(0, 1));
  Click("EliminaScelti");
  EXPECT_EQ(Counts(), "1 gruppo, 2 canali, 0 scelti") << "no tick goes to another channel";
  found_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(found_));
  QTest::keyClick(found_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Counts(), "2 gruppi, 4 canali, 0 scelti");
  Open(flash_);
  EXPECT_EQ(Counts(), "Nessun canale doppio");
  EXPECT_FALSE(found_->findChild<QPushButton*>("EliminaTranneIlPrimo")->isEnabled());
}

TEST_F(Duplicates, TicksAreProposedAndNothingElseHappens) {
  Row(0, 0).setCheckState(0, Qt::Checked);
  found_->findChild<QAction*>("TieniPreferito")->trigger();
  EXPECT_EQ(Counts(), "3 gruppi, 6 canali, 2 scelti") << "the first is in no list, nor is its copy";
  EXPECT_EQ(Row(1, 1).checkState(0), Qt::Checked);
  EXPECT_EQ(Row(1, 0).checkState(0), Qt::Unchecked);
  found_->findChild<QAction*>("TieniPrimo")->trigger();
  EXPECT_EQ(Counts(), "3 gruppi, 6 canali, 3 scelti");
  EXPECT_EQ(Routines::UsedChannels(List()), 14);
  for (const char* rule : {"StessoServizio", "StessiPID", "StessoNomeBase"})
    found_->findChild<QCheckBox*>(rule)->click();
  EXPECT_EQ(Row(0, 1).text(0), "0006");
  EXPECT_FALSE(found_->findChild<QPushButton*>("EliminaTranneIlPrimo")->isEnabled())
      << "only to be looked at";
}

TEST_F(Duplicates, AllButTheFirstGoAndFavouritesAreTold) {
  EXPECT_EQ(Row(1, 0).text(6), "Cinema");
  Click("EliminaTranneIlPrimo");
  EXPECT_EQ(Names(1, 6), "Uno,Due,Tre,,Cinque,Città HD");
  driver_->Choose("Annulla");
  Row(1, 0).setCheckState(0, Qt::Checked);
  Click("EliminaScelti");
  EXPECT_EQ(Said(), "Eliminato Due, tolto 1 preferito (Cinema 1)");
  for (const char* rule : {"StessoServizio", "StessiPID"}) found_->findChild<QCheckBox*>(rule)->click();
  EXPECT_EQ(Counts(), "Nessun canale doppio");
}

TEST_F(SmallWindow, NothingTwiceIsAMessageAndNamesAreAChoice) {
  driver_->ExpectQuestion("Nessun canale doppio\nCercare anche i canali con lo stesso nome?", false);
  ASSERT_TRUE(driver_->Choose("CanaliDoppi"));
  EXPECT_EQ(window_->findChild<QDialog*>("FinestraCanaliDoppi"), nullptr);
  Tells("Azzera", "Sono stati azzerati 12 Canali");
  Tells("CanaliDoppi", "Nessun canale doppio");
}

}  // namespace Ui
