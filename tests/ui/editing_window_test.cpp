// Editing the list by keys, toolbar, menus and dropping.
#include "ui/window_fixture.h"

namespace Ui {

TEST_F(Window, CutMovePasteAndUndoByKeysAndToolbar) {
  const Routines::State before = List();
  driver_->SelectRows(12, 10);
  driver_->Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(driver_->Cell(10, 1), "Italia Domani");
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("0010\tLa Nazionale\t018\t2802\t"));

  const QString where = "Inserire il numero di canale da cui inserire";
  for (const char* wrong : {"0", "-5", "abc", "3994", "99999"}) {
    driver_->ExpectLine(where, wrong);
    Tells("Toolbar1_Paste", "Posizione di inserimento invalida");
  }
  driver_->ExpectLine(where, "5");
  driver_->ExpectCancelledQuestion(HowToPaste.arg(5).arg(3));
  ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
  driver_->ExpectLine(where, "10");
  driver_->ExpectQuestion(HowToPaste.arg(10).arg(3), true);
  driver_->Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(List().ChannelTable, before.ChannelTable);
  EXPECT_EQ(List().FavouritesBlock, before.FavouritesBlock) << "the cut entries are back";
  Tells("Toolbar1_Paste", "Messun canale copiato");
  const auto selected = [this] {
    const auto rows = driver_->Grid().Selected();
    return rows ? std::pair(rows->first, rows->last) : std::pair(0, 0);
  };
  driver_->SelectRows(10, 12);
  driver_->Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(selected(), std::pair(10, 10)) << "the rows that moved up are others";
  for (const auto key : {Qt::Key_Z, Qt::Key_Z, Qt::Key_Y, Qt::Key_Y}) driver_->Key(key, Qt::ControlModifier);
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3") << "they are nowhere else";
  EXPECT_EQ(selected(), std::pair(10, 10));
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(List().ChannelTable, before.ChannelTable);
  EXPECT_EQ(selected(), std::pair(10, 12)) << "what came back";
  Delete(10, 12);
  EXPECT_EQ(selected(), std::pair(10, 10));
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);

  EXPECT_EQ(Action("Annulla").text(), "Annulla Incolla 3 canali");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3") << "as the list does, the channels cut come back";
  EXPECT_EQ(Action("Annulla").text(), "Annulla Taglia 3 canali");
  EXPECT_EQ(Action("Ripeti").text(), "Ripeti Incolla 3 canali");
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(List().ChannelTable, before.ChannelTable);
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(List().Loaded) << "opening is a step too";
  EXPECT_EQ(driver_->TextOf("Text1"), "");
}

TEST_F(Window, RowsMoveByKeysAndByDropping) {
  driver_->SelectRows(2, 3);
  driver_->Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(driver_->Cell(2, 1), "Canale Aperto HD");
  EXPECT_EQ(driver_->Cell(3, 1), "Rete Italia HD");
  EXPECT_EQ(driver_->Grid().Selected()->first, 3) << "the selection goes along";
  auto* model = driver_->Grid().model();
  const auto drop = [&](int before, Qt::DropAction action) {
    const std::unique_ptr<QMimeData> rows(model->mimeData({model->index(2, 0), model->index(3, 0)}));
    EXPECT_TRUE(model->dropMimeData(rows.get(), action, before - 1, 0, {}));
    QTest::qWait(1);
  };
  drop(10, Qt::MoveAction);
  EXPECT_EQ(driver_->Cell(8, 1), "Rete Italia HD");
  EXPECT_EQ(driver_->Cell(10, 1), "La Nazionale");
  drop(1, Qt::CopyAction);
  EXPECT_EQ(driver_->Cell(1, 1), driver_->Cell(5, 1)) << "a copy is inserted";
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 622 di 3996");
  driver_->ExpectLine("Inserire il numero di canale a cui spostare", "3996");
  Tells("SpostaA", "Nr. Canale non valido");
}

TEST_F(Window, RowKeysLeaveTheFilterFieldAlone) {
  const Routines::State before = List();
  driver_->SelectRows(2, 3);
  driver_->Key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  auto* field = window_->findChild<QLineEdit*>("Filtro");
  ASSERT_TRUE(field->hasFocus());
  QTest::keyClicks(field, "stella tv!");
  driver_->Key(Qt::Key_Backspace);
  driver_->Key(Qt::Key_A, Qt::ControlModifier);
  driver_->Key(Qt::Key_X, Qt::ControlModifier);
  driver_->Key(Qt::Key_V, Qt::ControlModifier);
  driver_->Key(Qt::Key_Delete);
  EXPECT_TRUE(List() == before);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "1 trovato");
  driver_->Key(Qt::Key_Return);
  EXPECT_EQ(driver_->Grid().Selected()->first, 12);
  driver_->SelectRows(20, 20);
  field->setFocus();
  driver_->Key(Qt::Key_Return);
  EXPECT_EQ(driver_->Grid().Selected()->first, 12) << "behind the last one comes the first";
}

TEST_F(Window, SearchingAsksForTheNext) {
  const QString next = "Ricerco il successivo?";
  driver_->ExpectLine("Inserire il canale da ricercare", "CITTÀ PIÙ");
  driver_->ExpectQuestion(next, true);
  driver_->ExpectQuestion(next, false);
  ASSERT_TRUE(driver_->Choose("CercaCanale"));
  const auto* model = driver_->Grid().model();
  EXPECT_EQ(model->index(7, 3).data(Qt::BackgroundRole).value<QBrush>().color(), QColor(255, 128, 0));
  EXPECT_EQ(driver_->Grid().indexAt(QPoint(5, 5)).row(), 7);
  driver_->Key(Qt::Key_F3);
  EXPECT_EQ(driver_->Grid().currentIndex().row(), 8);
  driver_->ExpectLine("Inserire il canale da ricercare", "漢");
  Tells("Toolbar1_Find", "Canale non trovato");
  driver_->SelectRows(2, 3);
  driver_->ExpectLine("Inserire il Nr. del canale su cui posizionarsi", "600");
  ASSERT_TRUE(driver_->Press("Toolbar1_Goto"));
  EXPECT_FALSE(driver_->Grid().Selected()) << "what is out of sight now must not be deleted by a key";
  driver_->ExpectLine("Inserire il Nr. del canale su cui posizionarsi", "3997");
  Tells("Toolbar1_Goto", "Nr. Canale non valido");
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  for (const char* command : {"CercaCanale", "VaiAlCanale"}) {
    Tells(command, "Funzione valida solo in visualizzazione canali");
  }
  Tells("Toolbar1_Cut", "Deve essere visibile la lista canali");
}

TEST_F(Window, WholeListCommandsTellWhatTheyDid) {
  Tells("Toolbar1_Delete", "Nessun canale selezionato");
  const QString from =
      "Inserire il canale dal quale iniziare il raggruppamento; I canali precedenti manterranno la "
      "numerazione";
  driver_->ExpectLine(from, "7");
  Tells("SpostaRadio", "Dal canale 7, nell'ordine:\nCanali TV: 461\nCanali radio: 123\nServizi: 30");
  EXPECT_EQ(Said(), "Canali raggruppati dal 7: TV 461, radio 123, servizi 30");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  driver_->ExpectLine(from, "648");
  driver_->ExpectMessage("Il numero indicato è maggiore dell' ultimo canale");
  driver_->ExpectLine(from, "15");
  ASSERT_TRUE(driver_->Choose("OrdinaPerBouquet"));
  EXPECT_EQ(Routines::LastUsedChannel(List()), 620) << "every gap behind slot 15 is closed";
  ASSERT_TRUE(driver_->Choose("InvertiSatelliti"));
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(driver_->Cell(1, 9), "SAT B");
  Tells("Azzera", "Sono stati azzerati 620 Canali");
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 0 di 3996");
}

}  // namespace Ui
