// Rows that come into the SDX table from a second flash and from texts of other programs.
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

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

}  // namespace Ui
