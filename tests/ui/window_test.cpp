// The real window, driven by its menus, controls and boxes.
#include "demo_flash.h"
#include "image_builder.h"
#include "model/flash_loader.h"
#include "support/test_folder.h"
#include "ui/griglia.h"
#include "ui/qt_dialogs.h"
#include "window_driver.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace Ui {
namespace {

using Tests::Contents;

const QString InputDialog = "Selezionare la flash di input";
const QString OutputDialog = "Selezionare la flash di output";
const QString NoFlash = "Si deve caricare prima una FLASH di input";

class Window : public testing::Test {
 protected:
  Window() {
    for (const char* name : {"Bouquets.txt", "SR.INI"}) {
      std::filesystem::copy(std::string(SAMPLES_FOLDER) + "/" + name, folder_.Path(name));
    }
    const auto table = Support::CaricaTabelleSR(folder_.Path(), Routines::Sr22000::Come2);
    flash_ = folder_.Write("demo.dat", Samples::DemoFlash(table->table));
  }

  ~Window() override { EXPECT_EQ(driver_->Failures().join("\n").toStdString(), ""); }

  void Start() {
    window_ = std::make_unique<CopiaTCSTPT>(folder_.Path());
    driver_ = std::make_unique<Demo::WindowDriver>(*window_);
    window_->show();
  }

  void Open(const std::string& path, const char* capacity = "QuantiCanali_2") {
    ASSERT_TRUE(driver_->Pick(capacity));
    if (List().Loaded)
      driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    driver_->ExpectFile(InputDialog, PathText(path));
    ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
  }

  void OpenDemo() {
    Start();
    ASSERT_TRUE(window_->Start());
    Open(flash_);
    ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  }

  [[nodiscard]] const Routines::State& List() const { return window_->List().Tables(); }
  [[nodiscard]] QAction& Action(const char* name) const { return *window_->findChild<QAction*>(name); }
  [[nodiscard]] std::string Said() const { return driver_->TextOf("UltimoRisultato").toStdString(); }

  static void Summary(Demo::WindowDriver& driver, int sections, int channels, bool favourites) {
    driver.ExpectMessage(QString("%1 Sezioni TCS per %2 Canali effettivi\nSezioni Preferiti: %3")
                             .arg(sections)
                             .arg(channels)
                             .arg(favourites ? "scritta" : "non scritta"));
  }

  Tests::TestFolder folder_;
  std::string flash_;
  std::unique_ptr<CopiaTCSTPT> window_;
  std::unique_ptr<Demo::WindowDriver> driver_;
};

}  // namespace

TEST_F(Window, RefusesWhatNeedsAFlash) {
  Start();
  ASSERT_TRUE(window_->Start());
  EXPECT_EQ(window_->windowTitle(), "Trovalis  - Versione 1.0ß");
  for (const char* name : {"Salva", "ApriFlashOutput", "ConvertiSR"})
    EXPECT_FALSE(Action(name).isEnabled()) << name;
  driver_->ExpectMessage("Si deve selezionare il numero di canali da visualizzare");
  EXPECT_TRUE(driver_->Choose("ApriFlashInput"));
  for (const char* name : {"VisualizzaCanali", "VisualizzaTransponder"}) {
    driver_->ExpectMessage(NoFlash);
    EXPECT_TRUE(driver_->Choose(name));
    EXPECT_FALSE(Action(name).isChecked()) << name << " gets its old check mark back";
  }
  driver_->ExpectMessage(NoFlash);
  EXPECT_TRUE(driver_->Press("Toolbar1_Save"));
}

TEST_F(Window, AWholeSessionGivesTheSameListBack) {
  OpenDemo();
  EXPECT_EQ(window_->windowTitle(), "Trovalis  - Versione 1.0ß (" + PathText(flash_) + ")");
  EXPECT_EQ(driver_->TextOf("Text1"), "Canali");
  EXPECT_EQ(driver_->Cell(7, 1), "Città Più");
  EXPECT_EQ(Said(), "demo.dat: letti 620 canali");

  ASSERT_TRUE(driver_->Pick("SRDef_1"));
  ASSERT_TRUE(driver_->Choose("ConvertiSR"));
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");

  const Routines::State before = List();
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  driver_->ExpectFile(OutputDialog, PathText(copy));
  Summary(*driver_, 2, 647, true);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
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
}

TEST_F(Window, AppendingAsksTwice) {
  OpenDemo();
  const QString append = "Si desidera accodare la nuova Flash a quella già caricata?";
  const QString sameKind = "La flash che si sta accodando è dello stesso dipo di quella già caricata?";
  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion(sameKind, false);
  ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 620 di 3996");

  driver_->ExpectQuestion(append, true);
  driver_->ExpectQuestion(sameKind, true);
  driver_->ExpectFile(InputDialog, PathText(flash_));
  ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
  EXPECT_EQ(driver_->Cell(649, 1), driver_->Cell(1, 1));
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 1240 di 3996");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
}

TEST_F(Window, ViewsToggleAndCloseTheList) {
  OpenDemo();
  auto* grid = window_->findChild<Griglia*>("Griglia");
  EXPECT_EQ(grid->currentIndex().row(), 0);
  EXPECT_FALSE(grid->selectionModel()->hasSelection());
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_TRUE(Action("VisualizzaTransponder").isChecked());
  EXPECT_FALSE(Action("VisualizzaCanali").isChecked());
  EXPECT_EQ(grid->model()->rowCount(), 120);
  ASSERT_TRUE(driver_->Press("Toolbar1_TRANSPONDERS"));
  EXPECT_FALSE(Action("VisualizzaTransponder").isChecked());
  EXPECT_EQ(driver_->TextOf("Text1"), "");
  EXPECT_FALSE(grid->isVisible());
  ASSERT_TRUE(driver_->Choose("VisualizzaCanali"));
  EXPECT_EQ(grid->model()->rowCount(), 3996);
  const QAbstractItemModelTester tester(grid->model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  Open(flash_, "QuantiCanali_0");
  EXPECT_EQ(grid->model()->rowCount(), 999);
}

TEST_F(Window, TheFirstColumnStaysAndTheSpareWidthIsUsed) {
  OpenDemo();
  auto* grid = window_->findChild<Griglia*>("Griglia");
  auto* fixed = grid->findChild<QTableView*>("ColonnaFissa");
  for (const int width : {700, 1600}) {
    window_->resize(width, 700);
    QTest::qWait(20);
    EXPECT_GE(grid->horizontalHeader()->length(), grid->viewport()->width()) << width;
    EXPECT_EQ(fixed->geometry().right() + 1, grid->viewport()->geometry().left() + grid->columnWidth(0));
  }
  window_->resize(700, 700);
  QTest::qWait(20);
  grid->horizontalScrollBar()->setValue(grid->horizontalScrollBar()->maximum());
  grid->verticalScrollBar()->setValue(300);
  EXPECT_EQ(fixed->indexAt(QPoint(5, 5)), grid->model()->index(300, 0));
}

TEST_F(Window, WrongFilesAreToldAndChangeNothing) {
  OpenDemo();
  const Routines::State before = List();
  const auto openBad = [this](const std::string& path, const QString& message, const char* command) {
    if (std::string_view(command) == "ApriFlashInput") {
      driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    }
    const bool input = std::string_view(command) == "ApriFlashInput";
    driver_->ExpectFile(input ? InputDialog : OutputDialog, PathText(path));
    driver_->ExpectMessage(message, input ? "Errore FLASH di Input" : "Errore FLASH di Output");
    ASSERT_TRUE(driver_->Choose(command));
  };
  const std::string small = folder_.Write("[*]piccola.dat", Base::Bytes(524287, 'x'));
  openBad(small, "Dimensione FLASH selezionata errata 524287", "ApriFlashInput");
  openBad(small, "Dimensione FLASH selezionata errata 524287", "ApriFlashOutput");
  driver_->ExpectFileCancelled(OutputDialog);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_TRUE(List() == before);
}

TEST_F(Window, AFailedSaveLeavesFileAndListAsTheyWere) {
  OpenDemo();
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  driver_->ExpectFile(OutputDialog, PathText(copy));
  Summary(*driver_, 2, 647, true);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  const Routines::State before = List();
  const Base::Bytes written = Contents(copy);
  const auto failing = [this](const char* message) {
    driver_->ExpectMessage(message, "Errore FLASH di Output");
    ASSERT_TRUE(driver_->Choose("Salva"));
  };
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
  EXPECT_TRUE(List() == before);
}

TEST_F(Window, WhatASaveLeavesOutIsTold) {
  OpenDemo();
  ASSERT_TRUE(driver_->Pick("FlashScrittura_0"));
  ASSERT_TRUE(driver_->Pick("SRDef_1"));
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  driver_->ExpectMessage(
      "Impossibile gestire più di 999 canali sulla FLASH tipo D- 1-x (999 canali)\nne verranno salvati solo "
      "999");
  driver_->ExpectFile(OutputDialog, PathText(copy));
  Summary(*driver_, 2, 647, false);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_TRUE(QString::fromStdString(Said()).contains("canali non scritti")) << Said();
  EXPECT_TRUE(QString::fromStdString(Said()).contains("SR 22000 spostato senza Converti SR")) << Said();
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate") << "even an untouched list";
}

TEST_F(Window, AMissingSrIniStopsWritesAndABrokenOneTheProgram) {
  std::filesystem::remove(folder_.Path("SR.INI"));
  Start();
  driver_->ExpectMessage("File SR.INI non trovato: " + PathText(folder_.Path("SR.INI")));
  ASSERT_TRUE(window_->Start());
  Open(flash_);
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_EQ(Said(), "File SR.INI non trovato: " + folder_.Path("SR.INI"));

  folder_.Write("SR.INI", "[INPUT]\nventidue\n");
  driver_->ExpectMessage("Formato invalido del file SR.INI - Correggere e rilanciare");
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_FALSE(window_->isVisible());
}

TEST_F(Window, MistakesInBouquetsAreListed) {
  Start();
  EXPECT_FALSE(window_->findChild<QWidget*>("FrameErrori")->isVisible());
  folder_.Write("Bouquets.txt", "Citt\xE0,1\nX,1,SAT=1\n");
  Start();
  auto* pane = window_->findChild<QWidget*>("FrameErrori");
  EXPECT_TRUE(pane->isVisible());
  const auto* list = window_->findChild<QListWidget*>("ListaErrori");
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(list->item(0)->text(), "Record Bouquet errato: Città,1");
  window_->findChild<QAbstractButton*>("ChiudiErrori")->click();
  EXPECT_FALSE(pane->isVisible());
}

TEST_F(Window, CutMovePasteAndUndoByKeysAndToolbar) {
  OpenDemo();
  const Routines::State before = List();
  driver_->SelectRows(12, 10);
  driver_->Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(driver_->Cell(10, 1), "Italia Domani");
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("0010\tLa Nazionale\t018\t2802\t"));

  const QString where = "Inserire il numero di canale da cui inserire";
  const QString how =
      "Sposto o sovrascrivo i canali a partire dal %1 per 3 Canali?\nRispondere SI per spostare NO per "
      "sovrascrivere";
  for (const char* wrong : {"0", "-5", "abc", "3994", "99999"}) {
    driver_->ExpectLine(where, wrong);
    driver_->ExpectMessage("Posizione di inserimento invalida");
    ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));
  }
  driver_->ExpectLine(where, "5");
  driver_->ExpectCancelledQuestion(how.arg(5));
  ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
  driver_->ExpectLine(where, "10");
  driver_->ExpectQuestion(how.arg(10), true);
  driver_->Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(List().ChannelTable, before.ChannelTable);
  EXPECT_EQ(List().FavouritesBlock, before.FavouritesBlock) << "the cut entries are back";
  driver_->ExpectMessage("Messun canale copiato");
  ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));

  EXPECT_EQ(Action("Annulla").text(), "Annulla Incolla 3 canali");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(Action("Annulla").text(), "Annulla Taglia 3 canali");
  EXPECT_EQ(Action("Ripeti").text(), "Ripeti Incolla 3 canali");
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(List().ChannelTable, before.ChannelTable);
  driver_->Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(List().Loaded) << "opening is a step too";
  EXPECT_EQ(driver_->TextOf("Text1"), "");
}

TEST_F(Window, RowsMoveByKeysAndByDropping) {
  OpenDemo();
  driver_->SelectRows(2, 3);
  driver_->Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(driver_->Cell(2, 1), "Canale Aperto HD");
  EXPECT_EQ(driver_->Cell(3, 1), "Rete Italia HD");
  EXPECT_EQ(driver_->Grid().Selected()->first, 3) << "the selection goes along";
  auto* model = driver_->Grid().model();
  const auto drop = [&](int before, Qt::DropAction action) {
    const std::unique_ptr<QMimeData> rows(model->mimeData({model->index(2, 0), model->index(3, 0)}));
    EXPECT_TRUE(model->dropMimeData(rows.get(), action, before - 1, 0, {}));
    QTest::qWait(1);
  };
  drop(10, Qt::MoveAction);
  EXPECT_EQ(driver_->Cell(8, 1), "Rete Italia HD");
  EXPECT_EQ(driver_->Cell(10, 1), "La Nazionale");
  drop(1, Qt::CopyAction);
  EXPECT_EQ(driver_->Cell(1, 1), driver_->Cell(5, 1)) << "a copy is inserted";
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 622 di 3996");
  driver_->ExpectLine("Inserire il numero di canale a cui spostare", "3996");
  driver_->ExpectMessage("Nr. Canale non valido");
  ASSERT_TRUE(driver_->Choose("SpostaA"));
}

TEST_F(Window, RowKeysLeaveTheFilterFieldAlone) {
  OpenDemo();
  const Routines::State before = List();
  driver_->SelectRows(2, 3);
  driver_->Key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  auto* field = window_->findChild<QLineEdit*>("Filtro");
  ASSERT_TRUE(field->hasFocus());
  QTest::keyClicks(field, "stella tv!");
  driver_->Key(Qt::Key_Backspace);
  driver_->Key(Qt::Key_A, Qt::ControlModifier);
  driver_->Key(Qt::Key_X, Qt::ControlModifier);
  driver_->Key(Qt::Key_V, Qt::ControlModifier);
  driver_->Key(Qt::Key_Delete);
  EXPECT_TRUE(List() == before);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "1 trovato");
  driver_->Key(Qt::Key_Return);
  EXPECT_EQ(driver_->Grid().Selected()->first, 12);
}

TEST_F(Window, SearchingAsksForTheNext) {
  OpenDemo();
  const QString next = "Ricerco il successivo?";
  driver_->ExpectLine("Inserire il canale da ricercare", "CITTÀ PIÙ");
  driver_->ExpectQuestion(next, true);
  driver_->ExpectQuestion(next, false);
  ASSERT_TRUE(driver_->Choose("CercaCanale"));
  const auto* model = driver_->Grid().model();
  EXPECT_EQ(model->index(7, 3).data(Qt::BackgroundRole).value<QBrush>().color(), QColor(255, 128, 0));
  EXPECT_EQ(driver_->Grid().indexAt(QPoint(5, 5)).row(), 7);
  driver_->Key(Qt::Key_F3);
  EXPECT_EQ(driver_->Grid().currentIndex().row(), 8);
  driver_->ExpectLine("Inserire il canale da ricercare", "漢");
  driver_->ExpectMessage("Canale non trovato");
  ASSERT_TRUE(driver_->Press("Toolbar1_Find"));
  driver_->ExpectLine("Inserire il Nr. del canale su cui posizionarsi", "3997");
  driver_->ExpectMessage("Nr. Canale non valido");
  ASSERT_TRUE(driver_->Press("Toolbar1_Goto"));
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  for (const char* command : {"CercaCanale", "VaiAlCanale"}) {
    driver_->ExpectMessage("Funzione valida solo in visualizzazione canali");
    ASSERT_TRUE(driver_->Choose(command));
  }
  driver_->ExpectMessage("Deve essere visibile la lista canali");
  ASSERT_TRUE(driver_->Press("Toolbar1_Cut"));
}

TEST_F(Window, WholeListCommandsTellWhatTheyDid) {
  OpenDemo();
  driver_->ExpectMessage("Nessun canale selezionato");
  ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  const QString from =
      "Inserire il canale dal quale iniziare il raggruppamento; I canali precedenti manterranno la "
      "numerazione";
  driver_->ExpectLine(from, "648");
  driver_->ExpectMessage("Il numero indicato è maggiore dell' ultimo canale");
  driver_->ExpectLine(from, "15");
  ASSERT_TRUE(driver_->Choose("OrdinaPerBouquet"));
  EXPECT_EQ(Routines::LastUsedChannel(List()), 620) << "every gap behind slot 15 is closed";
  ASSERT_TRUE(driver_->Choose("InvertiSatelliti"));
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_EQ(driver_->Cell(1, 9), "SAT B");
  driver_->ExpectMessage("Sono stati azzerati 620 Canali");
  ASSERT_TRUE(driver_->Choose("Azzera"));
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 0 di 3996");
}

TEST_F(Window, AListLeavesAsTextIsEditedAndComesBack) {
  OpenDemo();
  const Routines::State before = List();
  const std::string path = folder_.Path("lista.txt");
  driver_->ExpectFile("Selezionare il file di output", PathText(path));
  ASSERT_TRUE(driver_->Choose("FormatoTesto"));
  EXPECT_EQ(Said(), "Esportato lista.txt");
  std::string text(Base::AsText(Contents(path)));
  text.replace(text.find("Rete Due "), 9, "Rinomina ");
  folder_.Write("lista.txt", text);

  const QString import = "Selezionare il file di testo contenente i CANALI e i TRANSPONDERS";
  driver_->ExpectFile(import, PathText(path));
  ASSERT_TRUE(driver_->Choose("CaricaImportato"));
  EXPECT_EQ(driver_->Cell(5, 1), "Rinomina");
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 620 di 3996");
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  EXPECT_EQ(driver_->TextOf("FlashOutput"), "Flash di output : nessuna");

  folder_.Write("lista.txt", "\xEF\xBB\xBF" + text.substr(0, text.find("[TRANSPONDERS]")));
  driver_->ExpectFile(import, PathText(path));
  driver_->ExpectMessage("Formato file invalido (Transponders) per " + PathText(path));
  ASSERT_TRUE(driver_->Choose("DaEsportatoTesto"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(List() == before) << "each import is one step, a broken one too";
}

TEST_F(Window, RawRecordsComeFromTheFlashOnTheDisk) {
  OpenDemo();
  const std::string path = folder_.Path("lista.fls");
  driver_->SelectRows(1, 1);
  ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  {
    const Tests::FileSizeLimit limit(1000);
    driver_->ExpectFile("Selezionare il file di output", PathText(path));
    ASSERT_TRUE(driver_->Choose("FormatoFLASH"));
    EXPECT_EQ(Said(), "Impossibile scrivere lista.fls: il file supera la dimensione consentita");
    EXPECT_EQ(driver_->Cell(1, 1), "Rete Italia HD") << "a failed export leaves the edits";
  }
  driver_->ExpectFile("Selezionare il file di output", PathText(path));
  ASSERT_TRUE(driver_->Choose("FormatoFLASH"));
  EXPECT_EQ(driver_->Cell(1, 1), "Rete Italia") << "edits give way to the image as it is stored";
  EXPECT_EQ(Action("Annulla").text(), "Annulla Ricarica Flash per l'esportazione");

  driver_->ExpectFile("Selezionare il file di da importare", PathText(path));
  ASSERT_TRUE(driver_->Choose("DaEsportato"));
  EXPECT_FALSE(Action("ApriFlashInput").isEnabled());
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 620 di 3996");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(Action("ApriFlashInput").isEnabled());

  std::filesystem::remove(flash_);
  std::filesystem::remove(path);
  driver_->ExpectFile("Selezionare il file di output", PathText(path));
  driver_->ExpectMessage("Impossibile leggere demo.dat: il file o la cartella non esiste",
                         "Errore FLASH di Input");
  ASSERT_TRUE(driver_->Choose("FormatoFLASH"));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(Window, ASatcodxListGoesIntoTheChannelList) {
  OpenDemo();
  std::string sdx;
  for (int i = 1; i <= 3; ++i) {
    sdx += "SATCODX103HOTBIRD 13E       TMPG2010971000HNuovo " + std::to_string(i) +
           " 0130___     ______29700200" + std::to_string(50 + i) + "0060005000" + std::to_string(70 + i) +
           "0031812300_________NAGV            \r\n";
  }
  const std::string path = folder_.Write("prova.sdx", sdx + "SATCODX corta\r\n");
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
  EXPECT_EQ(Said(), "prova.sdx: lette 4 righe, prese 3; scartate: symbol rate 1");
  auto* missing = window_->findChild<QDialog*>("ElencoNonInSDX");
  ASSERT_NE(missing, nullptr) << "the demo's own channels are not in that list";
  missing->close();
  auto* pane = window_->findChild<Griglia*>("GrigliaSDX");
  EXPECT_TRUE(pane->isVisible());
  EXPECT_EQ(pane->model()->rowCount(), 3);

  driver_->ExpectMessage("Nessun canale SDX selezionato");
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  pane->Select({2, 3});
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 2", "3997");
  driver_->ExpectMessage("Posizione non valida");
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  driver_->ExpectLine("Inserire la posizione in cui inserire Nuovo 2", "1");
  driver_->ExpectQuestion("Si desidera spostare i canali verso il basso?", true);
  ASSERT_TRUE(driver_->Press("Toolbar1_Copy_SDX"));
  EXPECT_EQ(driver_->Cell(2, 1), "Nuovo 3");
  EXPECT_EQ(driver_->Cell(2, 2), "001") << "the transponder at 10971 MHz";
  EXPECT_EQ(driver_->Cell(3, 1), "Rete Italia");
  driver_->ExpectDialog("Importazione canali SDX", [](QDialog& box) {
    box.findChild<QRadioButton*>("DalCanale")->click();
    box.findChild<QLineEdit*>("Partenza")->setText("3995");
    box.accept();
  });
  driver_->ExpectMessage("1 canali SDX non hanno trovato posto");
  ASSERT_TRUE(driver_->Choose("ImportaTuttoSDX"));
  EXPECT_EQ(driver_->Cell(3996, 1), "Nuovo 2");
  ASSERT_TRUE(driver_->Choose("VediSDX"));
  EXPECT_FALSE(pane->isVisible());
  EXPECT_FALSE(Action("RicercaSDX").isEnabled());
}

// A web server for one request: answers with what it is given, whatever is asked for.
class Server {
 public:
  explicit Server(const QByteArray& answer) {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, [this, answer] {
      QTcpSocket* socket = server_.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, [socket, answer] {
        socket->write(answer);
        socket->disconnectFromHost();
      });
    });
  }
  [[nodiscard]] QString Address() const {
    return QString("http://127.0.0.1:%1/lista.sdx").arg(server_.serverPort());
  }

 private:
  QTcpServer server_;
};

TEST_F(Window, ADownloadIsSavedAndLoadedOrToldAndLeftEmpty) {
  OpenDemo();
  folder_.Write("SDX.INI", "http://127.0.0.1:9/uno.sdx\r\nhttp://127.0.0.1:9/due.sdx\r\n");
  const std::string path = folder_.Path("scaricato.sdx");
  const QByteArray head = "HTTP/1.0 200 OK\r\n\r\n";
  const QString error = "Errore di connessione a : ";
  const auto fetch = [&](const QString& address, const auto& expectEnd) {
    std::filesystem::remove(path);
    ASSERT_TRUE(driver_->Choose("ScaricaInternet"));
    auto* addresses = window_->findChild<QComboBox*>("Combo3");
    EXPECT_EQ(addresses->count(), 2);
    EXPECT_EQ(addresses->currentText(), "");
    addresses->setEditText(address);
    driver_->ExpectFile("Selezionare il file SDX di OUTPUT", PathText(path));
    expectEnd();
    window_->findChild<QAbstractButton*>("Scarica")->click();
    EXPECT_TRUE(QTest::qWaitFor([this] { return driver_->Idle(); }, 5000));
  };
  ASSERT_TRUE(driver_->Choose("ScaricaInternet"));
  driver_->ExpectMessage("Si deve specificare il file da scaricare");
  window_->findChild<QAbstractButton*>("Scarica")->click();
  const struct {
    QByteArray answer;
    QString told;
  } bad[] = {{head + "  SATCODX", "  SATCODX"},
             {head + "<html>", "<html>"},
             {"HTTP/1.0 404 Not Found\r\n\r\nSATCODX103", "SATCODX103"},
             {"HTTP/1.0 200 OK\r\nContent-Length: 900\r\n\r\nSATCODX103 cut", "SATCODX103 cut"}};
  for (const auto& c : bad) {
    const Server server(c.answer);
    fetch(server.Address(), [&] { driver_->ExpectMessage(error + server.Address() + " " + c.told); });
    EXPECT_EQ(Contents(path).size(), 0U) << c.answer.toStdString();
  }
  fetch("ftp://127.0.0.1/x", [&] { driver_->ExpectMessage(error + "ftp://127.0.0.1/x "); });

  const Server good(head + "SATCODX1 uno\r\nSATCODX1 due\r\nsenza fine");
  fetch(good.Address(),
        [&] { driver_->ExpectDialog("Opzioni importazione SDX", [](QDialog& box) { box.reject(); }); });
  EXPECT_EQ(Base::AsText(Contents(path)), "SATCODX1 uno\r\n\nSATCODX1 due\r\n");
}

TEST(FileFilters, KeepCaptionsAndMatchAnyCase) {
  EXPECT_EQ(NameFilters("Binary files(*.dat)|*.dat|Tutti i file (*.*)|*.*|"),
            QStringList({"Binary files(*.dat) (*.[dD][aA][tT])", "Tutti i file (*.*) (*)"}));
}

}  // namespace Ui
