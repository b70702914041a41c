// The first minutes, the overview and lists for spreadsheets.
#include "ui/kit/text.h"
#include "ui/session/program_folder.h"
#include "ui/window_fixture.h"

namespace Ui {

class Overview : public Window {
 protected:
  void Drop(const QList<QUrl>& files) {
    QMimeData data;
    data.setUrls(files);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &drop);
    QTest::qWait(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return driver_->Idle(); }, 5000));
  }
  [[nodiscard]] bool StandsOut(const char* group) const {
    return !window_->findChild<QGroupBox*>(group)->accessibleDescription().isEmpty();
  }
};

// From an empty home folder.
TEST_F(Overview, TheStartPageLeadsThroughAFirstSessionAndTicksItsSteps) {
  const std::string home = folder_.Path("home");
  FillProgramFolder(folder_.Path(), home);
  Start(home);
  ASSERT_TRUE(window_->Start());
  EXPECT_TRUE(window_->findChild<QWidget*>("Inizio")->isVisible());
  EXPECT_FALSE(window_->findChild<QMenu*>("FileRecenti")->isEnabled());
  driver_->ExpectMessage("Si deve selezionare il numero di canali da visualizzare");
  Click("InizioApri");
  EXPECT_TRUE(StandsOut("QuantiCanali"));
  EXPECT_EQ(window_->focusWidget()->objectName(), "QuantiCanali_0");
  ASSERT_TRUE(driver_->Pick("QuantiCanali_2"));
  EXPECT_FALSE(StandsOut("QuantiCanali"));
  EXPECT_EQ(driver_->TextOf("Passo_1") + driver_->TextOf("Passo_3"), "✓3");
  driver_->ExpectFile(InputDialog, "demo.dat");
  Click("InizioApri");
  const QString name = driver_->Cell(3, 1);
  driver_->SelectRows(3, 3);
  driver_->Key(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(driver_->Cell(4, 1), name);
  Tells("ApriFlashOutput", "Si deve selezionare il tipo di FLASH da registrare");
  EXPECT_TRUE(StandsOut("FlashScrittura"));
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  driver_->ExpectFile(OutputDialog, "demo.dat");
  Summary(*driver_, 2, 647, true);
  driver_->Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Said(), "Scritta demo.dat");
  EXPECT_NE(Contents(home + "/demo.dat"), Contents(flash_));
  EXPECT_EQ(Contents(home + "/demo.dat.bak"), Contents(flash_));
  std::filesystem::remove(home + "/demo.dat");
  FillProgramFolder(folder_.Path(), home);
  EXPECT_FALSE(std::filesystem::exists(home + "/demo.dat")) << "deleted once, it stays away";
  while (Action("Annulla").isEnabled()) Action("Annulla").trigger();
  EXPECT_TRUE(window_->findChild<QWidget*>("InizioRecente_1")->isVisible());
}

TEST_F(Overview, RecentFilesAreTheLastEightAndVanishedOnesGo) {
  std::vector<std::string> copies;
  for (int i = 0; i < 9; ++i)
    copies.push_back(folder_.Write("a&b, " + std::to_string(i) + ".dat", Contents(flash_)));
  OpenDemo();
  for (const std::string& copy : copies) Open(copy);
  StartEmpty();
  EXPECT_TRUE(Action("FileRecenti_8").isVisible());
  EXPECT_EQ(Action("FileRecenti_8").statusTip(), PathText(copies[1]));
  EXPECT_TRUE(Action("FileRecenti_1").text().endsWith("a&&b, 8.dat"));
  Tells("FileRecenti_8", "Si deve selezionare il numero di canali da visualizzare");
  ASSERT_TRUE(driver_->Pick("QuantiCanali_2"));
  ASSERT_TRUE(driver_->Choose("FileRecenti_8"));
  EXPECT_EQ(List().InputFlash, copies[1]);
  EXPECT_EQ(Action("FileRecenti_1").statusTip(), PathText(copies[1]));
  std::filesystem::remove(copies[8]);
  Tells("FileRecenti_2", "Flash non trovata: " + PathText(copies[8]) + "\nViene tolta dai file recenti");
  EXPECT_FALSE(Action("FileRecenti_8").isVisible());
}

TEST_F(Overview, DroppedFilesOpenLikeTheirCommandsOrSayWhyNot) {
  const std::string text = folder_.Path("lista.TXT");
  Export("FormatoTesto", text);
  const std::string raw = folder_.Path("lista.fls");
  Export("FormatoFLASH", raw);
  std::filesystem::create_directory(folder_.Path("cartella.dat"));
  const auto file = [](const std::string& path) { return QUrl::fromLocalFile(PathText(path)); };
  const std::pair<QList<QUrl>, const char*> drops[] = {
      {{file(text)}, "lista.TXT: importati 620 canali, 21 codifiche cambiate"},
      {{file(raw)}, "lista.fls: importati 620 canali"},
      {{file(flash_)}, "Non disponibile dopo l'importazione da formato FLASH: Annulla la toglie"},
      {{file(folder_.Path("SR.INI"))}, "Non aperto: SR.INI non è un file .dat, .sdx, .txt o .fls"},
      {{file(folder_.Path("cartella.dat"))}, "Non aperto: cartella.dat è una cartella"},
      {{QUrl("http://127.0.0.1/lista.dat")}, "Non aperto: lista.dat non è su questo computer"},
      {{file(raw), file(text)}, "Non aperti: si trascina un file alla volta"}};
  for (const auto& [files, told] : drops) {
    Drop(files);
    EXPECT_EQ(Said(), told);
    EXPECT_EQ(window_->findChild<QMenu*>("FileRecenti")->isEnabled(), !List().FromFls) << told;
  }
}

TEST_F(Overview, TheRiepilogoFollowsTheListAndLeadsToItsRows) {
  ASSERT_TRUE(driver_->Choose("Riepilogo"));
  auto* shown = window_->findChild<QDialog*>("FinestraRiepilogo");
  auto* tree = shown->findChild<QTreeWidget*>();
  const auto line = [tree](const QString& text) {
    return tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
  };
  const auto choose = [&](const QString& text) {
    tree->setCurrentItem(line(text));
    QTest::keyClick(tree, Qt::Key_Return);
  };
  EXPECT_EQ(line("Radio")->text(2), "123");
  EXPECT_EQ(line("Radio")->text(3), "19,8");

  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  choose("Radio");
  EXPECT_EQ(driver_->TextOf("Text1"), "Canali");
  const int first = driver_->Grid().Selected()->first;
  EXPECT_EQ(Routines::KindOf(List().Channel(first)), Routines::ChannelKind::Radio);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "123 trovati");
  Action("CercaSuccessivo").trigger();
  EXPECT_GT(driver_->Grid().Selected()->first, first);
  Delete(first, first);
  EXPECT_EQ(driver_->TextOf("FiltroTrovati"), "122 trovati") << "the marks follow the list";
  EXPECT_EQ(line("Radio")->text(2), "122");

  choose("Transponder senza canali");
  EXPECT_EQ(Said(), "Riepilogo: Transponder senza canali: nessuna riga");
  tree->setCurrentItem(tree->findItems("Transponder", Qt::MatchExactly).front()->child(1));
  QTest::keyClick(tree, Qt::Key_Return);
  EXPECT_EQ(Said(), "Riepilogo: Transponder Liberi: 33 transponder");
  EXPECT_EQ(driver_->TextOf("Text1"), "Transponders");
  EXPECT_TRUE(driver_->Cell(driver_->Grid().Selected()->first, 1) == "0");
  window_->findChild<QLineEdit*>("Filtro")->clear();
  EXPECT_FALSE(window_->findChild<QLineEdit*>("Filtro")->isVisible()) << "what is typed finds channels only";
  while (Action("Annulla").isEnabled()) Action("Annulla").trigger();
  EXPECT_EQ(tree->topLevelItemCount(), 0);
  EXPECT_EQ(driver_->TextOf("RiepilogoTotali"), "Nessuna flash caricata");
}

TEST_F(Overview, SpreadsheetsGetTheListShownOrItsSelectedRows) {
  const std::string path = folder_.Path("lista.csv");
  const auto lines = [&] {
    driver_->ExpectFile("Selezionare il file di output", PathText(path));
    EXPECT_TRUE(driver_->Choose("FormatoCSV"));
    EXPECT_EQ(Said(), "Esportato lista.csv");
    const Base::Bytes bytes = Contents(path);
    std::filesystem::remove(path);
    return std::count(bytes.begin(), bytes.end(), '\n') - 1;
  };
  EXPECT_EQ(lines(), 620);
  const QString ask = "Esportare solo le righe selezionate?";
  driver_->SelectRows(1, 3);
  driver_->ExpectQuestion(ask, true);
  EXPECT_EQ(lines(), 3);
  driver_->ExpectQuestion(ask, false);
  EXPECT_EQ(lines(), 620);
  driver_->ExpectCancelledQuestion(ask);
  ASSERT_TRUE(driver_->Choose("FormatoCSV"));
  ASSERT_TRUE(driver_->Choose("VisualizzaTransponder"));
  EXPECT_EQ(lines(), 87);
}

}  // namespace Ui
