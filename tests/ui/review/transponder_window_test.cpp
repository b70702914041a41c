// The list's transponders beside those of a list of today.
#include "ui/window_fixture.h"

namespace Ui {

TEST_F(SmallWindow, TranspondersAreCheckedByAListAndBroughtUpToDate) {
  const QString question = "Selezionare l'elenco di transponder";
  driver_->ExpectFile(question, PathText(flash_));
  Tells("ControllaTransponder", "lista.dat non è un elenco di transponder");
  driver_->ExpectFile(question,
                      PathText(folder_.Write("13.ini",
                                             "[SATTYPE]\n1=0130\n[DVB]\n1=11766,V,22000,34,S,QPSK\n"
                                             "2=12092,H,27500,34\n3=12500,H,27500,56\n4=12600,V,12345,34\n"
                                             "5=12700,V,27500,34,S2\n6=x\n")));
  ASSERT_TRUE(driver_->Choose("ControllaTransponder"));
  auto* found = window_->findChild<QDialog*>("FinestraControlloTransponder");
  ASSERT_NE(found, nullptr);
  auto* tree = found->findChild<QTreeWidget*>();
  const auto counts = [this] { return driver_->TextOf("ConteggioControllo").toStdString(); };
  EXPECT_EQ(found->findChild<QComboBox*>("SatelliteElenco")->currentData().toInt(), 0) << "proposed";
  EXPECT_EQ(counts(), "13.ini: 3 differenze; 1 riga non è un transponder");
  found->findChild<QCheckBox*>("AncheDvbS2")->click();
  EXPECT_EQ(counts(), "13.ini: 4 differenze; 1 riga non è un transponder");
  found->findChild<QCheckBox*>("AncheDvbS2")->click();
  ASSERT_EQ(tree->topLevelItemCount(), 3);
  EXPECT_EQ(tree->topLevelItem(2)->text(0) + "|" + tree->topLevelItem(2)->text(2) + "|" +
                tree->topLevelItem(2)->text(3),
            "SR o FEC diverso|11766 V, SR 22000, FEC 3/4|3");
  Click("SelezionaSuTransponder");
  EXPECT_EQ(driver_->Grid().Selected(), Edit::Slots({1, 2, 3}));
  Click(*tree, tree->model()->index(2, 1), true);
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");

  const Routines::State before = List();
  Click("SegnaTutti");
  found->findChild<QCheckBox*>("Mostra_1")->click();
  EXPECT_EQ(found->findChild<QPushButton*>("ApplicaSegnati")->text(), "Applica i segnati (2)")
      << "only what is shown";
  found->findChild<QCheckBox*>("Mostra_1")->click();
  Click("SegnaTutti");
  Click("ApplicaSegnati");
  EXPECT_EQ(Said(),
            "Aggiornati 2 transponder: 1 aggiunto, 1 modificato, 1 lasciato: SR.INI non ha il suo SR");
  EXPECT_EQ(counts(), "13.ini: 1 differenza; 1 riga non è un transponder");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(List().TransponderTable, before.TransponderTable);

  found->findChild<QComboBox*>("SatelliteElenco")->setCurrentIndex(1);
  found->findChild<QCheckBox*>("Mostra_0")->click();
  Click("SegnaTutti");
  Click("ApplicaSegnati");
  EXPECT_EQ(Said(), "Nessun transponder aggiornato: 1 non tolto: ha canali");
}

}  // namespace Ui
