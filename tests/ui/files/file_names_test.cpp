// Files and folders as other people name them.
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

TEST_F(SmallWindow, NamesOfAnyKindAreOpenedSavedAndShown) {
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
    Delete(2, 2);
    driver_->ExpectDialog(OutputDialog, [](QDialog& box) { box.accept(); });
    Summary(*driver_, 2, 11, true);
    ASSERT_TRUE(driver_->Choose("ApriFlashOutput"));
    EXPECT_EQ(List().OutputFlash, path);
    EXPECT_NE(Contents(path), Contents(flash_));
    EXPECT_FALSE(driver_->TextOf("FlashOutput").contains('\n')) << "one line";
  }
}

// A pipe would be waited for, and a device or somebody's large file replaced.
TEST_F(Window, WhatIsNoSettingsFileIsLeftAlone) {
  const std::string ini = folder_.Path("trovalis.ini");
  const std::string pipe = folder_.Path("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  for (const char* what : {"non è un file normale", "il file supera la dimensione consentita"}) {
    std::filesystem::remove(ini);
    std::filesystem::create_symlink(pipe, ini);
    Start();
    EXPECT_EQ(Said(), "Impossibile leggere trovalis.ini: " + std::string(what) +
                          ": le impostazioni non vengono conservate");
    EXPECT_TRUE(window_->close());
    EXPECT_TRUE(std::filesystem::is_symlink(ini));
    EXPECT_EQ(std::filesystem::is_fifo(pipe), what[0] == 'n');
    std::filesystem::remove(pipe);
    folder_.Write("pipe", std::string((1U << 20U) + 1, 'x'));
  }
  EXPECT_GT(std::filesystem::file_size(pipe), 1U << 20U);
}

}  // namespace Ui
