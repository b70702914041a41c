// Lists that leave the program and come in as texts, raw records and spreadsheets.
#include "base/code_page.h"
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

namespace Ui {

class Exchange : public SmallWindow {
 protected:
  const QString importText_ = "Selezionare il file di testo contenente i CANALI e i TRANSPONDERS";
  const std::string text_ = folder_.Path("lista.txt");
  const std::string raw_ = folder_.Path("lista.fls");
};

TEST_F(Exchange, AListLeavesAsTextIsEditedAndComesBack) {
  Export("FormatoTesto", text_);
  EXPECT_EQ(Said(), "Esportato lista.txt: 1 codifica cambiata");
  std::string text(Base::AsText(Contents(text_)));
  text.replace(text.find("Due     "), 8, "Rinomina");
  folder_.Write("lista.txt", "\xEF\xBB\xBF" + Base::ToUtf8(text));  // as editors of today save it
  SaveAs(folder_.Write("copia.dat", Contents(flash_)), 12);
  ChooseFile("CaricaImportato", importText_, text_);
  EXPECT_EQ(Names(1, 6), "Uno,Rinomina,Tre,,Cinque,Città HD");
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 11 di 999");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  EXPECT_EQ(driver_->TextOf("FlashOutput"), "Flash di output : nessuna");
}

TEST_F(Exchange, ABrokenTextIsOneStep) {
  Export("FormatoTesto", text_);
  const Routines::State before = List();
  const std::string text(Base::AsText(Contents(text_)));
  folder_.Write("lista.txt", text.substr(0, text.find("[TRANSPONDERS]")));
  driver_->ExpectFile(importText_, PathText(text_));
  Tells("DaEsportatoTesto", "Formato file invalido (Transponders) per " + PathText(text_));
  EXPECT_EQ(
      Said(),
      "Importazione interrotta: 11 canali letti, scritti fra quelli della lista: Annulla la riporta com'era");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == before);
}

TEST_F(Exchange, NoExportGoesIntoAFlash) {
  const std::string output = folder_.Write("copia.dat", Contents(flash_));
  SaveAs(output, 12);
  const Base::Bytes images[] = {Contents(flash_), Contents(output)};
  for (const std::string& flash : {flash_, output}) {
    ExpectOpenedFlashChosen("Selezionare il file di output", flash);
    ASSERT_TRUE(driver_->Choose("FormatoTesto"));
    EXPECT_EQ(Said(), "Non esportato: il file scelto è la flash aperta o quella di output");
  }
  EXPECT_TRUE(Contents(flash_) == images[0] && Contents(output) == images[1]);
  ExpectOpenedFlashChosen("Selezionare il file di output", folder_.Write("altra.dat", images[0]));
  ASSERT_TRUE(driver_->Choose("FormatoTesto"));
  EXPECT_EQ(Said(), "Non esportato: il file scelto sembra l'immagine di un ricevitore");
  EXPECT_TRUE(Contents(folder_.Path("altra.dat")) == images[0]);
}

#ifndef _WIN32
TEST_F(Exchange, RawRecordsComeFromTheFlashOnTheDisk) {
  Delete(1, 1);
  {
    const Tests::FileSizeLimit limit(100);
    driver_->ExpectFile("Selezionare il file di output", PathText(raw_));
    driver_->ExpectQuestion(
        "Impossibile scrivere trovalis.recupero: il file supera la dimensione consentita\n\n"
        "Le modifiche non salvate andrebbero perse. Si desidera continuare?",
        true);
    ASSERT_TRUE(driver_->Choose("FormatoFLASH"));
    EXPECT_EQ(Said(), "Impossibile scrivere lista.fls: il file supera la dimensione consentita");
    EXPECT_EQ(driver_->Cell(1, 1), "Due") << "a failed export leaves the edits";
  }
  Export("FormatoFLASH", raw_);
  EXPECT_EQ(driver_->Cell(1, 1), "Uno") << "edits give way to the image as it is stored";
  EXPECT_EQ(
      Said(),
      "Esportato lista.fls; ricaricata la flash lista.dat al posto della lista di 10 canali con modifiche "
      "non salvate: Ctrl+Z la riporta");
  EXPECT_EQ(Action("Annulla").text(), "Annulla: Ricaricata lista.dat");
  ChooseFile("DaEsportato", "Selezionare il file di da importare", raw_);
  EXPECT_FALSE(Action("ApriFlashInput").isEnabled());
  SaveAs(folder_.Write("copia.dat", Contents(flash_)), 12);
  EXPECT_TRUE(Action("ApriFlashInput").isEnabled())
      << "nothing is left that another list could take the place of";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  std::filesystem::remove(flash_);
  driver_->ExpectFile("Selezionare il file di output", PathText(folder_.Path("altra.fls")));
  Tells("FormatoFLASH", "Impossibile leggere lista.dat: il file o la cartella non esiste",
        "Errore FLASH di Input");
}
#endif

TEST_F(Exchange, SpreadsheetsGetTheListShownOrItsSelectedRows) {
  const std::string path = folder_.Path("lista.csv");
  const auto lines = [&] {
    driver_->ExpectFile("Selezionare il file di output", PathText(path));
    EXPECT_TRUE(driver_->Choose("FormatoCSV"));
    const Base::Bytes bytes = Contents(path);
    std::filesystem::remove(path);
    return std::count(bytes.begin(), bytes.end(), '\n') - 1;
  };
  EXPECT_EQ(lines(), 11);
  driver_->Grid().Select({1, 3, 9});
  driver_->ExpectQuestion("Esportare solo le righe selezionate?", true);
  EXPECT_EQ(lines(), 3);
  driver_->ExpectCancelledQuestion("Esportare solo le righe selezionate?");
  ASSERT_TRUE(driver_->Choose("FormatoCSV"));
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_EQ(lines(), 3);
}

TEST(FileFilters, KeepCaptionsAndMatchAnyCase) {
  EXPECT_EQ(NameFilters("Binary files(*.dat)|*.dat|Tutti i file (*.*)|*.*|"),
            QStringList({"Binary files(*.dat) (*.[dD][aA][tT])", "Tutti i file (*.*) (*)"}));
}

}  // namespace Ui
