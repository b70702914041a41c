// Looking a list over: beside the disk, a spreadsheet, an order and other transponders, and for channels twice in it.
#include "model/cells.h"
#include "session.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace Demo {

// A few changes, one of which is taken back from the disk.
void Session::CompareWithDisk() {
  EditCell(2, Routines::ChannelColumn::Name, "Canale Mio");
  EditCell(6, Routines::ChannelColumn::Vpid, "513");
  driver_->SelectRows(14, 15);
  driver_->Choose("Elimina");
  driver_->SelectRows(20, 20);
  driver_->ExpectLine("Inserire il numero di canale a cui spostare", "3");
  driver_->Choose("SpostaA");
  driver_->Choose("ConfrontaDisco");
  auto* table = window_->findChild<QTableView*>("Differenze");
  if (table == nullptr) return Step("compare with the disk", false, "no window");
  table->selectRow(0);
  QTest::keyClick(table, Qt::Key_Space);
  Step("compare with the disk", table->model()->rowCount() == 5,
       QString("%1 differences").arg(table->model()->rowCount()));
  GuideBox("confronto", *table->window());
  QTest::mouseClick(table->window()->findChild<QPushButton*>("ApplicaSegnati"), Qt::LeftButton);
  Step("take back one change", table->model()->rowCount() == 4, Said());
  table->window()->close();
  Undo(5);
}

// Copies of four channels are found and taken out again.
void Session::RemoveDuplicates() {
  const Routines::State before = List();
  driver_->SelectRows(34, 37);
  driver_->Press("Toolbar1_Copy");
  driver_->ExpectLine("Inserire il numero di canale da cui inserire", "60");
  driver_->ExpectQuestion(
      "Sposto o sovrascrivo i canali a partire dal 60 per 4 Canali?\n"
      "Rispondere SI per spostare NO per sovrascrivere",
      true);
  driver_->Press("Toolbar1_Paste");
  driver_->Choose("CanaliDoppi");
  auto* found = window_->findChild<QDialog*>("FinestraCanaliDoppi");
  const QString counts = driver_->TextOf("ConteggioDoppi");
  Step("duplicates", counts == "4 gruppi, 8 canali, 0 scelti", counts);
  if (found == nullptr) return;
  found->findChild<QAction*>("TieniPreferito")->trigger();
  Step("which one to keep", driver_->TextOf("ConteggioDoppi") == "4 gruppi, 8 canali, 4 scelti",
       driver_->TextOf("ConteggioDoppi"));
  GuideBox("doppi", *found);
  found->findChild<QPushButton*>("EliminaScelti")->click();
  Step("delete duplicates", List().ChannelTable == before.ChannelTable, Said());
  found->close();
}

// A name that was changed in a spreadsheet comes back as a difference.
void Session::CompareWithSpreadsheet() {
  QFile exported(output_ + "/canali.csv");
  QFile changed(output_ + "/modificato.csv");
  if (!exported.open(QIODevice::ReadOnly) || !changed.open(QIODevice::WriteOnly))
    return Step("changed in a spreadsheet", false, "no file");
  changed.write(exported.readAll().replace(";Rete Due;", ";Rete 2;"));
  changed.close();
  driver_->ExpectFile("Selezionare il file CSV", changed.fileName());
  driver_->Choose("DaCSV");
  auto* table = window_->findChild<QTableView*>("Differenze");
  if (table == nullptr) return Step("changed in a spreadsheet", false, "no window");
  Step("changed in a spreadsheet", table->model()->rowCount() == 1,
       table->model()->index(0, 1).data().toString() + ": " + table->model()->index(0, 4).data().toString());
  table->window()->close();
}

// The channels of the first favourites list before all others, in its order.
void Session::OrderAsFavourites() {
  driver_->ExpectDialog("Trovalis", [](QDialog& box) {
    box.findChild<QComboBox*>()->setCurrentIndex(1);
    box.accept();
  });
  driver_->Choose("OrdinaCome");
  auto* found = window_->findChild<QDialog*>("FinestraConfronto");
  if (found == nullptr) return Step("order as favourites", false, "no window");
  found->findChild<QCheckBox*>("Mostra_0")->click();
  GuideBox("ordine", *found);
  found->findChild<QPushButton*>("PrendiOrdine")->click();
  Step("order as favourites", driver_->Cell(1, 1) == "Cine Prima +1",
       Said() + "; first " + driver_->Cell(1, 1));
  found->close();
  Undo();
}

void Session::CheckTransponders() {
  driver_->ExpectFile("Selezionare l'elenco di transponder", WriteListOfToday());
  driver_->Choose("ControllaTransponder");
  auto* found = window_->findChild<QDialog*>("FinestraControlloTransponder");
  if (found == nullptr) return Step("check transponders", false, "no window");
  const QString counts = driver_->TextOf("ConteggioControllo");
  GuideBox("controllo", *found);
  found->findChild<QPushButton*>("SegnaTutti")->click();
  found->findChild<QPushButton*>("ApplicaSegnati")->click();
  const QString said = Said();
  found->close();
  Undo();
  Step("check transponders", counts == "channels.conf: 3 differenze" && said.startsWith("Aggiornati 2"),
       counts + "; " + said);
}

}  // namespace Demo
