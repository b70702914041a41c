#include "model/flash_file.h"

#include "image_builder.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace Routines {

using namespace Tests;

const Base::Bytes Old = Samples::ImageFullOf('o');
const Base::Bytes New = Samples::ImageFullOf('n');

TEST(FlashFile, TheFirstOverwritingOfASessionKeepsTheOldImage) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  Backups session{folder.Path(), {}};
  ASSERT_TRUE(SaveFlash(path, Old, New, session));
  EXPECT_EQ(Contents(path), New);
  EXPECT_EQ(Contents(path + ".bak"), Old);
  const Base::Bytes third = Samples::ImageFullOf('3');
  ASSERT_TRUE(SaveFlash(path, New, third, session));
  EXPECT_EQ(Contents(path + ".bak"), Old);
  EXPECT_EQ(folder.Files(), 2);

  Backups later{folder.Path(), {}};
  ASSERT_TRUE(SaveFlash(path, third, Old, later));
  EXPECT_EQ(Contents(path + ".bak"), Old) << "an earlier copy is never overwritten";
  EXPECT_EQ(Contents(path + ".bak2"), third);
  Backups again{folder.Path(), {}};
  ASSERT_TRUE(SaveFlash(path, Old, New, again));
  EXPECT_EQ(folder.Files(), 3) << "one that holds the same bytes is enough";

  const Base::Bytes others = Samples::ImageFullOf('5');
  folder.Write("a.dat", others);
  ASSERT_TRUE(SaveFlash(path, others, Old, again));
  EXPECT_EQ(Contents(path + ".bak3"), others) << "another program has saved since";
}

// A byte of the directory, one of a section's header, and a length.
TEST(FlashFile, AWriterThatLeavesTheSectionsIsStopped) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  Backups session{folder.Path(), {}};
  Base::Bytes wrong[] = {New, New, New};
  wrong[0][2] ^= 1U;
  wrong[1][16] ^= 1U;
  wrong[2].pop_back();
  for (const Base::Bytes& image : wrong) {
    const auto saved = SaveFlash(path, Old, image, session);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().message, "Impossibile scrivere a.dat: la modifica esce dalle sezioni conosciute");
    EXPECT_EQ(Contents(path), Old);
    EXPECT_EQ(folder.Files(), 1);
  }
}

}  // namespace Routines
