// Files and folders as other people name and lock them.
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

#include <sys/stat.h>

namespace Ui {
namespace {

// Clicks the file in the dialog's list, where its name need not be typed.
void ClickInList(const std::string& path) {
  auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr) return;
  auto* list = dialog->findChild<QListView*>("listView");
  dialog->setDirectory(QFileInfo(PathText(path)).path());
  const auto row = [&] {
    return list->model()
        ->match(list->model()->index(0, 0, list->rootIndex()), Qt::DisplayRole,
                QFileInfo(PathText(path)).fileName(), 1, Qt::MatchExactly)
        .value(0);
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return row().isValid(); }, 5000)) << path;
  list->setCurrentIndex(row());
}

}  // namespace

TEST_F(Window, NamesOfAnyKindAreOpenedSavedAndShown) {
  StartEmpty();
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  const std::string place = folder_.Path("Citt\xC3\xA0 \xE2\x98\x82 'x' [*]");
  std::filesystem::create_directory(place);
  for (const std::string& name :
       {std::string("a\nb.dat"), std::string("\"a\" b.dat"), std::string("<b>&amp;%1.dat"),
        std::string(" .dat"), std::string(251, 'x') + ".dat", std::string(249, 'x') + "\xC3\xA0.dat"}) {
    const std::string path = place + "/" + name;
    std::filesystem::copy(flash_, path);
    driver_->onBox = [&path](const QString&) { ClickInList(path); };
    ASSERT_TRUE(driver_->Pick("QuantiCanali_2"));
    if (List().Loaded)
      driver_->ExpectQuestion("Si desidera accodare la nuova Flash a quella già caricata?", false);
    driver_->ExpectDialog(InputDialog, [](QDialog& box) { box.accept(); });
    ASSERT_TRUE(driver_->Choose("ApriFlashInput"));
    EXPECT_EQ(List().InputFlash, path);
    Delete(1, 1);
    driver_->ExpectDialog(OutputDialog, [](QDialog& box) { box.accept(); });
    Summary(*driver_, 2, 646, true);
    ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
    EXPECT_EQ(List().OutputFlash, path);
    EXPECT_NE(Contents(path), Contents(flash_));
    EXPECT_FALSE(driver_->TextOf("FlashOutput").contains('\n')) << "one line";
  }
}

TEST_F(Window, AFolderThatVanishesBehindTheDialogLosesNothing) {
  const std::string place = folder_.Path("chiavetta");
  const auto chooseAndUnplug = [&](const char* name) {
    std::filesystem::create_directory(place);
    std::filesystem::copy(flash_, place + "/a.dat");
    return [&place, name](QDialog& box) {
      box.findChild<QLineEdit*>("fileNameEdit")->setText(PathText(place + "/" + name));
      box.accept();
      std::filesystem::remove_all(place);
    };
  };
  Delete(1, 2);
  const Routines::State before = List();
  driver_->ExpectDialog(OutputDialog, chooseAndUnplug("a.dat"));
  Tells("ApriFlashOutput", "Dimensione FLASH selezionata errata 0", "Errore FLASH di Output");
  driver_->ExpectDialog("Selezionare il file di output", chooseAndUnplug("lista.txt"));
  ASSERT_TRUE(driver_->Choose("FormatoTesto"));
  EXPECT_EQ(Said(), "Impossibile scrivere lista.txt: il file o la cartella non esiste");
  EXPECT_TRUE(List() == before);
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
}

TEST_F(Window, WhatIsWrittenOverByAnotherNameIsSavedNoLonger) {
  const std::string image = folder_.Write("a.dat", Contents(flash_));
  const std::string link = folder_.Path("b.dat");
  std::filesystem::create_symlink("a.dat", link);
  Delete(1, 3);
  SaveAs(image, 644);
  Open(flash_);
  SaveAs(link, 647);
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "");
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
}

TEST_F(Window, AnImageInALockedFolderIsSavedWhereItLies) {
  const std::string place = folder_.Path("bloccata");
  std::filesystem::create_directory(place);
  std::filesystem::copy(flash_, place + "/a.dat");
  ::chmod((place + "/a.dat").c_str(), 0666);
  ::chmod(place.c_str(), 0555);
  Delete(1, 2);
  driver_->ExpectFile(OutputDialog, PathText(place + "/a.dat"));
  Summary(*driver_, 2, 645, true);
  {
    const Tests::OrdinaryUser user;
    EXPECT_TRUE(driver_->Choose("ApriFlashOutput"));
  }
  ::chmod(place.c_str(), 0777);
  EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "");
  EXPECT_NE(Contents(place + "/a.dat"), Contents(flash_));
  EXPECT_EQ(Contents(folder_.Path("a.dat.bak")), Contents(flash_)) << "in the program's folder";
}

}  // namespace Ui
