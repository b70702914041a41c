#include "model/flash_file.h"

#include "base/file.h"
#include "base/system_file.h"
#include "core_test.h"

#include <chrono>
#include <filesystem>

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

TEST(FlashFile, AHeldTemporaryStaysAndAnAbandonedOneGoes) {
  const TestFolder folder;
  folder.Write(".trovalis-00000a", Old);
  const std::string held = folder.Path(".trovalis-00000b");
  Base::SystemFile running;
  ASSERT_EQ(running.Create(held, Base::SystemFile::Rights::Usual), 0);
  ASSERT_TRUE(Base::ReplaceFile(folder.Path("flash.dat"), New));
  EXPECT_EQ(folder.Files(), 2) << "the new file and the one that another save holds";
  EXPECT_EQ(Base::StatusOf(held).code, 0);
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

TEST(FlashFile, TheFirstCopyAndTheTwentyNewestStay) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  for (int number = 1; number <= 31; ++number) {
    const std::string copy = path + ".bak" + (number == 1 ? "" : std::to_string(number));
    std::filesystem::resize_file(folder.Write(Base::FileName(copy), ""), FlashSize);
    const auto age = std::chrono::hours(number == 2 ? 0 : number == 1 ? 500 : 100 - number);
    std::filesystem::last_write_time(copy, std::filesystem::file_time_type::clock::now() - age);
  }
  for (const char* other : {"a.dat.bak03", "a.dat.bak3x", "b.dat.bak3"})
    std::filesystem::copy(path + ".bak", folder.Path(other));
  folder.Write("a.dat.bak40", "breve");
  std::filesystem::create_directory(folder.Path("a.dat.bak41"));
  Backups session{folder.Path(), {}};
  const auto saved = SaveFlash(path, Old, New, session);
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->removedCopies, 11);
  for (int number = 3; number <= 31; ++number)
    EXPECT_EQ(std::filesystem::exists(path + ".bak" + std::to_string(number)), number > 13) << number;
  EXPECT_EQ(Contents(path + ".bak42"), Old);
  EXPECT_EQ(folder.Files(), 1 + 31 + 1 - 11 + 5);
}

}  // namespace Routines
