// Duplicates and regrouping.
#include "model/favourites.h"
#include "ui/window_fixture.h"

namespace Ui {

class Duplicates : public Window {
 protected:
  // Copies of three channels stand in slots 20 to 22, from slot `first` on or from the first favourite's.
  void OpenWithCopies(int first = 2) {
    if (first == 0) first = Routines::FavouriteEntriesOf(List().FavouritesBlock, 0).front();
    driver_->SelectRows(first, first + 2);
    ASSERT_TRUE(driver_->Press("Toolbar1_Copy"));
    Paste(20, 3);
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

TEST_F(Duplicates, RowsLeadToTheirChannelsAndFollowEveryChangeAndTicksToo) {
  OpenWithCopies();
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Click(*tree_, tree_->indexFromItem(&Row(2, 1)), true);
  EXPECT_EQ(driver_->TextOf("Text1"), "Canali");
  EXPECT_EQ(driver_->Grid().Selected()->first, 22);
  EXPECT_TRUE(driver_->Grid().viewport()->rect().intersects(
      driver_->Grid().visualRect(driver_->Grid().model()->index(21, 1))));
  tree_->setCurrentItem(&Row(0, 0));
  QTest::keyClick(tree_, Qt::Key_Return);
  EXPECT_EQ(driver_->Grid().Selected()->first, 2);
  EXPECT_EQ(Counts(), "3 gruppi, 6 canali, 0 scelti");
  EXPECT_FALSE(found_->findChild<QPushButton*>("EliminaScelti")->isEnabled());
  QTest::keyClick(tree_, Qt::Key_Down);
  QTest::keyClick(tree_, Qt::Key_Space);
  EXPECT_EQ(Row(0, 1).checkState(0), Qt::Checked);
  EXPECT_EQ(Counts(), "3 gruppi, 6 canali, 1 scelto");

  Delete(10, 10);
  EXPECT_EQ(Row(0, 1).text(0), "0019") << "a channel before it went away";
  EXPECT_EQ(Row(0, 1).checkState(0), Qt::Checked);
  const auto channels = List().ChannelTable;
  Click("EliminaScelti");
  EXPECT_EQ(List().Channel(19), channels[20]);
  EXPECT_EQ(Counts(), "2 gruppi, 4 canali, 0 scelti") << "no tick goes to another channel";
  EXPECT_EQ(Said(), "Elimina 1 canale doppio");
  found_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(found_));
  QTest::keyClick(found_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Counts(), "3 gruppi, 6 canali, 0 scelti");
  driver_->Choose("Annulla");
  ASSERT_EQ(Row(2, 1).text(0), "0022");
  Row(2, 1).setCheckState(0, Qt::Checked);
  tree_->setCurrentItem(&Row(2, 1));
  Delete(2, 2);
  EXPECT_EQ(Counts(), "2 gruppi, 4 canali, 1 scelto") << "another group went away";
  EXPECT_EQ(Row(1, 1).checkState(0), Qt::Checked);
  EXPECT_EQ(tree_->currentItem(), &Row(1, 1));

  Open(flash_);
  EXPECT_EQ(Counts(), "Nessun canale doppio");
  EXPECT_FALSE(found_->findChild<QPushButton*>("EliminaTranneIlPrimo")->isEnabled());
}

TEST_F(Duplicates, AllButTheFirstGoInOneStepAndFavouritesAreTold) {
  OpenWithCopies(0);
  const Routines::State before = List();
  for (const char* rule : {"StessoServizio", "StessiPID"}) found_->findChild<QCheckBox*>(rule)->click();
  EXPECT_EQ(Counts(), "Nessun canale doppio");
  found_->findChild<QCheckBox*>("StessiPID")->click();
  QTreeWidgetItem& favourite = Row(0, Row(0, 0).text(6).isEmpty() ? 1 : 0);
  EXPECT_EQ(favourite.text(6).toStdString(), Routines::FavouritesTitle(List().FavouritesBlock, 0));
  favourite.setCheckState(0, Qt::Checked);
  Click("EliminaScelti");
  EXPECT_EQ(Said(), "Elimina 1 canale doppio, tolto 1 preferito (Cinema 1)");
  driver_->Choose("Annulla");
  EXPECT_TRUE(List() == before);
  Click("EliminaTranneIlPrimo");
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 620 di 3996");
  EXPECT_EQ(Said(), "Elimina 3 canali doppi, tolti 3 preferiti (Cinema 3)");
  driver_->Choose("Annulla");
  EXPECT_TRUE(List() == before);
}

TEST_F(Window, NothingTwiceIsAMessageAndNamesAreAChoice) {
  driver_->ExpectQuestion("Nessun canale doppio\nCercare anche i canali con lo stesso nome?", false);
  ASSERT_TRUE(driver_->Choose("CanaliDoppi"));
  EXPECT_EQ(window_->findChild<QDialog*>("FinestraCanaliDoppi"), nullptr);
  Tells("Azzera", "Sono stati azzerati 647 Canali");
  Tells("CanaliDoppi", "Nessun canale doppio");
}

}  // namespace Ui
