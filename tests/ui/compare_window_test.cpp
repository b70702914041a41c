// Comparing the list with another flash and with what is on the disk.
#include "model/favourites.h"
#include "ui/compare_model.h"
#include "ui/window_fixture.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace Ui {

namespace {

const QString OtherDialog = "Selezionare la flash da confrontare";

}  // namespace

class CompareWindow : public Window {
 protected:
  // Channels 3 and 4 are deleted, and 10 goes to 20.
  void ChangeList() {
    driver_->SelectRows(3, 4);
    ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
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
  void Click(const char* button) {
    QTest::mouseClick(found_->findChild<QPushButton*>(button), Qt::LeftButton);
  }
  [[nodiscard]] QString Result() const { return driver_->TextOf("UltimoRisultato"); }

  QDialog* found_ = nullptr;
  QTableView* table_ = nullptr;
};

TEST_F(CompareWindow, RefusesWithoutAListOrAFileAndSaysWhereNothingDiffers) {
  Start();
  for (const char* command : {"Confronta", "ConfrontaDisco"}) {
    driver_->ExpectMessage(NoFlash);
    ASSERT_TRUE(driver_->Choose(command));
  }
  ASSERT_TRUE(window_->Start());
  Open(flash_);
  driver_->ExpectMessage("Nessuna differenza");
  ASSERT_TRUE(driver_->Choose("ConfrontaDisco"));
  driver_->ExpectFile(OtherDialog, PathText(flash_));
  driver_->ExpectMessage("Nessuna differenza");
  ASSERT_TRUE(driver_->Choose("Confronta"));
  driver_->ExpectFile(OtherDialog, PathText(folder_.Write("short.dat", Base::Bytes(7))));
  driver_->ExpectMessage("Dimensione FLASH selezionata errata 7", "Errore FLASH di Input");
  ASSERT_TRUE(driver_->Choose("Confronta"));
  EXPECT_EQ(window_->findChild<QDialog*>("FinestraConfronto"), nullptr);
}

TEST_F(CompareWindow, ShowsWhatASaveWillChangeUntilItHas) {
  OpenDemo();
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
  const QModelIndex name = table_->model()->index(2, CompareModel::Here);
  QTest::mouseClick(table_->viewport(), Qt::LeftButton, {}, table_->visualRect(name).center());
  EXPECT_EQ(driver_->Grid().Selected()->first, 20);

  driver_->ExpectFile(OutputDialog, PathText(flash_));
  Summary(*driver_, 2, 645, true);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_EQ(Rows().size(), 0);
  EXPECT_EQ(found_->findChild<QLabel*>("AltreDifferenze")->text(), "Nessuna differenza");
  found_->close();
  driver_->ExpectMessage("Nessuna differenza");
  ASSERT_TRUE(driver_->Choose("ConfrontaDisco"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
}

TEST_F(CompareWindow, TakesOverWhatIsTickedInOneStepAndThenTheOrder) {
  OpenDemo();
  const Routines::State original = List();
  ChangeList();
  const Routines::State changed = List();
  Compare("Confronta");
  EXPECT_FALSE(found_->findChild<QPushButton*>("ApplicaSegnati")->isEnabled());
  table_->selectRow(1);
  QTest::keyClick(table_, Qt::Key_Space);
  driver_->SelectRows(100, 100);
  ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  EXPECT_EQ(found_->findChild<QPushButton*>("ApplicaSegnati")->text(), "Applica i segnati (1)");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  Click("ApplicaSegnati");
  EXPECT_EQ(Result(), "Applica 1 differenza: 1 canale aggiunto in fondo");
  EXPECT_EQ(driver_->Cell(Routines::LastUsedChannel(List()), 1),
            CodePageText(original.ChannelTable[4].Name()));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == changed);

  Click("SegnaTutti");
  Click("ApplicaSegnati");
  EXPECT_TRUE(Result().startsWith("Applica 3 differenze: 2 canali aggiunti in fondo, 1 spostato"))
      << Result().toStdString();
  Click("PrendiOrdine");
  EXPECT_EQ(List().ChannelTable, original.ChannelTable);
  EXPECT_EQ(Contents(flash_), Samples::DemoFlash(List().SymbolRateTable)) << "the other one is only read";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == changed);
  EXPECT_EQ(Rows().size(), 3);
}

}  // namespace Ui
