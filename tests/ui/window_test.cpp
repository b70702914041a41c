// Opening, looking, saving.
#include "image_builder.h"
#include "model/flash_image.h"
#include "ui/kit/text.h"
#include "ui/session/commands.h"
#include "ui/window_fixture.h"

#include <sys/stat.h>

namespace Ui {

TEST_F(Window, RefusesWhatNeedsAFlash) {
  StartEmpty();
  EXPECT_EQ(window_->windowTitle(), "Trovalis  - Versione 1.0ß");
  for (const char* name : {"Salva", "ApriFlashOutput", "ConvertiSR"})
    EXPECT_FALSE(Action(name).isEnabled()) << name;
  Tells("ApriFlashInput", "Si deve selezionare il numero di canali da visualizzare");
  for (const char* name : {"VisualizzaCanali", "VisualizzaTransponder", "VisualizzaBouquet", "Riepilogo",
                           "Confronta", "ConfrontaDisco", "CanaliDoppi", "SpostaRadio", "Toolbar1_Save"}) {
    Tells(name, NoFlash);
    const auto* action = window_->findChild<QAction*>(name);
    EXPECT_FALSE(action != nullptr && action->isChecked()) << name << " gets its old check mark back";
  }
}

TEST_F(Window, EveryCommandAndButtonHasWhatItRuns) {
  ChooseFile("CaricaAggiuntiva", "Selezionare la flash aggiuntiva", flash_);
  for (int i = 0; i < 2; ++i) Delete(1, 1);
  ASSERT_TRUE(driver_->Choose("Annulla"));
  for (const Command& command : Commands)
    EXPECT_TRUE(CommandAction(*window_, command).isEnabled()) << command.name;
  for (const ToolbarButton& button : ToolbarButtons) {
    QAction& action = ButtonAction(*window_, button);
    action.setVisible(true);  // a hidden one counts as disabled
    EXPECT_TRUE(action.isEnabled()) << button.name;
  }
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
  EXPECT_EQ(Contents(copy + ".bak"), Contents(flash_));
  const Base::Bytes written = Contents(copy);

  Summary(*driver_, 2, 647, true);
  ASSERT_TRUE(driver_->Choose("Salva"));
  EXPECT_EQ(Contents(copy), written) << "a second save writes the same";

  Open(copy);
  EXPECT_TRUE(
      List().ChannelTable == before.ChannelTable && List().TransponderTable == before.TransponderTable &&
      List().FavouritesBlock == before.FavouritesBlock && List().SymbolRateTable == before.SymbolRateTable);
  EXPECT_EQ(driver_->TextOf("FlashOutput"), "Flash di output : nessuna") << "a load forgets the output";

  const std::string link = folder_.Path("b.dat");
  std::filesystem::create_symlink("copia.dat", link);
  Open(flash_);
  SaveAs(link, 647);
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate")
      << "another list took its place in the file, by another name";
}

TEST_F(Window, AppendingAsksTwice) {
  const QString append = "Si desidera accodare la nuova Flash a quella già caricata?";
  const QString sameKind = "La flash che si sta accodando è dello stesso dipo di quella già caricata?";
  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion(sameKind, false);
  ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 620 di 3996");

  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion(sameKind, true);
  ChooseFile("ApriFlashInput", InputDialog, flash_);
  EXPECT_EQ(driver_->Cell(649, 1), driver_->Cell(1, 1));
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 1240 di 3996");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");

  const auto image = [this](const char* name, int megahertz) {
    Samples::ImageBuilder builder(1);
    std::vector<Routines::TransponderRecord> transponders;
    for (int i = 0; i < 4; ++i)
      transponders.push_back(Samples::MakeTransponder(megahertz + 100 * i, true, 0, 1, 2));
    builder.PutRecords(1, 0, 16, "TCS", std::vector{Samples::MakeChannel("x", 2, 1, 1, 1)});
    return folder_.Write(name, builder.PutRecords(1, 1, 900, "TPT", transponders).Image());
  };
  Open(image("uno.dat", 10800));
  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion(sameKind, true);
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
            "due.dat: accodati 1 canali, 4 transponder senza posto: 1 canali collegati al transponder 4");
}

TEST_F(Window, AClosedListIsNotSeenAndTheFirstColumnOfAnOpenOneStays) {
  auto* grid = window_->findChild<Ui::Grid*>("Griglia");
  auto* fixed = grid->findChild<QTableView*>("ColonnaFissa");
  EXPECT_FALSE(grid->selectionModel()->hasSelection());
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  EXPECT_FALSE(grid->isVisible());
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  const QAbstractItemModelTester tester(grid->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(grid->model()->rowCount(), 999);
  window_->resize(700, 700);
  QTest::qWait(20);
  EXPECT_EQ(fixed->geometry().right() + 1, grid->viewport()->geometry().left() + grid->columnWidth(0));
  // Scrolled down before the column is fixed, and while it is.
  grid->verticalScrollBar()->setValue(200);
  grid->horizontalScrollBar()->setValue(grid->horizontalScrollBar()->maximum());
  EXPECT_TRUE(fixed->isVisible());
  EXPECT_EQ(grid->rowAt(5), 200);
  EXPECT_EQ(fixed->indexAt(QPoint(5, 5)), grid->model()->index(200, 0));
  grid->verticalScrollBar()->setValue(300);
  EXPECT_EQ(fixed->indexAt(QPoint(5, 5)), grid->model()->index(300, 0));
}

TEST_F(Window, AFailedSaveLeavesFileAndListAsTheyWere) {
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  SaveAs(copy, 647);
  const Routines::State before = List();
  const Base::Bytes written = Contents(copy);
  const auto failing = [this](const char* message) { Tells("Salva", message, "Errore FLASH di Output"); };
  {
    const Tests::FileSizeLimit limit(100000);
    failing("Impossibile scrivere copia.dat: il file supera la dimensione consentita");
  }
  ::chmod(copy.c_str(), 0444);
  {
    const Tests::OrdinaryUser user;
    failing("Impossibile scrivere copia.dat: permesso negato");
  }
  EXPECT_EQ(Contents(copy), written);
  folder_.Write("altra.dat", Base::Bytes(3, 'x'));
  std::filesystem::rename(folder_.Path("altra.dat"), copy);
  failing("Dimensione FLASH selezionata errata 3");
  std::filesystem::remove(copy);
  failing("Impossibile leggere copia.dat: il file o la cartella non esiste");
  std::filesystem::create_directory(copy);
  failing("Impossibile leggere copia.dat: è una cartella");
  driver_->ExpectFileCancelled(OutputDialog);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  for (const std::size_t size : {524287, 524289}) {
    const std::string wrong = folder_.Write("[*]altra.dat", Base::Bytes(size, 'x'));
    driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    driver_->ExpectFile(InputDialog, PathText(wrong));
    Tells("ApriFlashInput", QString("Dimensione FLASH selezionata errata %1").arg(size),
          "Errore FLASH di Input");
  }
  EXPECT_TRUE(List() == before);
}

TEST_F(Window, WhatASaveLeavesOutIsTold) {
  EXPECT_TRUE(Action("VisualizzaPreferiti").isEnabled());
  driver_->SelectRows(12, 17);
  driver_->Key(Qt::Key_8, Qt::ControlModifier);
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate") << "favourites too";
  ASSERT_TRUE(driver_->Pick("FlashScrittura_0"));
  EXPECT_FALSE(Action("VisualizzaPreferiti").isEnabled()) << "receivers of the first type have none to write";
  ASSERT_TRUE(driver_->Pick("SRDef_1"));
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  for (int number = 2; number <= 22; ++number)
    folder_.Write("copia.dat.bak" + std::to_string(number), Base::Bytes(Routines::FlashSize, 'x'));
  driver_->ExpectMessage(
      "Impossibile gestire più di 999 canali sulla FLASH tipo D- 1-x (999 canali)\nne verranno salvati solo "
      "999");
  driver_->ExpectFile(OutputDialog, PathText(copy));
  Summary(*driver_, 2, 647, false);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_EQ(
      Said(),
      "Scritta copia.dat: 238 canali non scritti, 344 canali in più nell'immagine, preferiti non "
      "scritti - SR 22000 spostato "
      "senza Converti SR - tolta 1 copia di sicurezza di troppo: restano copia.dat.bak e le 20 più recenti");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate")
      << "receivers of the first type keep no favourites";
  EXPECT_TRUE(window_->findChild<QWidget*>("QualiCanali")->isVisible());
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  ASSERT_TRUE(driver_->Pick("SRDef_0"));
  SaveAs(copy, 647);
  EXPECT_FALSE(window_->findChild<QWidget*>("QualiCanali")->isVisible()) << "a save that lost nothing";
}

TEST_F(Window, MistakesInBouquetsAreListedAndAMissingSrIniStopsWrites) {
  Start();
  EXPECT_FALSE(window_->findChild<QWidget*>("FrameErrori")->isVisible());
  folder_.Write("Bouquets.txt", "Citt\xE0,1\nX,1,SAT=1\n");
  std::filesystem::remove(folder_.Path("SR.INI"));
  Start();
  driver_->ExpectMessage("File SR.INI non trovato: " + PathText(folder_.Path("SR.INI")));
  ASSERT_TRUE(window_->Start());
  auto* pane = window_->findChild<QWidget*>("FrameErrori");
  EXPECT_TRUE(pane->isVisible());
  const auto* list = window_->findChild<QListWidget*>("ListaErrori");
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(list->item(0)->text(), "Record Bouquet errato: Città,1");
  window_->findChild<QAbstractButton*>("ChiudiErrori")->click();
  EXPECT_FALSE(pane->isVisible());
  Open(flash_);
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  for (const char* command : {"ApriFlashOutput", "Salva", "DaEsportato"})
    Tells(command, "File SR.INI non trovato: " + PathText(folder_.Path("SR.INI")));
  EXPECT_EQ(Said(), "File SR.INI non trovato: " + folder_.Path("SR.INI"));
}

}  // namespace Ui
