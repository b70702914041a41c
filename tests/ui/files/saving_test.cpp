// Opening and saving flash images.
#include "base/file.h"
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

#include <sys/stat.h>

namespace Ui {

class Saving : public SmallWindow {};

TEST_F(Saving, RefusesWhatNeedsAFlash) {
  StartEmpty();
  EXPECT_EQ(window_->windowTitle(), "Trovalis  - Versione 1.0ß");
  for (const char* name : {"Salva", "ApriFlashOutput", "ConvertiSR"})
    EXPECT_FALSE(Action(name).isEnabled()) << name;
  EXPECT_FALSE(Action("CambiaNomi").isEnabled()) << "it would refuse for the want of a view, not of a list";
  Tells("ApriFlashInput", "Si deve selezionare il numero di canali da visualizzare");
  for (const char* name : {"VisualizzaCanali", "VisualizzaTransponder", "VisualizzaBouquet", "Riepilogo",
                           "Confronta", "ConfrontaDisco", "CanaliDoppi", "SpostaRadio", "Toolbar1_Save"}) {
    Tells(name, NoFlash);
    const auto* action = window_->findChild<QAction*>(name);
    EXPECT_FALSE(action != nullptr && action->isChecked()) << name << " gets its old check mark back";
  }
}

TEST_F(Saving, WhoReadsOnlyAPartIsToldWhenOpeningAndWhenSaving) {
  Open(folder_.Write("altro.dat", Samples::ImageBuilder(1).Image()), "QuantiCanali_0");
  EXPECT_EQ(
      Said(),
      "altro.dat: letti 0 canali - nel file non c'è una lista, forse non è l'immagine di questo tipo di "
      "ricevitore");
  const std::vector<Routines::ChannelRecord> channels(1100, Samples::MakeChannel("Uno", 1, 1, 500, 600, 4));
  const std::vector transponders = {Samples::MakeTransponder(11766, false, 0, 3, 2, 1200, 318)};
  const auto whole = Samples::ImageBuilder(2)
                         .PutRecords(1, 0, 16, "TCS", channels)
                         .PutRecords(2, 0, 16, "TPT", transponders)
                         .Image();
  const std::string path = folder_.Write("intera.dat", whole);
  Open(path, "QuantiCanali_0");
  EXPECT_EQ(Said(),
            "intera.dat: letti 999 di 1100 canali - per leggerli tutti scegliere in Canali da copiare un "
            "numero più "
            "grande e riaprire la flash");
  ASSERT_TRUE(driver_->Pick("FlashScrittura_0"));
  driver_->ExpectFile(OutputDialog, PathText(path));
  Summary(*driver_, 1, 999, false);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_EQ(
      Said(),
      "Scritta intera.dat (999 canali, fino al posto 999; prima ne aveva 1100) - com'era prima resta in "
      "intera.dat.bak");
}

TEST_F(Window, AWholeSessionGivesTheSameListBack) {
  EXPECT_EQ(window_->windowTitle(), "Trovalis  - Versione 1.0ß (" + PathText(flash_) + ")");
  EXPECT_EQ(driver_->Cell(7, 1), "Città Più");
  EXPECT_EQ(Said(), "demo.dat: letti 620 canali");
  ASSERT_TRUE(driver_->Pick("SRDef_1"));
  ASSERT_TRUE(driver_->Choose("ConvertiSR"));
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  const Routines::State before = List();
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  SaveAs(copy, 647);
  EXPECT_EQ(List().MaxChannels, 0);
  EXPECT_EQ(driver_->TextOf("FlashOutput"), "Flash di output : copia.dat");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "");
  EXPECT_TRUE(Contents(copy + ".bak") == Contents(flash_));
  const Base::Bytes written = Contents(copy);
  Summary(*driver_, 2, 647, true);
  ASSERT_TRUE(driver_->Choose("Salva"));
  EXPECT_TRUE(Contents(copy) == written) << "a second save writes the same";
  Open(copy);
  EXPECT_TRUE(
      List().ChannelTable == before.ChannelTable && List().TransponderTable == before.TransponderTable &&
      List().FavouritesBlock == before.FavouritesBlock && List().SymbolRateTable == before.SymbolRateTable);
}

#ifndef _WIN32
TEST_F(Saving, WhatIsWrittenOverByAnotherNameIsSavedNoLonger) {
  const std::string image = folder_.Write("a.dat", Contents(flash_));
  std::filesystem::create_symlink("a.dat", folder_.Path("b.dat"));
  Delete(12, 12);
  SaveAs(image, 11);
  Open(flash_);
  EXPECT_EQ(driver_->TextOf("FlashOutput"), "Flash di output : nessuna") << "a load forgets the output";
  SaveAs(folder_.Path("b.dat"), 12);
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
}
#endif

TEST_F(Saving, TheFirstSaveBeginsBesideTheFlashAndACopyIsMadeAnew) {
  const std::string flashes = folder_.Path("flash");
  std::filesystem::create_directory(flashes);
  const std::string opened = folder_.Write("flash/mia.dat", Contents(flash_));
  const std::string other = folder_.Write("flash/altra.dat", Contents(flash_));
  Open(opened, "QuantiCanali_0");
  Delete(12, 12);
  driver_->ExpectFile(OutputDialog, "altra.dat");
  Summary(*driver_, 2, 11, true);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  Open(opened, "QuantiCanali_0");
  Delete(12, 12);
  const auto copy = [this](const QString& name) { driver_->ExpectFile("Salvare la copia nuova in", name); };
  copy("mia.dat");
  Tells("SalvaCopiaNuova", "Impossibile scrivere mia.dat: esiste già", "Errore FLASH di Output");
  EXPECT_TRUE(Contents(opened) == Contents(flash_));
  copy("nuova.dat");
  Summary(*driver_, 2, 11, true);
  ASSERT_TRUE(driver_->Choose("SalvaCopiaNuova"));
  EXPECT_EQ(Said(), "Scritta nuova.dat (10 canali, fino al posto 11)");
  EXPECT_EQ(List().OutputFlash, Base::PathIn(flashes, "nuova.dat"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "");
  EXPECT_TRUE(Contents(Base::PathIn(flashes, "nuova.dat")) == Contents(other))
      << "what an existing image gets";
  Summary(*driver_, 2, 11, true);
  ASSERT_TRUE(driver_->Choose("Salva"));
  EXPECT_FALSE(std::filesystem::exists(Base::PathIn(flashes, "nuova.dat.bak")));
  const std::string chosen = folder_.Path("scelta");
  std::filesystem::create_directory(chosen);
  copy(PathText(Base::PathIn(chosen, "b.dat")));
  Summary(*driver_, 2, 11, true);
  ASSERT_TRUE(driver_->Choose("SalvaCopiaNuova"));
  folder_.Write("flash/mia.dat", Base::Bytes(3, 'x'));
  Tells("SalvaCopiaNuova", "Dimensione FLASH selezionata errata 3", "Errore FLASH di Input");
  std::filesystem::copy(flash_, Base::PathIn(chosen, "c.dat"));
  driver_->ExpectFile(OutputDialog, "c.dat");
  Summary(*driver_, 2, 11, true);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_EQ(List().OutputFlash, Base::PathIn(chosen, "c.dat")) << "the folder chosen last";
}

TEST_F(Saving, AppendingAsksTwice) {
  const QString append = "Si desidera accodare la nuova Flash a quella già caricata?";
  const QString sameKind = "La flash che si sta accodando è dello stesso dipo di quella già caricata?";
  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion(sameKind, false);
  ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 11 di 999");
  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion(sameKind, true);
  ChooseFile("ApriFlashInput", InputDialog, flash_);
  EXPECT_EQ(Names(12, 16), "Dodici,,Uno,Due,Tre");
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 22 di 1998");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
}

TEST_F(Saving, ARepeatedMessageCanBeSilenced) {
  const auto image = [this](const char* name, int megahertz) {
    Samples::ImageBuilder builder(1);
    std::vector<Routines::TransponderRecord> transponders;
    for (int i = 0; i < 4; ++i)
      transponders.push_back(Samples::MakeTransponder(megahertz + 100 * i, true, 0, 1, 2));
    builder.PutRecords(1, 0, 16, "TCS", std::vector{Samples::MakeChannel("x", 2, 1, 1, 1)});
    return folder_.Write(name, builder.PutRecords(1, 1, 900, "TPT", transponders).Image());
  };
  Open(image("uno.dat", 10800));
  driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", true);
  driver_->ExpectQuestion("La flash che si sta accodando è dello stesso dipo di quella già caricata?", true);
  driver_->ExpectFile(InputDialog, PathText(image("due.dat", 11300)));
  const QString full =
      "Superato il numero di transponders gestibili 4\ncollego i canali restanti sul transponder 4";
  driver_->ExpectMessage(full);
  driver_->ExpectMessage(full);
  driver_->ExpectDialog("Trovalis", [](QDialog& box) {
    box.findChild<QCheckBox*>("NonRipetere")->click();
    box.accept();
  });
  ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
  EXPECT_EQ(Said(),
            "due.dat: accodato 1 canale, 4 transponder senza posto: 1 canale collegato al transponder 4");
}

#ifndef _WIN32
TEST_F(Saving, AFailureLeavesFileAndListAsTheyWere) {
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  SaveAs(copy, 12);
  const Routines::State before = List();
  const Base::Bytes written = Contents(copy);
  const auto failing = [this](const char* message) { Tells("Salva", message, "Errore FLASH di Output"); };
  {
    const Tests::FileSizeLimit limit(100000);
    failing("Impossibile scrivere copia.dat: il file supera la dimensione consentita");
  }
  EXPECT_TRUE(Contents(copy) == written);
  ::chmod(copy.c_str(), 0444);
  {
    const Tests::OrdinaryUser user;
    failing("Impossibile scrivere copia.dat: permesso negato");
  }
  std::filesystem::remove(copy);
  failing("Impossibile leggere copia.dat: il file o la cartella non esiste");
  folder_.Write("copia.dat", Base::Bytes(3, 'x'));
  failing("Dimensione FLASH selezionata errata 3");
  driver_->ExpectFileCancelled(OutputDialog);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
  driver_->ExpectFile(InputDialog, PathText(copy));
  Tells("ApriFlashInput", "Dimensione FLASH selezionata errata 3", "Errore FLASH di Input");
  EXPECT_TRUE(List() == before);
}
#endif

TEST_F(Saving, WhatIsLeftOutIsTold) {
  Open(flash_, "QuantiCanali_2");
  EXPECT_TRUE(Action("VisualizzaPreferiti").isEnabled());
  ASSERT_TRUE(driver_->Pick("FlashScrittura_0"));
  EXPECT_FALSE(Action("VisualizzaPreferiti").isEnabled()) << "receivers of the first type have none to write";
  ASSERT_TRUE(driver_->Pick("SRDef_1"));
  const std::vector<Routines::ChannelRecord> room(10);
  const std::string shorter =
      folder_.Write("corta.dat", Samples::ImageBuilder(9).PutRecords(1, 0, 16, "TCS", room).Image());
  for (int number = 2; number <= 22; ++number)
    folder_.Write("corta.dat.bak" + std::to_string(number), Base::Bytes(Routines::FlashSize, 'x'));
  driver_->ExpectMessage(
      "Impossibile gestire più di 999 canali sulla FLASH tipo D- 1-x (999 canali)\nne verranno salvati solo "
      "999");
  driver_->ExpectFile(OutputDialog, PathText(shorter));
  Summary(*driver_, 1, 12, false);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_EQ(
      Said(),
      "Scritta corta.dat (11 canali, fino al posto 12): 2 canali non scritti, 3 transponder diversi, "
      "preferiti non scritti - SR 22000 spostato senza Converti SR - com'era prima resta in "
      "corta.dat.bak - tolta 1 copia di sicurezza di troppo: restano corta.dat.bak e le 20 più recenti");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate") << "even an untouched list";
  EXPECT_TRUE(window_->findChild<QWidget*>("QualiCanali")->isVisible());
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  ASSERT_TRUE(driver_->Pick("SRDef_0"));
  SaveAs(folder_.Write("copia.dat", Contents(flash_)), 12);
  EXPECT_FALSE(window_->findChild<QWidget*>("QualiCanali")->isVisible()) << "a save that lost nothing";
}

}  // namespace Ui
