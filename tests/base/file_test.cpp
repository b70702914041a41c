#include "base/file.h"

#include "core_test.h"

#include <cerrno>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Base {

using namespace Tests;

const Bytes Old(3000, 'o');
const Bytes New(200000, 'n');

TEST(File, ReplacingFollowsLinksAndKeepsPermissions) {
  const TestFolder folder;
  const std::string path = folder.Write("flash.dat", Old);
  ::chmod(path.c_str(), 0640);
  const std::string link = folder.Path("link.dat");
  ASSERT_EQ(::symlink("flash.dat", link.c_str()), 0);

  ASSERT_TRUE(ReplaceFile(link, New));

  struct stat status {};
  ASSERT_EQ(::lstat(link.c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_EQ(Contents(path), New);
  EXPECT_EQ(folder.Files(), 2) << "no temporary file is left";
}

// An access list goes along; one that only the folder would give to a new file does not.
TEST(File, ReplacingKeepsTheAccessList) {
  constexpr const char* List = "system.posix_acl_access";
  // Version 2; the owner, user 1234, the owning group, what others may get at most, everybody else.
  const std::string user(
      "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\6\0\xD2\4\0\0\4\0\0\0\xFF\xFF\xFF\xFF"
      "\20\0\6\0\xFF\xFF\xFF\xFF\40\0\0\0\xFF\xFF\xFF\xFF",
      44);
  const TestFolder folder;
  const std::string listed = folder.Write("listed.dat", Old);
  if (::setxattr(listed.c_str(), List, user.data(), user.size(), 0) != 0)
    GTEST_SKIP() << "no access lists here";
  const std::string plain = folder.Write("plain.dat", Old);
  ASSERT_EQ(::setxattr(folder.Path().c_str(), "system.posix_acl_default", user.data(), user.size(), 0), 0);

  ASSERT_TRUE(ReplaceFile(listed, New));
  ASSERT_TRUE(ReplaceFile(plain, New));
  std::string found(100, ' ');
  ASSERT_EQ(::getxattr(listed.c_str(), List, found.data(), found.size()), 44);
  EXPECT_EQ(found.substr(0, 44), user);
  EXPECT_LT(::getxattr(plain.c_str(), List, nullptr, 0), 0);
}

TEST(File, WhatIsNoFileToWriteIsRefused) {
  const TestFolder folder;
  const std::string locked = folder.Write("locked.dat", Old);
  ::chmod(locked.c_str(), 0444);
  const OrdinaryUser user;
  const std::string loop = folder.Path("loop");
  ASSERT_EQ(::symlink("loop", loop.c_str()), 0);
  const std::pair<std::string, int> cases[] = {{locked, EACCES},
                                               {folder.Path(), EISDIR},
                                               {folder.Path("none/flash.dat"), ENOENT},
                                               {loop, ELOOP},
                                               {"/dev/null", NotAFile}};
  for (const auto& [place, code] : cases) {
    const Outcome result = ReplaceFile(place, New);
    ASSERT_FALSE(result) << place;
    EXPECT_EQ(result.error().systemCode, code) << place;
  }
  EXPECT_EQ(Contents(locked), Old);
}

TEST(File, ReadingStopsAtTheLimitAndAtWhatIsNoFile) {
  const TestFolder folder;
  const std::string path = folder.Write("flash.dat", Old);
  EXPECT_EQ(*ReadFile(path, Old.size()), Old);
  ::chmod(path.c_str(), 0);
  const OrdinaryUser user;
  EXPECT_EQ(ReadFile(path, Old.size() - 1).error().systemCode, EFBIG) << "before it is opened";
  EXPECT_EQ(ReadFile(folder.Path(), 10).error().systemCode, EISDIR);
  ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(ReadFile(folder.Path("pipe"), 10)) << "a pipe would be waited for";
  EXPECT_EQ(ReadFile("/none", 10).error().message,
            "Impossibile leggere none: il file o la cartella non esiste");
}

}  // namespace Base
