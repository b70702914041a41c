// Comparing the list with another flash and with what is on the disk.
#include "ui/kit/text.h"
#include "ui/review/compare_model.h"
#include "ui/window_fixture.h"

namespace Ui {

const QString OtherDialog = "Selezionare la flash da confrontare";

class Comparing : public SmallWindow {
 protected:
  // "Due" and "Tre" are deleted, and "Sette" goes to the end.
  void ChangeList() {
    Delete(2, 3);
    driver_->SelectRows(5, 5);
    driver_->ExpectLine("Inserire il numero di canale a cui spostare", "10");
    ASSERT_TRUE(driver_->Choose("SpostaA"));
  }

  void Compare(const char* command = "ConfrontaDisco") {
    if (command == std::string("Confronta")) driver_->ExpectFile(OtherDialog, PathText(flash_));
    ASSERT_TRUE(driver_->Choose(command));
    found_ = window_->findChild<QDialog*>("FinestraConfronto");
    ASSERT_NE(found_, nullptr);
    table_ = found_->findChild<QTableView*>("Differenze");
  }

  [[nodiscard]] QStringList Rows() const {
    QStringList rows;
    for (int row = 0; row < table_->model()->rowCount(); ++row) {
      QStringList cells;
      for (const int column : {CompareModel::Kind, CompareModel::Here, CompareModel::There})
        cells += table_->model()->index(row, column).data().toString();
      rows += cells.join("|");
    }
    return rows;
  }

  QDialog* found_ = nullptr;
  QTableView* table_ = nullptr;
};

TEST_F(Comparing, RefusesWhatIsNoFlashAndSaysWhereNothingDiffers) {
  Tells("ConfrontaDisco", "Nessuna differenza");
  driver_->ExpectFile(OtherDialog, PathText(flash_));
  Tells("Confronta", "Nessuna differenza");
  driver_->ExpectFile(OtherDialog, PathText(folder_.Write("short.dat", Base::Bytes(7))));
  Tells("Confronta", "Dimensione FLASH selezionata errata 7", "Errore FLASH di Input");
  EXPECT_EQ(window_->findChild<QDialog*>("FinestraConfronto"), nullptr);
}

TEST_F(Comparing, ShowsWhatASaveWillChangeUntilItHas) {
  ChangeList();
  Compare();
  const QAbstractItemModelTester tester(table_->model());
  EXPECT_EQ(Rows(), QStringList({"Solo sul disco||0002 Due", "Solo sul disco||0003 Tre",
                                 "Spostato|0010 Sette|0007 Sette", "Preferiti diversi|Cinema|Cinema"}));
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Click(*table_, table_->model()->index(2, CompareModel::Here));
  EXPECT_EQ(driver_->Grid().Selected().front(), 10);
  SaveAs(flash_, 10);
  EXPECT_EQ(Rows().size(), 0);
  EXPECT_EQ(found_->findChild<QLabel*>("AltreDifferenze")->text(), "Nessuna differenza");
}

TEST_F(Comparing, WhatIsTickedAndShownIsTakenOver) {
  ChangeList();
  const Routines::State changed = List();
  Compare("Confronta");
  EXPECT_FALSE(found_->findChild<QPushButton*>("ApplicaSegnati")->isEnabled());
  Click("SegnaTutti");
  for (const char* kind : {"Mostra_1", "Mostra_7"}) found_->findChild<QCheckBox*>(kind)->click();
  EXPECT_EQ(Rows().size(), 1);
  Click("ApplicaSegnati");
  EXPECT_TRUE(Said().starts_with("Applicata 1 differenza: 1 spostato")) << Said();
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == changed);
}

TEST_F(Comparing, TicksStayWhileTheListChangesAndTheOrderIsTakenLast) {
  const Routines::State original = List();
  ChangeList();
  Compare("Confronta");
  table_->selectRow(1);
  QTest::keyClick(table_, Qt::Key_Space);
  Delete(9, 9);
  EXPECT_EQ(found_->findChild<QPushButton*>("ApplicaSegnati")->text(), "Applica i segnati (1)");
  Click("ApplicaSegnati");
  EXPECT_EQ(Said(), "Applicata 1 differenza: 1 canale aggiunto in fondo");
  EXPECT_EQ(Names(9, 10), "Sette,Tre");
  Click("SegnaTutti");
  Click("ApplicaSegnati");
  Click("PrendiOrdine");
  EXPECT_EQ(List().ChannelTable, original.ChannelTable);
  EXPECT_EQ(Contents(flash_), SmallFlash()) << "the other one is only read";
}

TEST_F(Comparing, AnOrderSavedOnceIsTakenAgain) {
  const Routines::State original = List();
  const std::string path = folder_.Path("ordine.txt");
  ChooseFile("SalvaOrdine", "Salvare l'ordine in", path);
  ChangeList();
  driver_->ExpectDialog("Trovalis", [](QDialog& box) { box.accept(); });  // from a file
  driver_->ExpectFile("Selezionare l'elenco", PathText(path));
  Compare("OrdinaCome");
  EXPECT_TRUE(table_->isColumnHidden(CompareModel::Tick));
  EXPECT_EQ(Rows().filter("Non trovato").size(), 2) << "those deleted";
  Click("NonTrovati");
  EXPECT_NE(window_->findChild<QDialog*>("ElencoNonTrovati"), nullptr);
  found_->findChild<QComboBox*>("Numerazione")->setCurrentIndex(1);
  Click("PrendiOrdine");
  EXPECT_EQ(Rows().filter("Spostato").size(), 0);
  for (const int slot : {1, 4, 7, 11}) EXPECT_TRUE(List().Channel(slot) == original.Channel(slot)) << slot;
  EXPECT_TRUE(List().Channel(2).Empty());
}

TEST_F(Comparing, ASpreadsheetsListIsReadBackAsDifferences) {
  const QString dialog = "Selezionare il file CSV";
  const std::string path = folder_.Path("lista.csv");
  Export("FormatoCSV", path);
  driver_->ExpectFile(dialog, PathText(path));
  Tells("DaCSV", "Nessuna differenza");
  std::string text(Base::AsText(Contents(path)));
  text.replace(text.find("Due"), 3, "Duo");
  text.replace(text.find("\r\n0001;"), 7, "\r\nuno;");
  ChooseFile("DaCSV", dialog, folder_.Write("altra.csv", text));
  EXPECT_EQ(Said(), "altra.csv: 1 riga lasciata fuori");
  EXPECT_NE(window_->findChild<QDialog*>("ElencoRigheNonLette"), nullptr);
  found_ = window_->findChild<QDialog*>("FinestraConfronto");
  table_ = found_->findChild<QTableView*>("Differenze");
  EXPECT_EQ(Rows(), QStringList({"Rinominato|0002 Due|0002 Duo"}))
      << "one that is not in the file is not shown at first";
}

}  // namespace Ui
