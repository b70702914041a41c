#include "model/flash_file.h"

#include "model/flash_image.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace Routines {

using Tests::Contents;
using Tests::TestFolder;

namespace {

const Base::Bytes Old(FlashSize, 'o');
const Base::Bytes New(FlashSize, 'n');

}  // namespace

TEST(FlashFile, OnlyAnImagesSizeIsRead) {
  const TestFolder folder;
  for (const std::size_t size : {std::size_t{0}, FlashSize - 1, FlashSize + 1}) {
    const auto image = ReadFlash(folder.Write("a.dat", Base::Bytes(size, 'x')), "Errore FLASH di Input");
    ASSERT_FALSE(image);
    EXPECT_EQ(image.error().message, "Dimensione FLASH selezionata errata " + std::to_string(size));
    EXPECT_EQ(image.error().title, "Errore FLASH di Input");
  }
  EXPECT_EQ(*ReadFlash(folder.Write("a.dat", Old), ""), Old);
}

TEST(FlashFile, TheFirstOverwritingOfASessionKeepsTheOldImage) {
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
}

}  // namespace Routines
