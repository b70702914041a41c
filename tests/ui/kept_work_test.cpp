// Work that is not saved outlives the window and the program.
#include "edit/list_operations.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QProcess>
#include <QTest>

#include <sys/stat.h>

namespace Ui {
namespace {

const QString Recover = "Esistono modifiche non salvate dell' ultima sessione. Si desidera recuperarle?";
const std::string Recovered = "Recuperate le modifiche dell'ultima sessione";

}  // namespace

class KeptWorkWindow : public Window {
 protected:
  KeptWorkWindow() : file_(folder_.Path("trovalis.recupero")) {}

  void StartAgain() {
    driver_.reset();
    window_.reset();
    Start();
    ASSERT_TRUE(window_->Start());
  }
  void StartAndAnswer(bool yes) {
    StartAgain();
    driver_->ExpectQuestion(Recover, yes);
    window_->OfferKeptWork();
    EXPECT_TRUE(driver_->Idle());
  }
  void DeleteFirst() {
    driver_->SelectRows(1, 1);
    ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  }
  [[nodiscard]] bool FileIs(bool there) const {
    return QTest::qWaitFor([&] { return std::filesystem::exists(file_) == there; }, 3000);
  }

  std::string file_;
};

TEST_F(KeptWorkWindow, ClosingAsksNothingAndTheNextStartGoesOn) {
  OpenDemo();
  EXPECT_TRUE(window_->close());
  EXPECT_FALSE(std::filesystem::exists(file_)) << "nothing was changed";
  window_->show();
  driver_->SelectRows(10, 12);
  ASSERT_TRUE(driver_->Press("Toolbar1_Cut"));
  driver_->SelectRows(1, 1);
  driver_->Key(Qt::Key_F2);
  QTest::keyClicks(QApplication::focusWidget(), "Nuovo");
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(driver_->Cell(1, 1), "Nuovo") << "a cell still being edited";
  const Routines::State before = List();

  StartAndAnswer(true);
  EXPECT_EQ(Said(), Recovered);
  Routines::State after = List();
  after.ListNumber = before.ListNumber;
  EXPECT_TRUE(after == before);
  EXPECT_TRUE(window_->windowTitle().contains("demo.dat"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  EXPECT_EQ(driver_->TextOf("CanaliCopiati"), "Appunti 3");
  EXPECT_TRUE(std::filesystem::exists(file_)) << "until it is saved";

  driver_->ExpectFile(OutputDialog, PathText(flash_));
  Summary(*driver_, 2, 644, true);
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput")) << "the options have come back too";
  QTest::qWait(1500);
  EXPECT_TRUE(std::filesystem::exists(file_)) << "the cut channels are in no list";
  driver_->ExpectLine("Inserire il numero di canale da cui inserire", "10");
  driver_->ExpectQuestion(
      "Sposto o sovrascrivo i canali a partire dal 10 per 3 Canali?\nRispondere SI per spostare NO per "
      "sovrascrivere",
      true);
  ASSERT_TRUE(driver_->Press("Toolbar1_Paste"));
  Summary(*driver_, 2, 647, true);
  ASSERT_TRUE(driver_->Choose("Salva"));
  EXPECT_TRUE(FileIs(false));
  StartAgain();
  window_->OfferKeptWork();
}

TEST_F(KeptWorkWindow, ARefusedOrDamagedOrReplacedFileIsSetAside) {
  OpenDemo();
  DeleteFirst();
  EXPECT_TRUE(window_->close());
  const Base::Bytes kept = Contents(file_);
  StartAndAnswer(false);
  EXPECT_FALSE(List().Loaded);
  EXPECT_EQ(Contents(file_ + ".old"), kept);

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
  StartAndAnswer(true);
  EXPECT_EQ(Contents(file_ + ".danneggiato").size(), kept.size() - 1);
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 619 di 3996");

  std::filesystem::remove(file_ + ".old");
  Open(flash_);
  EXPECT_TRUE(QTest::qWaitFor(
      [this] { return std::filesystem::exists(folder_.Path("trovalis-2.recupero.old")); }, 3000))
      << "another list has taken its place unsaved";
}

TEST_F(KeptWorkWindow, AnImportLeavesTheUnsavedListBeforeIt) {
  OpenDemo();
  const std::string text = folder_.Path("lista.txt");
  driver_->ExpectFile("Selezionare il file di output", PathText(text));
  ASSERT_TRUE(driver_->Choose("FormatoTesto"));
  DeleteFirst();
  ASSERT_TRUE(FileIs(true));
  const Base::Bytes kept = Contents(file_);
  driver_->ExpectFile("Selezionare il file di testo contenente i CANALI e i TRANSPONDERS", PathText(text));
  ASSERT_TRUE(driver_->Choose("DaEsportatoTesto"));
  EXPECT_TRUE(window_->close());
  ASSERT_TRUE(std::filesystem::exists(file_ + ".old"));
  EXPECT_EQ(Contents(file_ + ".old"), kept);
  EXPECT_NE(Contents(file_), kept);
}

TEST_F(KeptWorkWindow, TwoProgramsHaveAFileEach) {
  OpenDemo();
  DeleteFirst();
  ASSERT_TRUE(FileIs(true));
  const Base::Bytes kept = Contents(file_);
  const std::unique_ptr<CopiaTCSTPT> first = std::move(window_);
  StartAgain();
  window_->OfferKeptWork();
  Open(flash_);
  driver_->SelectRows(1, 20);
  ASSERT_TRUE(driver_->Press("Toolbar1_Delete"));
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(Contents(file_), kept);
  EXPECT_TRUE(std::filesystem::exists(folder_.Path("trovalis-2.recupero")));
}

TEST_F(KeptWorkWindow, WhatCannotBeKeptIsToldAndAskedAboutOnlyAtTheEnd) {
  OpenDemo();
  std::filesystem::create_directory(folder_.Path("altrove"));
  {
    ::chmod(folder_.Path().c_str(), 0555);
    const Tests::OrdinaryUser user;
    DeleteFirst();
    const std::string told =
        "Modifiche non conservate per il recupero: Impossibile scrivere trovalis.recupero: ";
    EXPECT_TRUE(QTest::qWaitFor([&] { return Said() == told + "permesso negato"; }, 3000)) << Said();
    DeleteFirst();
    EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate né conservate")
        << "as long as it lasts";
    const QString question =
        "Impossibile scrivere trovalis.recupero: permesso negato\n\nLe modifiche non salvate andrebbero "
        "perse. Si "
        "desidera chiudere?";
    driver_->ExpectQuestion(question, false);
    EXPECT_FALSE(window_->close());
    driver_->ExpectDialog("Trovalis", [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_FALSE(window_->close()) << "Enter loses nothing";
  }
  ::chmod(folder_.Path().c_str(), 0777);
  DeleteFirst();
  EXPECT_TRUE(FileIs(true)) << "the next change tries again";
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return driver_->TextOf("ModificheNonSalvate") == "Modifiche non salvate"; }));
}

TEST_F(KeptWorkWindow, AMalformedSrIniEndsTheProgramWithTheWorkKept) {
  OpenDemo();
  DeleteFirst();
  const std::string rates(Base::AsText(Contents(folder_.Path("SR.INI"))));
  folder_.Write("SR.INI", "[INPUT]\nventidue\n");
  driver_->ExpectMessage("Formato invalido del file SR.INI - Correggere e rilanciare");
  ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
  EXPECT_FALSE(window_->isVisible());
  EXPECT_TRUE(std::filesystem::exists(file_));
  folder_.Write("SR.INI", rates);
  StartAndAnswer(true);
  EXPECT_EQ(driver_->TextOf("CanaliUsati"), "Canali 619 di 3996");
}

TEST_F(KeptWorkWindow, AProgramKilledWhileItEditsLosesLessThanTwoSeconds) {
  OpenDemo();
  Routines::State expected = List();
  QProcess program;
  program.start(EDIT_UNTIL_KILLED, {PathText(folder_.Path()), PathText(flash_)});
  ASSERT_TRUE(program.waitForReadyRead(20000));
  const auto deletions = [&program] { return static_cast<int>(program.readAllStandardOutput().count('\n')); };
  QTest::qWait(700);
  const int early = deletions();
  QTest::qWait(4000);  // twice what is promised, as the machine may be busy
  program.kill();
  ASSERT_TRUE(program.waitForFinished());
  const int last = early + deletions();
  ASSERT_GT(early, 0);

  StartAndAnswer(true);
  const auto differs = [&] {
    return List().ChannelTable != expected.ChannelTable || List().FavouritesBlock != expected.FavouritesBlock;
  };
  int done = 0;
  for (; done < last && differs(); ++done) Edit::DeleteChannels(expected, {1, 1});
  EXPECT_FALSE(differs()) << "the list as it was behind one of the deletions";
  EXPECT_GE(done, early);
}

}  // namespace Ui
