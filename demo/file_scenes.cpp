// Printing, saving, opening again, and unsaved work that comes back.
#include "session.h"
#include "ui/list/grid.h"

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace Demo {

void Session::PrintList() {
  PictureBoxes("dialog-print");
  driver_->Grid().clearSelection();
  const QString pdf = output_ + "/canali.pdf";
  driver_->ExpectDialog("Stampa Canali - " + QFileInfo(flash_).fileName(), [this](QDialog& preview) {
    GuideBox("stampa", preview);
    preview.findChild<QCheckBox*>("StampaCompatta")->click();
    preview.findChild<QAction*>("SalvaPdf")->trigger();
  });
  driver_->ExpectFile("Salva la stampa come PDF", pdf);
  const bool chosen = driver_->Choose("StampaGriglia");
  Step("print to a PDF", chosen && QFileInfo(pdf).size() > 10000, Said());
  const QString favourites = output_ + "/preferiti.pdf";
  driver_->ExpectDialog("Stampa Preferiti - " + QFileInfo(flash_).fileName(),
                        [](QDialog& preview) { preview.findChild<QAction*>("SalvaPdf")->trigger(); });
  driver_->ExpectFile("Salva la stampa come PDF", favourites);
  driver_->Choose("StampaPreferiti");
  driver_->onBox = nullptr;
  Step("print favourites", QFileInfo(favourites).size() > 10000, Said());
}

void Session::ShowAbout() {
  PictureBoxes("dialog-about");
  QString version;
  driver_->ExpectDialog("About", [this, &version](QDialog& box) {
    GuideBox("about", box);
    version = box.findChild<QLabel*>("Versione")->text();
    box.findChild<QPushButton*>("Chiudi")->click();
  });
  const bool chosen = driver_->Choose("About");
  driver_->onBox = nullptr;
  Step("about", chosen && !version.isEmpty(), version);
}

void Session::Convert() {
  const bool good = driver_->Pick("SRDef_1") && driver_->Choose("ConvertiSR");
  Step("convert symbol rates", good && driver_->TextOf("ModificheNonSalvate") == "Modifiche non salvate",
       Said());
}

void Session::SaveCopy() {
  PictureBoxes("dialog-save");
  driver_->ExpectFile("Selezionare la flash di output", copy_);
  driver_->ExpectMessage(QString("2 Sezioni TCS per %1 Canali effettivi\nSezioni Preferiti: scritta")
                             .arg(Routines::LastUsedChannel(List())));
  const bool chosen = driver_->Choose("ApriFlashOutput");
  Step("save into a copy",
       chosen && driver_->TextOf("FlashOutput") == "Flash di output : copia.dat" &&
           driver_->TextOf("ModificheNonSalvate").isEmpty() && QFile::exists(copy_ + ".bak"),
       Said() + "; " + driver_->TextOf("FlashOutput"));
}

void Session::SaveNewCopy() {
  driver_->ExpectFile("Salvare la copia nuova in", output_ + "/nuova.dat");
  driver_->ExpectMessage(QString("2 Sezioni TCS per %1 Canali effettivi\nSezioni Preferiti: scritta")
                             .arg(Routines::LastUsedChannel(List())));
  const bool chosen = driver_->Choose("SalvaCopiaNuova");
  Step("save a new copy", chosen && QFileInfo(output_ + "/nuova.dat").size() == QFileInfo(flash_).size(),
       Said());
}

void Session::OpenCopyAgain() {
  driver_->onBox = nullptr;
  const Routines::State before = List();
  driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
  driver_->ExpectFile("Selezionare la flash di input", copy_);
  const bool chosen = driver_->Choose("ApriFlashInput");
  const Routines::State& after = List();
  Step("open the copy again",
       chosen && after.ChannelTable == before.ChannelTable &&
           after.TransponderTable == before.TransponderTable &&
           after.FavouritesBlock == before.FavouritesBlock &&
           after.TransponderCount == before.TransponderCount,
       "same channels, transponders and favourites as before the save");
}

void Session::EndWithUnsavedWork() {
  driver_->SelectRows(2, 6);
  driver_->Press("Toolbar1_Cut");
  const Routines::State before = List();
  window_->close();
  CheckBoxes();
  bool good = Start();
  PictureBoxes("dialog-recover");
  driver_->ExpectDialog("Trovalis", [this](QDialog& box) {
    GuideBox("recupero", box);
    dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click();
  });
  window_->OfferKeptWork();
  const Routines::State& after = List();
  good = good && after.ChannelTable == before.ChannelTable && after.FavouritesBlock == before.FavouritesBlock;
  Step("recover unsaved work", good, Said() + "; " + driver_->TextOf("CanaliCopiati"));
}

}  // namespace Demo
