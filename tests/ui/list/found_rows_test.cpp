// What the filter finds is selected, seen alone, acted upon and brought where it belongs.
#include "ui/window_fixture.h"

namespace Ui {

class FoundRows : public SmallWindow {
 protected:
  void Find(const QString& words) {
    driver_->Key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClicks(window_->findChild<QLineEdit*>("Filtro"), words);
  }
  [[nodiscard]] Edit::Slots Selected() const { return driver_->Grid().Selected(); }
};

TEST_F(FoundRows, AreSelectedAtOnceAndStandAlone) {
  Find("citta ");
  EXPECT_EQ(Selected(), Edit::Slots({6})) << "typing goes to the first one";
  Find("do");
  EXPECT_EQ(Selected(), Edit::Slots({12})) << "the first of the whole word, not of all but its last letter";
  Find("dop");
  EXPECT_TRUE(Selected().empty()) << "nothing is found";
  Find("du");
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "1 di 2");
  driver_->Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(Selected(), Edit::Slots({2, 11}));
  EXPECT_TRUE(driver_->Grid().hasFocus());
  ASSERT_TRUE(driver_->Choose("SoloITrovati"));
  EXPECT_TRUE(window_->findChild<QCheckBox*>("SoloTrovati")->isChecked());
  EXPECT_EQ(driver_->TextOf("RigheNascoste"), "Nascoste 997 righe: Solo i trovati le mostra");
  driver_->Grid().selectAll();
  EXPECT_EQ(Selected(), Edit::Slots({2, 11})) << "nothing that nobody sees";
  Tells("Toolbar1_Paste",
        "Con Solo i trovati non si vedono i posti fra una riga e l'altra: prima si devono mostrare tutte le "
        "righe (Ctrl+Shift+H)");
  driver_->Key(Qt::Key_Delete);
  EXPECT_EQ(Names(1, 2) + "|" + Names(10, 11), "Uno,Tre|Dodici,");
  EXPECT_TRUE(Selected().empty()) << "no row is left to be seen";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(Selected(), Edit::Slots({2, 11}));
  EXPECT_TRUE(driver_->Grid().isRowHidden(2));
  driver_->ExpectLine("Inserire il Nr. del canale su cui posizionarsi", "5");
  ASSERT_TRUE(driver_->Choose("VaiAlCanale"));
  QTest::qWait(1);
  EXPECT_EQ(Said(), "Canale 5: Cinque. Solo i trovati tolto, perché la riga era nascosta");
  EXPECT_FALSE(driver_->Grid().isRowHidden(2));
  ASSERT_TRUE(driver_->Choose("SoloITrovati"));
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(driver_->TextOf("RigheNascoste"), "") << "another list is seen whole";
}

TEST_F(FoundRows, AreBroughtToTheFrontOneByOneAndTheViewStays) {
  Find("due");
  driver_->Key(Qt::Key_Return);
  ASSERT_EQ(Selected(), Edit::Slots({11}));
  driver_->Key(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Said(), "Spostato due dal 11 al 1");
  Find("sette");
  driver_->Key(Qt::Key_Insert, Qt::AltModifier);
  driver_->Grid().Select({6, 8});
  driver_->Key(Qt::Key_Insert, Qt::AltModifier);
  EXPECT_EQ(Names(1, 6), "due,Sette,,Città HD,Uno,Due");
  EXPECT_EQ(Routines::FavouriteEntriesOf(List().FavouritesBlock, 0), std::vector<int>({6, 7, 8}));
  Click("VaiAlRisultato");
  EXPECT_EQ(Selected(), Edit::Slots({3, 4})) << "all that went there";
  driver_->Grid().Select({1, 5, 6});
  Tells("Scambia", "Per scambiarli si devono selezionare due canali");
  driver_->Grid().Select({1, 5});
  ASSERT_TRUE(driver_->Choose("Scambia"));
  EXPECT_EQ(Names(1, 5), "Uno,Sette,,Città HD,due");
  driver_->Grid().Select({2, 3, 4, 5});
  ASSERT_TRUE(driver_->Choose("ChiudiVuoti"));
  EXPECT_EQ(Names(1, 6), "Uno,Sette,Città HD,due,,Due");
  driver_->SelectRows(2, 2);
  driver_->ExpectLine("Inserire il canale dal quale chiudere i posti vuoti", "2");
  driver_->ExpectQuestion("Si chiude 1 posto vuoto: 7 canali cambiano numero. Continuo?", true);
  ASSERT_TRUE(driver_->Choose("ChiudiVuoti"));
  EXPECT_EQ(Names(4, 6), "due,Due,Tre");
  EXPECT_EQ(Said(), "Chiuso 1 posto vuoto dal 2");
}

TEST_F(FoundRows, SeveralStepsAreTakenBackAtOneGo) {
  const Routines::State before = List();
  Delete(10, 10);
  const Routines::State one = List();
  for (int row = 1; row <= 3; ++row) Delete(row, row);
  driver_->SelectRows(2, 2);
  driver_->Key(Qt::Key_Down, Qt::AltModifier);
  driver_->Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Said(), "Spostato posto vuoto 4 dal 2 al 4");
  const auto choose = [this](const char* name, int entry) {
    auto* list = window_->findChild<QMenu*>(name);
    list->popup(window_->pos());
    const QString text = list->actions()[entry]->text();
    list->close();
    list->actions()[entry]->trigger();
    return text.toStdString();
  };
  EXPECT_EQ(choose("PassiFatti", 3), "&4  Eliminato Uno");
  EXPECT_TRUE(List() == one);
  EXPECT_EQ(Said(), "Annullate 4 modifiche, fino a: Eliminato Uno");
  choose("PassiAnnullati", 0);
  ASSERT_TRUE(driver_->Choose("AnnullaFino"));
  QTest::keyClick(window_->findChild<QMenu*>("PassiFatti"), Qt::Key_2);
  EXPECT_EQ(Said(), "Annullate 2 modifiche, fino a: Eliminato Dati");
  EXPECT_TRUE(List() == before);
}

TEST_F(FoundRows, TheLineBelowSaysWhereAChannelStands) {
  driver_->Grid().SelectRow(2);
  EXPECT_EQ(driver_->TextOf("DoveSta").toStdString(),
            "0002 Due: 11766 V SAT A, SR 27500, FEC 3/4, bouquet Reti Nazionali; preferiti Cinema");
  driver_->SelectRows(2, 2);
  driver_->Key(Qt::Key_C, Qt::ControlModifier);
  Paste(13, 1);
  EXPECT_TRUE(driver_->TextOf("DoveSta").endsWith("; doppio 2"));
  EXPECT_TRUE(driver_->Grid().model()->index(1, 5).data(Qt::ToolTipRole).toString().contains("doppio 13"));
}

}  // namespace Ui
