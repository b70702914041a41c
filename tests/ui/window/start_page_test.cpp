// The first minutes, from an empty home folder, and files of the program that are missing or wrong.
#include "support/pos_ini.h"
#include "support/program_folder.h"
#include "ui/kit/text.h"
#include "ui/window_fixture.h"

namespace Ui {

class FirstMinutes : public Window {
 protected:
  void SetUp() override {
    Support::FillProgramFolder(folder_.Path(), home_);
    Start(home_);
    ASSERT_TRUE(window_->Start());
  }
  [[nodiscard]] bool StandsOut(const char* group) const {
    return !window_->findChild<QGroupBox*>(group)->accessibleDescription().isEmpty();
  }

  std::string home_ = folder_.Path("home");
};

TEST_F(FirstMinutes, TheStartPageLeadsThroughTheFirstStepsAndTicksThem) {
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
  EXPECT_TRUE(List().Loaded);
  Tells("ApriFlashOutput", "Si deve selezionare il tipo di FLASH da registrare");
  EXPECT_TRUE(StandsOut("FlashScrittura"));
  ASSERT_TRUE(driver_->Choose("Annulla"));
  EXPECT_TRUE(window_->findChild<QWidget*>("InizioRecente_1")->isVisible());
}

TEST_F(FirstMinutes, TheFolderOfTheDemoListIsNoChoiceForTheFirstSave) {
  EXPECT_EQ(Support::LoadFolder(home_, Support::FolderKind::Output), "");
  Support::SaveFolderOf(home_, Support::FolderKind::Output, home_ + "/demo.dat");  // as versions before did
  Open(flash_);
  ASSERT_TRUE(driver_->Pick("FlashScrittura_1"));
  SaveAs("demo.dat", 647);
  EXPECT_EQ(List().OutputFlash, flash_);
}

TEST_F(FirstMinutes, ADemoListThatWasDeletedStaysAway) {
  EXPECT_EQ(Contents(home_ + "/demo.dat"), Contents(flash_));
  std::filesystem::remove(home_ + "/demo.dat");
  Support::FillProgramFolder(folder_.Path(), home_);
  EXPECT_FALSE(std::filesystem::exists(home_ + "/demo.dat"));
}

TEST_F(SmallWindow, MistakesInBouquetsAreListedAndAMissingSrIniStopsWrites) {
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
