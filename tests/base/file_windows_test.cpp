// The same promises as on Linux, where Windows keeps them in another way.
#include "base/file.h"
#include "core_test.h"

#include <cerrno>
#include <filesystem>
#include <windows.h>
#undef ReplaceFile  // the system has one too

namespace Base {

using namespace Tests;

const Bytes Old(3000, 'o');
const Bytes New(200000, 'n');

TEST(File, ReplacingKeepsAttributesAndLeavesNothingBehind) {
  const TestFolder folder;
  const std::string path = folder.Write("flash.dat", Old);
  ASSERT_NE(::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
  const Outcome result = ReplaceFile(path, New);
  ASSERT_TRUE(result) << result.error().message;
  EXPECT_EQ(Contents(path), New);
  EXPECT_NE(::GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
  EXPECT_EQ(folder.Files(), 1);
}

TEST(File, NamesOfAnyAlphabet) {
  const TestFolder folder;
  const std::string path = folder.Path("città 漢 😀.dat");
  ASSERT_TRUE(ReplaceFile(path, Old));
  ASSERT_TRUE(ReplaceFile(path, New));
  EXPECT_EQ(*ReadFile(path, New.size()), New);
  EXPECT_EQ(FileName(ResolvedPath(path)), "città 漢 😀.dat");
  EXPECT_TRUE(
      std::filesystem::exists(std::filesystem::path(folder.Path()) / L"citt\u00E0 \u6F22 \U0001F600.dat"));
}

TEST(File, WhatIsNoFileToWriteIsRefused) {
  const TestFolder folder;
  const std::string locked = folder.Write("locked.dat", Old);
  ASSERT_NE(::SetFileAttributesA(locked.c_str(), FILE_ATTRIBUTE_READONLY), 0);
  const std::string open = folder.Write("open.dat", Old);
  const HANDLE other = ::CreateFileA(open.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  const std::pair<std::string, int> cases[] = {{locked, EACCES},
                                               {folder.Path(), EISDIR},
                                               {folder.Path("none/flash.dat"), ENOENT},
                                               {open, EBUSY},
                                               {"NUL", NotAFile}};
  for (const auto& [place, code] : cases) {
    const Outcome result = ReplaceFile(place, New);
    ASSERT_FALSE(result) << place;
    EXPECT_EQ(result.error().systemCode, code) << place << ": " << result.error().message;
  }
  ::CloseHandle(other);
  EXPECT_EQ(Contents(open), Old);
  EXPECT_EQ(Contents(locked), Old);
  ::SetFileAttributesA(locked.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(folder.Files(), 2);
}

TEST(File, BothSeparatorsEndAFolderAndAFileIsWrittenWhereItLies) {
  EXPECT_EQ(FileName("C:\\liste\\a/b.dat"), "b.dat");
  EXPECT_EQ(FolderOf("C:/liste\\b.dat"), "C:/liste\\");
  const TestFolder folder;
  const std::string path = folder.Write("flash.dat", Old);
  EXPECT_TRUE(OverwriteInPlace(path, Old, Bytes(Old.size(), 'x')));
  EXPECT_EQ(Contents(path), Bytes(Old.size(), 'x'));
}

}  // namespace Base
