// The window of the favourites lists.
#include "ui/window_fixture.h"

namespace Ui {

class FavouritesLists : public SmallWindow {
 protected:
  [[nodiscard]] std::vector<int> Entries(std::size_t list) const {
    return Routines::FavouriteEntriesOf(List().FavouritesBlock, list);
  }
};

TEST_F(FavouritesLists, TakeChannelsByKeyAndDroppingAndKeepTheirNames) {
  driver_->SelectRows(4, 5);
  driver_->Key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(Said(), "Aggiunto Cinque a Sport, 1 posto vuoto saltato");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  auto* lists = window_->findChild<QDialog*>("ListePreferiti");
  auto* first = lists->findChild<QListView*>("Preferiti_1");
  auto* second = lists->findChild<QListView*>("Preferiti_2");
  ASSERT_TRUE(QTest::qWaitForWindowActive(lists));
  first->setFocus();
  first->setCurrentIndex(first->model()->index(0, 0));
  QTest::keyClick(first, Qt::Key_Down, Qt::AltModifier);
  QTest::keyClick(first, Qt::Key_Delete);
  EXPECT_EQ(Entries(0), std::vector<int>({3, 5})) << "the selection went along";
  const std::unique_ptr<QMimeData> dragged(first->model()->mimeData({first->model()->index(0, 0)}));
  second->model()->dropMimeData(dragged.get(), Qt::MoveAction, 1, 0, {});
  QTest::qWait(1);
  EXPECT_EQ(Entries(1), std::vector<int>({10, 3, 5}));

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
  EXPECT_EQ(Action("Annulla").text(), "Annulla: Rinominata Sport in Città");
  Click(*second, second->model()->index(2, 0), true);
  EXPECT_EQ(driver_->Grid().Selected().front(), 5);
}

}  // namespace Ui
