// Work that is not saved outlives the window and the program.
#include "base/system_file.h"
#include "edit/recovery.h"
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

#include <sys/stat.h>

namespace Ui {

class KeptWorkWindow : public SmallWindow {
 protected:
  [[nodiscard]] QString FileAndTime(const char* name) const {
    const QFileInfo file(PathText(folder_.Path(name)));
    return QString(name) + file.lastModified().toString(" (dd/MM/yyyy HH:mm)");
  }
  void ExpectOffer(const char* name, bool yes) {
    driver_->ExpectQuestion("Esistono modifiche non salvate dell'ultima sessione in " + FileAndTime(name) +
                                ", lista lista.dat. Si desidera recuperarle?",
                            yes);
  }
  void StartAndAnswer(bool yes, const char* name = "trovalis.recupero") {
    StartEmpty();
    ExpectOffer(name, yes);
    window_->OfferKeptWork();
    EXPECT_TRUE(driver_->Idle());
  }
  [[nodiscard]] bool FileIs(bool there) const {
    return QTest::qWaitFor([&] { return std::filesystem::exists(file_) == there; }, 3000);
  }

  std::string file_ = folder_.Path("trovalis.recupero");
};

TEST_F(KeptWorkWindow, ClosingAsksNothingAndTheNextStartGoesOn) {
  EXPECT_TRUE(window_->close());
  EXPECT_FALSE(std::filesystem::exists(file_)) << "nothing was changed";
  window_->show();
  driver_->SelectRows(3, 5);
  ASSERT_TRUE(driver_->Press("Toolbar1_Cut"));
  driver_->SelectRows(1, 1);
  driver_->Key(Qt::Key_F2);
  QTest::keyClicks(QApplication::focusWidget(), "Nuovo");
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(driver_->Cell(1, 1), "Nuovo") << "a cell still being edited";
  const Routines::State before = List();

  StartAndAnswer(true);
  EXPECT_EQ(Said(), "Recuperate le modifiche dell'ultima sessione da " +
                        FileAndTime("trovalis.recupero").toStdString());
  Routines::State after = List();
  after.ListNumber = before.ListNumber;
  EXPECT_TRUE(after == before);
  EXPECT_TRUE(window_->windowTitle().contains("lista.dat"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
  EXPECT_TRUE(Action("VisualizzaPreferiti").isEnabled()) << "as the options say";
  EXPECT_TRUE(std::filesystem::exists(file_)) << "until it is saved";

  SaveAs(flash_, 9);  // the options have come back too
  QTest::qWait(1500);
  EXPECT_TRUE(std::filesystem::exists(file_)) << "the cut channels are in no list";
  Paste(3, 3);
  Summary(*driver_, 2, 12, true);
  ASSERT_TRUE(driver_->Choose("Salva"));
  EXPECT_TRUE(FileIs(false));
  StartEmpty();
  window_->OfferKeptWork();
}

TEST_F(KeptWorkWindow, ARefusedOrDamagedOrReplacedFileIsSetAside) {
  Delete(1, 1);
  EXPECT_TRUE(window_->close());
  const Base::Bytes kept = Contents(file_);
  StartAndAnswer(false);
  EXPECT_FALSE(List().Loaded);
  EXPECT_EQ(Contents(file_ + ".old"), kept);
  EXPECT_EQ(Said(), "Modifiche messe da parte come trovalis.recupero.old");

  for (int number = 2; number <= 99; ++number)
    folder_.Write("trovalis.recupero.old" + std::to_string(number), "altra");
  const std::string oldest = file_ + ".old50";
  std::filesystem::last_write_time(oldest,
                                   std::filesystem::last_write_time(file_ + ".old") - std::chrono::hours(1));
  folder_.Write("trovalis.recupero", kept);
  StartAndAnswer(false);
  EXPECT_EQ(Contents(oldest), kept) << "the oldest gives way";

  folder_.Write("trovalis.recupero", Base::ByteView(kept).first(kept.size() - 1));
  folder_.Write("trovalis-2.recupero", kept);
  StartAndAnswer(true, "trovalis-2.recupero");
  EXPECT_EQ(Contents(file_ + ".danneggiato").size(), kept.size() - 1);
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 10 di 999");

  std::filesystem::remove(file_ + ".old");
  Open(flash_);
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return std::filesystem::exists(folder_.Path("trovalis-2.recupero.old")); }, 3000))
      << "another list has taken its place unsaved";
}

TEST_F(KeptWorkWindow, AnImportLeavesTheUnsavedListBeforeIt) {
  const std::string text = folder_.Path("lista.txt");
  Export("FormatoTesto", text);
  Delete(1, 1);
  ASSERT_TRUE(FileIs(true));
  driver_->SelectRows(1, 1);
  ASSERT_TRUE(driver_->Press("Toolbar1_Cut"));
  const auto before = List().ChannelTable;
  driver_->ExpectFile("Selezionare il file di testo contenente i CANALI e i TRANSPONDERS", PathText(text));
  ASSERT_TRUE(driver_->Choose("DaEsportatoTesto"));
  EXPECT_TRUE(window_->close());
  const auto left = Edit::DecodeRecovery(Contents(file_ + ".old"));
  ASSERT_TRUE(left);
  EXPECT_TRUE(left->state.ChannelTable == before) << "the change just before it too";

  StartAndAnswer(true);
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 11 di 999");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(window_->close());
  EXPECT_FALSE(std::filesystem::exists(file_)) << "cut channels without a list";
  EXPECT_TRUE(std::filesystem::exists(file_ + ".old2"));
}

// Whoever left them, on whatever computer, except for what a running program holds.
TEST_F(KeptWorkWindow, EveryFileThatIsThereIsOffered) {
  Delete(1, 1);
  EXPECT_TRUE(window_->close());
  const Base::Bytes first = Contents(file_);
  window_->show();
  Delete(1, 1);
  EXPECT_TRUE(window_->close());
  window_.reset();
  for (const char* name : {"trovalis-2.recupero", "trovalis-3.recupero"}) folder_.Write(name, first);
  const std::string stranger = "4711\ntrovalis\nun-altro-pc\n0123456789abcdef\nfedcba9876543210\n";
  folder_.Write("trovalis.recupero.lock", stranger);
  folder_.Write("trovalis-2.recupero.lock", stranger);
  folder_.Write("trovalis-3.recupero.lock", "");
  Base::SystemFile running;
  ASSERT_EQ(running.Hold(folder_.Path("trovalis-2.recupero.lock")), 0);
  StartEmpty();
  ExpectOffer("trovalis.recupero", true);
  ExpectOffer("trovalis-3.recupero", true);
  const std::string others = FileAndTime("trovalis-2.recupero").toStdString();
  window_->OfferKeptWork();
  EXPECT_NE(Said().find("; " + others + ": modifiche di un altro Trovalis aperto; "), std::string::npos)
      << Said();
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 10 di 999");
  const auto aside = Edit::DecodeRecovery(Contents(file_ + ".old"));
  ASSERT_TRUE(aside) << "the other list's work";
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(aside->state.ChannelTable == List().ChannelTable);
  EXPECT_EQ(Contents(folder_.Path("trovalis-2.recupero")), first);
}

TEST_F(KeptWorkWindow, TwoProgramsHaveAFileEach) {
  Delete(1, 1);
  ASSERT_TRUE(FileIs(true));
  Base::Bytes kept = Contents(file_);
  ASSERT_TRUE(driver_->Pick("SRDef_1"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Contents(file_) != kept; }, 3000)) << "options are kept too";
  kept = Contents(file_);
  const std::unique_ptr<MainWindow> first = std::move(window_);
  StartEmpty();
  window_->OfferKeptWork();
  Open(flash_);
  Delete(1, 5);
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(Contents(file_), kept);
  EXPECT_TRUE(std::filesystem::exists(folder_.Path("trovalis-2.recupero")));
}

#ifndef _WIN32
TEST_F(KeptWorkWindow, WhatCannotBeKeptIsToldAndAskedAboutOnlyAtTheEnd) {
  const std::string text = folder_.Path("lista.txt");
  Export("FormatoTesto", text);
  std::filesystem::create_directory(folder_.Path("altrove"));
  {
    ::chmod(folder_.Path().c_str(), 0555);
    const Tests::OrdinaryUser user;
    Delete(1, 1);
    const std::string told =
        "Modifiche non conservate per il recupero: Impossibile scrivere trovalis.recupero: ";
    EXPECT_TRUE(QTest::qWaitFor([&] { return Said() == told + "permesso negato"; }, 3000)) << Said();
    Delete(1, 1);
    EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate né conservate")
        << "as long as it lasts";
    const QString lost =
        "Impossibile scrivere trovalis.recupero: permesso negato\n\nLe modifiche non salvate andrebbero "
        "perse. Si desidera ";
    driver_->ExpectQuestion(lost + "chiudere?", false);
    EXPECT_FALSE(window_->close());
    driver_->ExpectDialog("Trovalis", [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_FALSE(window_->close()) << "Enter loses nothing";
    const Routines::State before = List();
    const auto staysLoaded = [&](const QString& dialog, const std::string& path, const char* command) {
      driver_->ExpectFile(dialog, PathText(path));
      driver_->ExpectQuestion(lost + "continuare?", false);
      ASSERT_TRUE(driver_->Choose(command));
      EXPECT_TRUE(List() == before) << command;
    };
    driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    staysLoaded(InputDialog, flash_, "ApriFlashInput");
    staysLoaded("Selezionare il file di testo contenente i CANALI e i TRANSPONDERS", text,
                "DaEsportatoTesto");
    staysLoaded("Selezionare il file di output", folder_.Path("altrove/a.fls"), "FormatoFLASH");
  }
  ::chmod(folder_.Path().c_str(), 0777);
  EXPECT_TRUE(FileIs(true)) << "tried again and again";
  EXPECT_TRUE(std::filesystem::exists(file_ + ".lock")) << "no other program may take it";
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return driver_->TextOf("ModificheNonSalvate") == "Modifiche non salvate"; }));
}
#endif

TEST_F(KeptWorkWindow, AMalformedSrIniEndsTheProgramWithTheWorkKept) {
  Delete(1, 1);
  const std::string rates(Base::AsText(Contents(folder_.Path("SR.INI"))));
  folder_.Write("SR.INI", "[INPUT]\nventidue\n");
  Tells("ApriFlashOutput", "Formato invalido del file SR.INI - Correggere e rilanciare");
  EXPECT_FALSE(window_->isVisible());
  EXPECT_TRUE(std::filesystem::exists(file_));
  folder_.Write("SR.INI", rates);
  StartAndAnswer(true);
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 10 di 999");
}

}  // namespace Ui
