// Rows that come into the SDX table from a second flash and from texts of other programs.
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

#include <QScrollArea>
#include <QShowEvent>

namespace Ui {
namespace {

void ImportInto(QDialog& box) {
  box.findChild<QComboBox*>("Combo1")->setCurrentIndex(1);
  box.findChild<QPushButton*>("Command1")->click();
}

}  // namespace

TEST_F(SmallWindow, ASecondFlashStandsBesideTheListAndLeavesItAlone) {
  const Routines::State before = List();
  const QString dialog = "Selezionare la flash aggiuntiva";
  driver_->ExpectFile(dialog, PathText(folder_.Write("corta.dat", "abc")));
  Tells("CaricaAggiuntiva", "Dimensione FLASH selezionata errata 3", "Errore FLASH di Input");
  auto* pane = window_->findChild<Ui::Grid*>("GrigliaSDX");
  EXPECT_FALSE(pane->isVisible());

  ChooseFile("CaricaAggiuntiva", dialog, flash_);
  EXPECT_EQ(Said(), "lista.dat: letti 11 canali");
  EXPECT_EQ(driver_->TextOf("EtichettaSDX"), "SDX: lista.dat");
  EXPECT_EQ(pane->model()->rowCount(), 11);
  EXPECT_TRUE(List() == before);

  pane->Select({1, 2});
  driver_->ExpectLine("Inserire la posizione in cui inserire Uno", "700");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", false);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  EXPECT_TRUE(List().Channel(700) == before.Channel(1)) << "the same transponder too";
}

TEST_F(SmallWindow, AListOfAnotherProgramIsSettledOnceAndRemembered) {
  const QString dialog = "Selezionare il file da importare";
  driver_->ExpectFile(dialog, PathText(flash_));
  Tells("Pelko", "lista.dat non è un file di testo");

  const std::string path =
      folder_.Write("lista.csv", "Uno;99;11766;V;10\nDue;98;12092;H;11\nTre;97;x;H;12\n");
  driver_->ExpectFile(dialog, PathText(path));
  driver_->ExpectDialog("Da File Pelko", [this](QDialog& box) {
    const auto column = [&box](int i) { return box.findChild<QComboBox*>(QString("Contenuto_%1").arg(i)); };
    EXPECT_EQ(column(0)->currentText(), "Nome");
    column(2)->setCurrentText("—");
    EXPECT_FALSE(box.findChild<QPushButton*>("Command1")->isEnabled()) << "no frequency";
    column(2)->setCurrentText("Frequenza");
    column(1)->setCurrentText("SID");
    column(4)->setCurrentText("SID");
    EXPECT_EQ(column(1)->currentText(), "—") << "a field stands in one column";
    box.findChild<QCheckBox*>("Esadecimale_4")->setChecked(true);
    box.findChild<QCheckBox*>("Virgolette")->click();
    EXPECT_EQ(column(4)->currentText(), "SID") << "as many columns, the same choices";
    EXPECT_TRUE(box.findChild<QLabel*>("Esito")->text().startsWith(
        "2 righe su 3 darebbero canali; le altre: frequenza non valida 1."));
    driver_->ExpectMessage("Si deve specificare il codice da assegnare al satellite");
    box.findChild<QPushButton*>("Command1")->click();
    ImportInto(box);
  });
  ASSERT_TRUE(driver_->Choose("Pelko"));
  EXPECT_EQ(Said(), "lista.csv: lette 3 righe, prese 2; scartate: frequenza non valida 1");
  auto* rows = window_->findChild<Ui::Grid*>("GrigliaSDX")->model();
  EXPECT_EQ(rows->index(1, 3).data().toString(), "17") << "hexadecimal";
  EXPECT_EQ(rows->index(1, 10).data().toString(), "SAT B");

  std::string many;
  for (int i = 0; i < 4001; ++i) many += "Nuovo;1;11766;V;20\n";
  const std::string next = folder_.Write("seconda.csv", many);
  driver_->ExpectFile(dialog, PathText(next));
  driver_->ExpectDialog("Da File Pelko", ImportInto);
  Tells("Pelko", "Superato il numero di canali SDX gestibili 4000");
  EXPECT_EQ(rows->rowCount(), 4000);
  EXPECT_EQ(rows->index(0, 3).data().toString(), "32") << "as chosen for the last file";

  driver_->ExpectFile(dialog, PathText(next));
  driver_->ExpectDialog("Da File Digiquest/FortecStar", [](QDialog& box) {
    EXPECT_EQ(box.findChild<QComboBox*>("Contenuto_4")->currentText(), "—")
        << "each kind has choices of its own";
    box.reject();
  });
  ASSERT_TRUE(driver_->Choose("Digiquest"));
  EXPECT_EQ(rows->rowCount(), 4000) << "a cancelled import leaves the rows";
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  Tells("Digiquest", "Per Caricare un file SDX si deve visualizzare la griglia Canali");
}

TEST_F(Window, AListOfTodayBringsTheSatellitesOfItsPositions) {
  const QString dialog = "Selezionare la lista da importare";
  driver_->ExpectFile(dialog, PathText(flash_));
  Tells("ImportaElenco", "demo.dat non è una lista VDR, DVBv5, zap o Enigma2 (lamedb)");

  // A service on each transponder of satellite B.
  std::string text;
  for (int slot = 1; slot <= List().TransponderCount; ++slot) {
    const Routines::TransponderRecord& record = List().Transponder(slot).record;
    if (Get(record, Routines::TransponderField::Satellite) != 1) continue;
    const bool horizontal = Get(record, Routines::TransponderField::Horizontal) != 0;
    text += "Su " + std::to_string(slot) + ":" + std::to_string(FrequencyMHz(record)) +
            (horizontal ? ":HC34S0" : ":VC34S0") + ":S19.2E:27500:1:2:0:0:" + std::to_string(slot) +
            ":1:1:0\n";
  }
  const auto lines = std::count(text.begin(), text.end(), '\n');
  text +=
      "Criptato:11766:VC34S0:S13E:27500:1:2:0:100:7:1:1:0\nNuovo:11766:VS1:S19.2E:27500:1:2:0:0:8:1:1:0\n";
  driver_->ExpectFile(dialog, PathText(folder_.Write("canali", text)));
  driver_->ExpectDialog("Da lista VDR, DVBv5 o Enigma2", [&](QDialog& box) {
    // As on a screen too small for the dialog, which then scrolls.
    box.findChild<QListWidget*>("List1")->setMinimumHeight(3000);
    QShowEvent again;
    QApplication::sendEvent(&box, &again);
    EXPECT_NE(box.findChild<QScrollArea*>(), nullptr);
    const auto* positions = box.findChild<QTableWidget*>("Posizioni");
    EXPECT_EQ(positions->item(1, 0)->text() + " " + positions->item(1, 1)->text(), "13.0E 1");
    auto* second = box.findChild<QComboBox*>("Satellite_192");
    EXPECT_TRUE(second->currentText().endsWith("SAT B")) << second->currentText().toStdString();
    EXPECT_EQ(box.findChild<QComboBox*>("Satellite_130")->currentText(), "non importare");
    EXPECT_EQ(box.findChild<QLabel*>("Esito")->text(),
              QString("%1 su %2 saranno presi; gli altri: DVB-S2 1, satellite non scelto 1.")
                  .arg(lines)
                  .arg(lines + 2));
    second->setCurrentIndex(0);
    driver_->ExpectMessage("Si deve specificare il codice da assegnare al satellite");
    box.findChild<QPushButton*>("Command1")->click();
    second->setCurrentIndex(2);
    box.findChild<QComboBox*>("Satellite_130")->setCurrentIndex(1);
    box.findChild<QCheckBox*>("TieniHD")->click();
    auto* codings = box.findChild<QListWidget*>("List1");
    EXPECT_EQ(codings->item(1)->text(), "24 Seca: 1 canale");
    codings->item(1)->setSelected(true);
    codings->item(2)->setSelected(false);
    EXPECT_EQ(box.findChild<QLabel*>("Esito")->text(),
              QString("1 su %1 sarà preso; gli altri: codifica %2.").arg(lines + 2).arg(lines + 1));
    box.findChild<QPushButton*>("Command1")->click();
  });
  ASSERT_TRUE(driver_->Choose("ImportaElenco"));
  EXPECT_EQ(Said(), "canali: lette " + std::to_string(lines + 2) + " righe, prese 1; scartate: codifica " +
                        std::to_string(lines + 1));
  EXPECT_EQ(driver_->TextOf("EtichettaSDX"), "SDX: canali");

  ASSERT_TRUE(driver_->Choose("ConfrontaSDX"));
  const auto* compared = window_->findChild<QDialog*>("FinestraConfronto");
  EXPECT_EQ(compared->findChild<QCheckBox*>("Mostra_1")->text(), "Solo a destra (1)");
  EXPECT_FALSE(compared->findChild<QCheckBox*>("Mostra_0")->isChecked()) << "a part of what there is";
  Click("SegnaTutti");
  compared->findChild<QComboBox*>("PostoNuovi")->setCurrentIndex(1);
  Click("ApplicaSegnati");
  EXPECT_EQ(Said(), "Applicata 1 differenza: 1 canale aggiunto nei posti vuoti");
}

}  // namespace Ui
