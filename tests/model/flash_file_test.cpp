#include "model/flash_file.h"

#include "model/flash_image.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace Routines {

using namespace Tests;

TEST(FlashFile, TheFirstOverwritingOfASessionKeepsTheOldImage) {
  const Base::Bytes Old(FlashSize, 'o');
  const Base::Bytes New(FlashSize, 'n');
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  Backups session{folder.Path(), {}};
  ASSERT_TRUE(SaveFlash(path, Old, New, session));
  EXPECT_EQ(Contents(path), New);
  EXPECT_EQ(Contents(path + ".bak"), Old);
  const Base::Bytes third(FlashSize, '3');
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

  const Base::Bytes others(FlashSize, '5');
  folder.Write("a.dat", others);
  ASSERT_TRUE(SaveFlash(path, others, Old, again));
  EXPECT_EQ(Contents(path + ".bak3"), others) << "another program has saved since";
}

}  // namespace Routines
