// Comparing the list with another flash and with what is on the disk.
#include "model/favourites.h"
#include "ui/kit/text.h"
#include "ui/review/compare_model.h"
#include "ui/window_fixture.h"

namespace Ui {

const QString OtherDialog = "Selezionare la flash da confrontare";

class Comparing : public Window {
 protected:
  // Channels 3 and 4 are deleted, and 10 goes to 20.
  void ChangeList() {
    Delete(3, 4);
    driver_->SelectRows(10, 10);
    driver_->ExpectLine("Inserire il numero di canale a cui spostare", "20");
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
  const QString moved = driver_->Cell(20, 1);
  ASSERT_EQ(Rows().size(), 3);
  EXPECT_TRUE(Rows()[0].startsWith("Solo sul disco||0003 ")) << Rows()[0].toStdString();
  EXPECT_EQ(Rows()[2], "Spostato|0020 " + moved + "|0012 " + moved);
  found_->findChild<QCheckBox*>("Mostra_1")->click();
  EXPECT_EQ(Rows().size(), 1);
  found_->findChild<QCheckBox*>("Mostra_1")->click();

  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Click(*table_, table_->model()->index(2, CompareModel::Here));
  EXPECT_EQ(driver_->Grid().Selected()->first, 20);

  SaveAs(flash_, 645);
  EXPECT_EQ(Rows().size(), 0);
  EXPECT_EQ(found_->findChild<QLabel*>("AltreDifferenze")->text(), "Nessuna differenza");
  found_->close();
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
}

TEST_F(Comparing, TakesOverWhatIsTickedInOneStepAndThenTheOrder) {
  const Routines::State original = List();
  ChangeList();
  const Routines::State changed = List();
  Compare("Confronta");
  EXPECT_FALSE(found_->findChild<QPushButton*>("ApplicaSegnati")->isEnabled());
  table_->selectRow(1);
  QTest::keyClick(table_, Qt::Key_Space);
  Delete(100, 100);
  EXPECT_EQ(found_->findChild<QPushButton*>("ApplicaSegnati")->text(), "Applica i segnati (1)");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  Click("ApplicaSegnati");
  EXPECT_EQ(Said(), "Applica 1 differenza: 1 canale aggiunto in fondo");
  EXPECT_EQ(driver_->Cell(Routines::LastUsedChannel(List()), 1), CodePageText(original.Channel(4).Name()));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == changed);

  Click("SegnaTutti");
  Click("ApplicaSegnati");
  EXPECT_TRUE(Said().starts_with("Applica 3 differenze: 2 canali aggiunti in fondo, 1 spostato")) << Said();
  Click("PrendiOrdine");
  EXPECT_EQ(List().ChannelTable, original.ChannelTable);
  EXPECT_EQ(Contents(flash_), Samples::DemoFlash(List().SymbolRateTable)) << "the other one is only read";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == changed);
  EXPECT_EQ(Rows().size(), 3);
}

}  // namespace Ui
