// The window of the favourites lists.
#include "ui/window_fixture.h"

#include <fstream>

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

TEST_F(FavouritesLists, TakeWhatIsFoundOrListedAndGiveTheChannelsTheirOrder) {
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  Click("AggiungiTrovati");
  EXPECT_EQ(Said(), "Nessun canale trovato: il filtro sopra la griglia dice quali cercare");
  window_->findChild<QLineEdit*>("Filtro")->setText("d");
  QTest::qWait(1);
  const auto expect = [this](const QString& title, const QString& outcome, bool take) {
    driver_->ExpectDialog(title, [outcome, take](QDialog& dialog) {
      EXPECT_EQ(dialog.findChild<QLabel*>("Esito")->text().toStdString(), outcome.toStdString());
      EXPECT_TRUE(dialog.findChild<QAbstractButton*>("Command1")->isEnabled());
      take ? dialog.accept() : dialog.reject();
    });
  };
  expect("Aggiungi a Cinema", "Da aggiungere a Cinema: 6 canali; 9 di 128 posti occupati", true);
  Click("AggiungiTrovati");
  EXPECT_EQ(Entries(0), (std::vector{2, 3, 5, 6, 8, 9, 10, 11, 12}));
  EXPECT_EQ(Said(), "Aggiunti 6 canali a Cinema: Città HD, Radio Otto, Radio Nove…, 1 c'era già");

  const std::string file = folder_.Write("elenco.txt", Base::Bytes());
  std::ofstream(file) << "Sette\nManca\nDati\nUno\n";
  driver_->ExpectFile("Selezionare l'elenco", PathText(file));
  expect("Aggiungi a Cinema", "Da aggiungere a Cinema: 2 canali; 11 di 128 posti occupati; non in lista: 1",
         true);
  Click("AggiungiDaElenco");
  EXPECT_EQ(Entries(0), (std::vector{2, 3, 5, 6, 8, 9, 10, 11, 12, 7, 1}));

  expect("Ordina come Cinema", "11 canali cambiano posto", false);
  Click("OrdinaComePreferiti");
  expect("Metti in testa Cinema", "11 canali cambiano posto", true);
  Click("PreferitiInTesta");
  EXPECT_EQ(Names(1, 12), "Due,Tre,Cinque,Città HD,Radio Otto,Radio Nove,Dati,due,Dodici,Sette,Uno,");
  EXPECT_EQ(Entries(0), (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  EXPECT_EQ(Action("Annulla").text(), "Annulla: Messa in testa alla lista Cinema");
}

TEST_F(FavouritesLists, StandBelowTheTreeWhereThereIsRoomAndStayAsTheUserWantsThem) {
  const auto lists = [this] { return window_->findChild<QDialog*>("ListePreferiti"); };
  const auto shown = [this](const char* name) { return window_->findChild<QWidget*>(name)->isVisible(); };
  const auto start = [this](QSize size) {
    StartEmpty();
    window_->resize(size);
    Open(flash_, "QuantiCanali_0");
    ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
    QTest::qWait(20);
  };
  const QSize large(1366, 768);
  start({800, 600});
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  EXPECT_TRUE(lists()->isWindow());
  start(large);
  EXPECT_EQ(lists(), nullptr);
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  EXPECT_FALSE(lists()->isWindow());
  QTest::qWait(20);
  EXPECT_GE(driver_->Grid().viewport()->height(), 22 * driver_->Grid().rowHeight(0));
  EXPECT_TRUE(shown("TreeView1") && shown("Preferiti_1") && !shown("Preferiti_2"));
  EXPECT_EQ(window_->focusWidget()->objectName(), "Preferiti_1");
  lists()->findChild<QTabBar*>("SceltaPreferiti")->setCurrentIndex(1);
  EXPECT_EQ(window_->focusWidget()->objectName(), "Preferiti_2");
  driver_->SelectRows(6, 7);
  lists()->findChild<QAction*>("AggiungiSelezionati")->trigger();
  EXPECT_EQ(Entries(1), (std::vector{10, 6, 7}));
  ASSERT_TRUE(driver_->Choose("VediSDX"));
  QTest::qWait(20);
  EXPECT_TRUE(shown("GrigliaSDX") && shown("Preferiti_2") && shown("Preferiti_1"))
      << "there is room for more";
  ASSERT_TRUE(driver_->Choose("VediSDX"));
  EXPECT_TRUE(shown("TreeView2") && Action("VisualizzaBouquet").isChecked());
  for (int i = 0; i < 2; ++i) ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_FALSE(shown("SceltaPreferiti")) << "no list is loaded any more";
  QTest::qWait(1);
  ASSERT_TRUE(driver_->Choose("Ripeti"));

  QTest::keyClick(lists()->findChild<QListView*>("Preferiti_1"), Qt::Key_Escape);
  EXPECT_TRUE(driver_->Grid().hasFocus() && !shown("SceltaPreferiti"));
  start(large);
  EXPECT_EQ(lists(), nullptr) << "closed by the user";
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  start(large);
  EXPECT_TRUE(shown("SceltaPreferiti")) << "left open";
  auto* name = lists()->findChild<QLineEdit*>("NomePreferiti_1");
  window_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  name->setFocus();
  QTest::keyClicks(name, "X");
  Action("VisualizzaCanali").trigger();
  EXPECT_EQ(Routines::FavouriteNameOf(List().FavouritesBlock, 0), "XCinema")
      << "a command finds what was typed";
  lists()->findChild<QToolButton*>("StaccaPreferiti")->click();
  EXPECT_TRUE(lists()->isWindow());
  start(large);
  ASSERT_TRUE(driver_->Choose("VisualizzaPreferiti"));
  EXPECT_TRUE(lists()->isWindow()) << "loosened by the user";
  lists()->findChild<QListView*>("Preferiti_3")->setFocus();
  window_->resize(500, 400);
  QTest::qWait(20);
  Click("AgganciaPreferiti");
  EXPECT_EQ(Said(), "Liste non agganciate: accanto alla griglia non c'è posto, la finestra è troppo piccola");
  window_->resize(large);
  QTest::qWait(20);
  Click("AgganciaPreferiti");
  EXPECT_TRUE(!lists()->isWindow() && shown("Preferiti_3"));
}

}  // namespace Ui
