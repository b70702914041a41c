#include "model/flash_file.h"
#include "model/flash_image.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace Routines {

using Tests::Contents;
using Tests::TestFolder;

namespace {

const Base::Bytes Old(FlashSize, 'o');
const Base::Bytes New(FlashSize, 'n');

}  // namespace

TEST(FlashFile, InALockedFolderTheCopyGoesToTheProgramsFolder) {
  const TestFolder folder;
  const TestFolder program;
  const std::string path = folder.Write("a.dat", Old);
  ::chmod(folder.Path().c_str(), 0555);
  const Tests::OrdinaryUser user;
  Backups session{program.Path(), {}};
  ASSERT_TRUE(SaveFlash(path, Old, New, session));
  EXPECT_EQ(Contents(path), New);
  EXPECT_EQ(Contents(program.Path("a.dat.bak")), Old);

  Backups none{program.Path("missing"), {}};
  const Base::Bytes third(FlashSize, '3');
  EXPECT_FALSE(SaveFlash(path, New, third, none)) << "no copy, no write";
  EXPECT_EQ(Contents(path), New);
}

// The copy of a failed attempt is not the copy of what the file holds by the next one.
TEST(FlashFile, AFailedOverwritingDoesNotUseUpTheCopy) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  Backups session{folder.Path(), {}};
  ::chmod(path.c_str(), 0400);
  {
    const Tests::OrdinaryUser user;
    EXPECT_FALSE(SaveFlash(path, Old, New, session));
  }
  const Base::Bytes other(FlashSize, '7');
  folder.Write("a.dat", other);
  ASSERT_TRUE(SaveFlash(path, other, New, session));
  EXPECT_EQ(Contents(path + ".bak2"), other);
  struct stat status {};
  ASSERT_EQ(::stat((path + ".bak2").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0666U) << "a copy is as open or closed as its image";
}

TEST(FlashFile, WithoutRoomForTheCopyNothingIsWritten) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  const Tests::FileSizeLimit limit(FlashSize / 2);
  Backups session{folder.Path(), {}};
  EXPECT_FALSE(SaveFlash(path, Old, New, session));
  EXPECT_EQ(Contents(path), Old);
  EXPECT_EQ(folder.Files(), 1);
}

}  // namespace Routines
