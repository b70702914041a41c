// Editing the list by keys, toolbar, menus and dropping.
#include "ui/window_fixture.h"

namespace Ui {

const QString WherePaste = "Inserire il numero di canale da cui inserire";

class EditingWindow : public SmallWindow {
 protected:
  void CutThree() {
    driver_->SelectRows(5, 3);
    driver_->Key(Qt::Key_X, Qt::ControlModifier);
  }
};

TEST_F(EditingWindow, ACutIsPastedBackWithItsFavourites) {
  const Routines::State before = List();
  CutThree();
  EXPECT_EQ(Names(1, 4), "Uno,Due,Città HD,Sette");
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("0003\tTre\t001\t103\t"));
  driver_->ExpectLine(WherePaste, "3");
  driver_->ExpectQuestion(HowToPaste.arg(3).arg(3), true);
  driver_->Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(List().ChannelTable, before.ChannelTable);
  EXPECT_EQ(List().FavouritesBlock, before.FavouritesBlock);
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({3, 4, 5}));
  Tells("Toolbar1_Paste", "Messun canale copiato");
}

TEST_F(EditingWindow, APasteAsksWhereAndHowAndCanBeGivenUp) {
  CutThree();
  const Routines::State before = List();
  for (const char* wrong : {"0", "-5", "abc", "998", "99999"}) {
    driver_->ExpectLine(WherePaste, wrong);
    Tells("Toolbar1_Paste", "Posizione di inserimento invalida");
  }
  driver_->ExpectLine(WherePaste, "2");
  driver_->ExpectCancelledQuestion(HowToPaste.arg(2).arg(3));
  ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));
  driver_->SelectRows(1, 1);
  driver_->ExpectQuestion("Esistono Canali Copiati e non ancora Scaricati - Continuo?", false);
  ASSERT_TRUE(driver_->Press("Toolbar1_Cut"));
  EXPECT_TRUE(List() == before);
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
}

TEST_F(EditingWindow, EveryStepIsTakenBackByItsNameDownToTheOpening) {
  const Routines::State before = List();
  CutThree();
  Paste(1, 3);
  EXPECT_EQ(Action("Annulla").text(), "Annulla: Incollati 2 canali e 1 posto vuoto dal 1: Tre, Cinque");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3") << "as the list does, the channels cut come back";
  EXPECT_EQ(Action("Annulla").text(), "Annulla: Tagliati 2 canali e 1 posto vuoto: Tre, Cinque");
  EXPECT_EQ(Action("Ripeti").text(), "Ripeti: Incollati 2 canali e 1 posto vuoto dal 1: Tre, Cinque");
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(List().ChannelTable, before.ChannelTable);
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(List().Loaded);
  EXPECT_EQ(driver_->TextOf("Text1"), "");
}

TEST_F(EditingWindow, UndoAndRedoSelectWhatCameBackOrChanged) {
  using Edit::Slots;
  const auto selected = [this] { return driver_->Grid().Selected(); };
  driver_->SelectRows(1, 1);
  driver_->Grid().Select({2, 5, 7});
  driver_->Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(selected(), Slots({2})) << "the rows that moved up are others";
  for (const auto key : {Qt::Key_Z, Qt::Key_Z, Qt::Key_Y, Qt::Key_Y}) driver_->Key(key, Qt::ControlModifier);
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3") << "they are nowhere else";
  EXPECT_EQ(selected(), Slots({2}));
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(selected(), Slots({2, 5, 7})) << "what came back";
}

TEST_F(EditingWindow, RowsMoveByKeysAndByDropping) {
  driver_->SelectRows(1, 2);
  driver_->Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Names(1, 3), "Tre,Uno,Due");
  EXPECT_EQ(driver_->Grid().Selected().front(), 2) << "the selection goes along";
  auto* model = driver_->Grid().model();
  const auto drop = [&](int before, Qt::DropAction action) {
    const std::unique_ptr<QMimeData> rows(model->mimeData({model->index(1, 0), model->index(2, 0)}));
    EXPECT_TRUE(model->dropMimeData(rows.get(), action, before - 1, 0, {}));
    QTest::qWait(1);
  };
  drop(7, Qt::MoveAction);
  EXPECT_EQ(Names(1, 7), "Tre,,Cinque,Città HD,Uno,Due,Sette");
  drop(1, Qt::CopyAction);
  EXPECT_EQ(Names(1, 3), ",Cinque,Tre") << "a copy is inserted";
  const Routines::State before = List();
  driver_->Grid().Select({3, 6, 7});
  driver_->Key(Qt::Key_Up, Qt::AltModifier);
  driver_->Key(Qt::Key_Up, Qt::AltModifier);
  const std::unique_ptr<QMimeData> rows(model->mimeData(driver_->Grid().selectionModel()->selectedRows()));
  EXPECT_EQ(rows->data(SlotsType), "1 4 5");
  EXPECT_TRUE(model->dropMimeData(rows.get(), Qt::MoveAction, 11, 0, {}));
  QTest::qWait(1);
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({9, 10, 11})) << "in front of what was in slot 12";
  EXPECT_EQ(List().Channel(9), before.Channel(3));
  EXPECT_EQ(List().Channel(11), before.Channel(7));
  EXPECT_EQ(List().Channel(12), before.Channel(12));
  for (int step = 0; step < 2; ++step) ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == before) << "two moves by a row are one step";
  driver_->ExpectLine("Inserire il numero di canale a cui spostare", "999");
  Tells("SpostaA", "Nr. Canale non valido");
}

TEST_F(EditingWindow, RowKeysLeaveTheFilterFieldAlone) {
  const Routines::State before = List();
  driver_->SelectRows(2, 3);
  driver_->Key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  auto* field = window_->findChild<QLineEdit*>("Filtro");
  ASSERT_TRUE(field->hasFocus());
  QTest::keyClicks(field, "radio!");
  for (const auto& [key, modifiers] : {std::pair{Qt::Key_Backspace, Qt::NoModifier},
                                       {Qt::Key_Home, Qt::ShiftModifier},
                                       {Qt::Key_X, Qt::ControlModifier},
                                       {Qt::Key_V, Qt::ControlModifier},
                                       {Qt::Key_Delete, Qt::NoModifier}})
    driver_->Key(key, modifiers);
  EXPECT_TRUE(List() == before);
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({8})) << "what is done next is done to what was found";
  driver_->Key(Qt::Key_Return);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "2 di 2");
  driver_->SelectRows(9, 9);
  field->setFocus();
  driver_->Key(Qt::Key_Return);
  EXPECT_EQ(driver_->Grid().Selected().front(), 8) << "behind the last one comes the first";
}

TEST_F(EditingWindow, SearchingAsksForTheNext) {
  const QString next = "Ricerco il successivo?";
  driver_->ExpectLine("Inserire il canale da ricercare", "D");
  driver_->ExpectQuestion(next, true);
  driver_->ExpectQuestion(next, false);
  ASSERT_TRUE(driver_->Choose("CercaCanale"));
  EXPECT_EQ(driver_->Grid().currentIndex().row() + 1, 6);
  EXPECT_EQ(driver_->Grid().currentIndex().data(Qt::BackgroundRole).value<QBrush>().color(),
            QColor(255, 128, 0));
  driver_->Key(Qt::Key_F3);
  EXPECT_EQ(driver_->Grid().currentIndex().row() + 1, 8);
  driver_->ExpectLine("Inserire il canale da ricercare", "漢");
  Tells("Toolbar1_Find", "Canale non trovato");
}

TEST_F(EditingWindow, GoingToAChannelSelectsNothingElse) {
  const QString where = "Inserire il Nr. del canale su cui posizionarsi";
  driver_->SelectRows(2, 3);
  driver_->ExpectLine(where, "600");
  ASSERT_TRUE(driver_->Press("Toolbar1_Goto"));
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({600}));
  driver_->ExpectLine(where, "1000");
  Tells("Toolbar1_Goto", "Nr. Canale non valido");
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  for (const char* command : {"CercaCanale", "VaiAlCanale"})
    Tells(command, "Funzione valida solo in visualizzazione canali");
  Tells("Toolbar1_Cut", "Deve essere visibile la lista canali");
}

TEST_F(EditingWindow, WholeListCommandsTellWhatTheyDid) {
  Tells("Toolbar1_Delete", "Nessun canale selezionato");
  const QString from =
      "Inserire il canale dal quale iniziare il raggruppamento; I canali precedenti manterranno la "
      "numerazione";
  driver_->ExpectLine(from, "2");
  Tells("SpostaRadio", "Dal canale 2, nell'ordine:\nCanali TV: 7\nCanali radio: 2\nServizi: 1");
  EXPECT_EQ(Said(), "Canali raggruppati dal 2: TV 7, radio 2, servizi 1");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  driver_->ExpectLine(from, "13");
  driver_->ExpectMessage("Il numero indicato è maggiore dell' ultimo canale");
  driver_->ExpectLine(from, "2");
  ASSERT_TRUE(driver_->Choose("OrdinaPerBouquet"));
  EXPECT_EQ(Routines::LastUsedChannel(List()), 11) << "every gap behind slot 2 is closed";
  ASSERT_TRUE(driver_->Choose("InvertiSatelliti"));
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(driver_->Cell(1, 9), "SAT B");
  Tells("Azzera", "Sono stati azzerati 11 Canali");
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 0 di 999");
}

}  // namespace Ui
