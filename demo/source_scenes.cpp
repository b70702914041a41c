// Rows from elsewhere: SatcoDX lists, a second flash, other programs, lists of today.
#include "edit/list_operations.h"
#include "formats/vdr_writer.h"
#include "session.h"
#include "ui/list/grid.h"

#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QStringList>

#include <string>

namespace Demo {

void Session::TakeFromSdx() {
  PictureBoxes("dialog-sdx");
  driver_->ExpectFile("Selezionare il file SDX di input", QFileInfo(flash_).path() + "/demo.sdx");
  driver_->ExpectDialog("Opzioni importazione SDX", [](QDialog& box) {
    box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
    auto* codes = box.findChild<QListWidget*>("List1");
    codes->item(codes->count() - 1)->setSelected(true);
    box.findChild<QPushButton*>("Command1")->click();
  });
  const bool chosen = driver_->Choose("SDX");
  if (auto* missing = window_->findChild<QDialog*>("ElencoNonInSDX")) missing->close();
  Step("satcodx list", chosen && window_->findChild<QWidget*>("GrigliaSDX")->isVisible(), Said());
  Guide("sdx");
  window_->findChild<Ui::Grid*>("GrigliaSDX")->SelectRow(7);
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuova Rete 1", "3");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
  const bool pressed = driver_->Press("Toolbar1_Copy_SDX");
  Step("copy a new channel", pressed && driver_->Cell(3, 1) == "Nuova Rete 1",
       Said() + ": " + driver_->Cell(3, 1));
  driver_->onBox = nullptr;
  driver_->Choose("VediSDX");
}

void Session::ShowAdditionalFlash() {
  driver_->ExpectFile("Selezionare la flash aggiuntiva", flash_);
  const bool chosen = driver_->Choose("CaricaAggiuntiva");
  Step("additional flash", chosen && driver_->TextOf("EtichettaSDX") == "SDX: demo.dat", Said());
  Guide("aggiuntiva");
}

void Session::ImportForeignList() {
  PictureBoxes("dialog-foreign");
  driver_->ExpectFile("Selezionare il file da importare", foreign_);
  driver_->ExpectDialog("Da File Pelko", [this](QDialog& box) {
    box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
    GuideBox("altri-programmi", box);
    box.findChild<QPushButton*>("Command1")->click();
  });
  const bool chosen = driver_->Choose("Pelko");
  Step("list of another program", chosen && driver_->TextOf("EtichettaSDX") == "SDX: demo.csv", Said());
  driver_->Choose("VediSDX");
}

// The own list as a recorder would have it today: one channel renamed, two gone, one broadcast otherwise, one in HD.
QString Session::WriteListOfToday() const {
  const std::string own =
      Formats::WriteVdrChannels(List(), Edit::SlotRun(1, List().ChannelCount), {{0, "S13.0E"}, {1, "S19.2E"}})
          .text;
  QStringList lines = QString::fromStdString(own).split('\n', Qt::SkipEmptyParts);
  lines.replaceInStrings(QRegularExpression("^Rete Due;"), "Rete Due Nuova;");
  lines.replaceInStrings(QRegularExpression(":11784:HC34"), ":11784:HC56");
  lines = lines.filter(QRegularExpression("^(?!Fede e Vita;|Tele Penisola;|[^:]*:10719:)"));
  lines += "Rete Italia 4K;Reti Nazionali:11449:VC34M5S1:S13.0E:29900:512=36:650:0:0:901:318:12500:0";
  lines += "Rete Nuova;Reti Nazionali:11432:VC56M2S0:S13.0E:27500:512=2:650:0:0:902:318:12900:0";
  QFile file(output_ + "/channels.conf");
  if (file.open(QIODevice::WriteOnly)) file.write(lines.join('\n').toUtf8() + '\n');
  return file.fileName();
}

// Beside the channels, and then what it has otherwise taken over at one go.
void Session::TakeFromListOfToday() {
  driver_->ExpectFile("Selezionare la lista da importare", WriteListOfToday());
  driver_->ExpectDialog("Da lista VDR, DVBv5 o Enigma2", [this](QDialog& box) {
    GuideBox("liste-di-oggi", box);
    box.findChild<QPushButton*>("Command1")->click();
  });
  const bool chosen = driver_->Choose("ImportaElenco");
  Step("list of today", chosen && driver_->TextOf("EtichettaSDX") == "SDX: channels.conf", Said());
  driver_->Choose("ConfrontaSDX");
  auto* found = window_->findChild<QDialog*>("FinestraConfronto");
  if (found == nullptr) return Step("brought up to date", false, "no window");
  found->findChild<QPushButton*>("SegnaTutti")->click();
  found->findChild<QPushButton*>("ApplicaSegnati")->click();
  Step("brought up to date", Said().startsWith("Applicate"), Said());
  found->close();
  Undo();
  driver_->Choose("VediSDX");
}

}  // namespace Demo
