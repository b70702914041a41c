// Lists that leave the program and come in: texts, raw records, SatcoDX.
#include "base/code_page.h"
#include "formats/sdx_import.h"
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

namespace Ui {

TEST_F(Window, AListLeavesAsTextIsEditedAndComesBack) {
  const std::string output = folder_.Write("copia.dat", Contents(flash_));
  SaveAs(output, 647);
  const Routines::State before = List();
  const std::string path = folder_.Path("lista.txt");
  const Base::Bytes image = Contents(output);
  for (const std::string& flash : {flash_, output}) {
    ExpectOpenedFlashChosen("Selezionare il file di output", flash);
    ASSERT_TRUE(driver_->Choose("FormatoTesto"));
    EXPECT_EQ(Said(), "Non esportato: il file scelto è la flash aperta o quella di output");
    EXPECT_EQ(Contents(flash), image);
  }
  Export("FormatoTesto", path);
  EXPECT_EQ(Said(), "Esportato lista.txt: 21 codifiche cambiate");
  std::string text(Base::AsText(Contents(path)));
  text.replace(text.find("Rete Due "), 9, "Rinomina ");
  folder_.Write("lista.txt", "\xEF\xBB\xBF" + Base::ToUtf8(text));  // as editors of today save it

  const QString import = "Selezionare il file di testo contenente i CANALI e i TRANSPONDERS";
  ChooseFile("CaricaImportato", import, path);
  EXPECT_EQ(driver_->Cell(5, 1), "Rinomina");
  EXPECT_EQ(driver_->Cell(8, 1), "Città Più HD");
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 620 di 3996");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  EXPECT_EQ(driver_->TextOf("FlashOutput"), "Flash di output : nessuna");

  folder_.Write("lista.txt", "\xEF\xBB\xBF" + text.substr(0, text.find("[TRANSPONDERS]")));
  driver_->ExpectFile(import, PathText(path));
  Tells("DaEsportatoTesto", "Formato file invalido (Transponders) per " + PathText(path));
  EXPECT_EQ(Said(),
            "Importazione interrotta: letti 620 canali, scritti fra quelli della lista: Annulla la riporta "
            "com'era");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == before) << "each import is one step, a broken one too";
}

TEST_F(Window, RawRecordsComeFromTheFlashOnTheDisk) {
  const std::string path = folder_.Path("lista.fls");
  Delete(1, 1);
  {
    const Tests::FileSizeLimit limit(1000);
    driver_->ExpectFile("Selezionare il file di output", PathText(path));
    driver_->ExpectQuestion(
        "Impossibile scrivere trovalis.recupero: il file supera la dimensione consentita\n\n"
        "Le modifiche non salvate andrebbero perse. Si desidera continuare?",
        true);
    ASSERT_TRUE(driver_->Choose("FormatoFLASH"));
    EXPECT_EQ(Said(), "Impossibile scrivere lista.fls: il file supera la dimensione consentita");
    EXPECT_EQ(driver_->Cell(1, 1), "Rete Italia HD") << "a failed export leaves the edits";
  }
  Export("FormatoFLASH", path);
  EXPECT_EQ(driver_->Cell(1, 1), "Rete Italia") << "edits give way to the image as it is stored";
  EXPECT_EQ(Said(),
            "Esportato lista.fls; ricaricata la flash demo.dat al posto della lista di 619 canali con "
            "modifiche non "
            "salvate: Ctrl+Z la riporta");
  EXPECT_EQ(Action("Annulla").text(), "Annulla Ricarica Flash per l'esportazione");

  ChooseFile("DaEsportato", "Selezionare il file di da importare", path);
  EXPECT_FALSE(Action("ApriFlashInput").isEnabled());
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 620 di 3996");
  SaveAs(folder_.Write("copia.dat", Contents(flash_)), 647);
  EXPECT_TRUE(Action("ApriFlashInput").isEnabled())
      << "nothing is left that another list could take the place of";
  ASSERT_TRUE(driver_->Choose("Annulla"));

  std::filesystem::remove(flash_);
  std::filesystem::remove(path);
  driver_->ExpectFile("Selezionare il file di output", PathText(path));
  Tells("FormatoFLASH", "Impossibile leggere demo.dat: il file o la cartella non esiste",
        "Errore FLASH di Input");
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(Window, ASatcodxListGoesIntoTheChannelList) {
  std::string sdx;
  for (int i = 1; i <= 3; ++i) {
    sdx += "SATCODX103HOTBIRD 13E       TMPG2010971000HNuovo " + std::to_string(i) +
           " 0130___     ______29700200" + std::to_string(50 + i) + "0060005000" + std::to_string(70 + i) +
           "0031812300_________NAGV            \r\n";
  }
  const std::string low =
      std::string(sdx).replace(sdx.find("010971"), 6, "003720").substr(0, sdx.find('\n') + 1);
  const std::string path = folder_.Write("prova.sdx", sdx + "SATCODX corta\r\n" + low);
  const auto take = [this](auto answer) { driver_->ExpectDialog("Opzioni importazione SDX", answer); };
  driver_->ExpectFile("Selezionare il file SDX di input", PathText(path));
  take([this](QDialog& box) {
    driver_->ExpectMessage("Si deve specificare il codice da assegnare al satellite");
    box.findChild<QPushButton*>("Command1")->click();
    box.findChild<QComboBox*>("Combo1")->setCurrentIndex(0);
    driver_->ExpectMessage("Non sono state selezionate codifiche da importare");
    box.findChild<QPushButton*>("Command1")->click();
    EXPECT_EQ(box.findChild<QListWidget*>("List1")->count(), 2) << "NAGV and Tutte";
    box.findChild<QListWidget*>("List1")->selectAll();
    box.findChild<QPushButton*>("Command1")->click();
  });
  ASSERT_TRUE(driver_->Choose("SDX"));
  EXPECT_EQ(Said(), "prova.sdx: lette 5 righe, prese 4; scartate: symbol rate 1");
  auto* missing = window_->findChild<QDialog*>("ElencoNonInSDX");
  ASSERT_NE(missing, nullptr) << "the demo's own channels are not in that list";
  const Base::Bytes image = Contents(flash_);
  ExpectOpenedFlashChosen("Salva l'elenco");
  missing->findChild<QPushButton*>("SalvaNonInSDX")->click();
  EXPECT_EQ(Contents(flash_), image) << "no text is saved over the opened flash";
  missing->close();
  auto* pane = window_->findChild<Ui::Grid*>("GrigliaSDX");
  EXPECT_TRUE(pane->isVisible());
  EXPECT_EQ(pane->model()->rowCount(), 4);

  Tells("Toolbar1_Copy_SDX", "Nessun canale SDX selezionato");
  pane->Select({2, 3});
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 2", "3997");
  Tells("Toolbar1_Copy_SDX", "Posizione non valida");
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 2", "1");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  EXPECT_EQ(driver_->Cell(2, 1), "Nuovo 3");
  EXPECT_EQ(driver_->Cell(2, 2), "001") << "the transponder at 10971 MHz";
  EXPECT_EQ(driver_->Cell(3, 1), "Rete Italia");
  driver_->ExpectDialog("Importazione canali SDX", [](QDialog& box) {
    const auto* outcome = box.findChild<QLabel*>("EsitoImportazione");
    EXPECT_EQ(box.findChild<QLineEdit*>("Partenza")->text(), "650") << "behind the last channel";
    EXPECT_EQ(outcome->text(), "3 posti liberi per 3 canali; 1 riga fuori banda");
    box.findChild<QRadioButton*>("DallInizio")->click();
    EXPECT_EQ(outcome->text(), "sovrascrive 3 canali; 1 riga fuori banda");
    box.accept();
  });
  ASSERT_TRUE(driver_->Choose("ImportaTuttoSDX"));
  EXPECT_EQ(Said(), "Inseriti 3 canali SDX dal 1, sovrascritti 3 canali, 1 riga fuori banda");
  EXPECT_EQ(driver_->Cell(3, 1) + driver_->Cell(4, 1), "Nuovo 3Rete Italia HD") << "nothing moves";
  driver_->ExpectDialog("Importazione canali SDX", [](QDialog& box) {
    box.findChild<QLineEdit*>("Partenza")->setText("3995");
    box.accept();
  });
  Tells("ImportaTuttoSDX", "1 canale SDX non ha trovato posto");
  EXPECT_EQ(driver_->Cell(3996, 1), "Nuovo 2");
  EXPECT_EQ(pane->Selected()->first, 3) << "for another place";
  driver_->ExpectDialog("Importazione canali SDX", [](QDialog& box) {
    const auto* confirm = box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    EXPECT_EQ(box.findChild<QLineEdit*>("Partenza")->text(), "");
    EXPECT_FALSE(confirm->isEnabled()) << "nothing is free behind the last channel";
    box.findChild<QRadioButton*>("NeiPostiVuoti")->click();
    EXPECT_TRUE(confirm->isEnabled());
    box.accept();
  });
  const auto gaps = Formats::EmptySlots(List(), 3);
  ASSERT_TRUE(driver_->Choose("ImportaTuttoSDX"));
  EXPECT_EQ(Said(), "Inseriti 3 canali SDX nei posti vuoti, 1 riga fuori banda");
  EXPECT_EQ(driver_->Cell(gaps[2], 1), "Nuovo 3");

  pane->Select({1, 1});
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 1", "3996");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  EXPECT_EQ(Said(), "Inserito 1 canale SDX dal 3996, persi in fondo: 3996 Nuovo 2");
  ASSERT_TRUE(driver_->Choose("InvertiSatelliti"));
  EXPECT_EQ(driver_->TextOf("RisultatoConPerdite"),
            "⚠ Inserito 1 canale SDX dal 3996, persi in fondo: 3996 Nuovo 2")
      << "beside what is said later";
  Click("QualiCanali");
  auto* lost = window_->findChild<QPlainTextEdit*>("RigheCanaliPersi");
  ASSERT_NE(lost, nullptr);
  EXPECT_EQ(lost->toPlainText(), "3996 Nuovo 2\n");
  lost->window()->close();
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_FALSE(window_->findChild<QWidget*>("RisultatoConPerdite")->isVisible());
}

TEST(FileFilters, KeepCaptionsAndMatchAnyCase) {
  EXPECT_EQ(NameFilters("Binary files(*.dat)|*.dat|Tutti i file (*.*)|*.*|"),
            QStringList({"Binary files(*.dat) (*.[dD][aA][tT])", "Tutti i file (*.*) (*)"}));
}

}  // namespace Ui
