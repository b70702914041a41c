// Saves that are killed, whose system calls fail one after the other, and that are not allowed.
#include "base/file.h"
#include "core_test.h"
#include "model/flash_file.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

int callsLeft = -1;  // before one fails; below 0 none does
int failure = 0;
bool lying = false;               // a disk that tells nobody what it got wrong, for one file
std::function<void()> meanwhile;  // runs once, while a file is on its way to the disk
bool tracing = false;
std::string trace;  // a letter for each call

bool Fails(char letter) {
  if (tracing) trace += letter;
  if (callsLeft < 0 || callsLeft-- > 0) return false;
  errno = failure;
  return true;
}

}  // namespace

// The linker sends the calls of this program's own objects, and so of the core, to the functions below.
int RealOpen(const char* path, int flags, mode_t mode) __asm__("__real_open");
ssize_t RealWrite(int file, const void* bytes, std::size_t count) __asm__("__real_write");
int RealFsync(int file) __asm__("__real_fsync");
int RealForget(int file, off_t from, off_t count, int advice) __asm__("__real_posix_fadvise");
int RealRename(const char* from, const char* to) __asm__("__real_rename");

int WrappedOpen(const char* path, int flags, mode_t mode) __asm__("__wrap_open");
ssize_t WrappedWrite(int file, const void* bytes, std::size_t count) __asm__("__wrap_write");
int WrappedFsync(int file) __asm__("__wrap_fsync");
int WrappedForget(int file, off_t from, off_t count, int advice) __asm__("__wrap_posix_fadvise");
int WrappedRename(const char* from, const char* to) __asm__("__wrap_rename");

int WrappedOpen(const char* path, int flags, mode_t mode) {
  return Fails('o') ? -1 : RealOpen(path, flags, mode);
}

// A failing write leaves a part behind first, as a full disk does.
ssize_t WrappedWrite(int file, const void* bytes, std::size_t count) {
  if (!Fails('w')) return RealWrite(file, bytes, count);
  const ssize_t part = RealWrite(file, bytes, count / 3);
  errno = failure;
  return part < 0 ? part : -1;
}

int WrappedFsync(int file) { return Fails('f') ? -1 : RealFsync(file); }

// While the bytes are in memory they are read from there; what the disk made of them shows behind this call.
int WrappedForget(int file, off_t from, off_t count, int advice) {
  if (tracing) trace += 'd';
  if (const auto run = std::exchange(meanwhile, {})) run();
  if (std::exchange(lying, false) && ::pwrite(file, "x", 1, 100000) != 1) std::abort();
  return RealForget(file, from, count, advice);
}
int WrappedRename(const char* from, const char* to) { return Fails('r') ? -1 : RealRename(from, to); }

namespace Routines {

using namespace Tests;

namespace {

const Base::Bytes Old = Samples::ImageFullOf('o');
const Base::Bytes New = Samples::ImageFullOf('n');

// Saves one image over the other, of which the first is on the disk, until it is killed; tells when it begins.
[[noreturn]] void SaveForEver(const std::string& path, const Base::Bytes& first, int begun) {
  Backups backups{Base::FolderOf(path), {}};
  static_cast<void>(RealWrite(begun, "b", 1));
  for (bool newNext = first == Old;; newNext = !newNext)
    static_cast<void>(SaveFlash(path, newNext ? Old : New, newNext ? New : Old, backups));
}

// Starts such a program and kills it behind so many microseconds of its work.
void KillASave(const std::string& path, const Base::Bytes& first, long delay) {
  std::array<int, 2> pipe{};
  ASSERT_EQ(::pipe(pipe.data()), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) SaveForEver(path, first, pipe[1]);
  char begun = 0;
  EXPECT_EQ(::read(pipe[0], &begun, 1), 1);
  std::this_thread::sleep_for(std::chrono::microseconds(delay));
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  ::close(pipe[0]);
  ::close(pipe[1]);
}

Base::Bytes ImageAt(const std::string& path) {
  auto bytes = Base::ReadFile(path, FlashSize + 1);
  return bytes ? *bytes : Base::Bytes{};
}

// Whether every copy there is holds one of the two images whole.
bool CopiesAreWhole(const std::string& path) {
  for (const char* ending : {".bak", ".bak2"}) {
    const Base::Bytes copy = ImageAt(path + ending);
    if (!copy.empty() && copy != Old && copy != New) return false;
  }
  return true;
}

}  // namespace

// TROVALIS_KILLS=5000 makes a long run of it.
TEST(InterruptedSave, AKilledSaveLeavesTheOldImageOrTheNewOne) {
  const char* wanted = std::getenv("TROVALIS_KILLS");
  const int kills = wanted == nullptr ? 300 : std::atoi(wanted);
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  const auto start = std::chrono::steady_clock::now();
  ASSERT_TRUE(Base::ReplaceFile(path, Old));
  const auto once =
      std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start).count();
  folder.Write("next", "");
  std::mt19937 random(7);
  int inTheMiddle = 0;
  for (int i = 0; i < kills; ++i) {
    KillASave(path, ImageAt(path), static_cast<long>(random()) % (4 * once));
    const Base::Bytes found = ImageAt(path);
    ASSERT_TRUE(found == Old || found == New) << "kill " << i;
    ASSERT_TRUE(CopiesAreWhole(path)) << "kill " << i;
    const int before = folder.Files();
    ASSERT_TRUE(Base::ReplaceFile(folder.Path("next"), Base::AsBytes("next save")));
    const int after = folder.Files();
    ASSERT_LE(after, 4) << "the image, its copies and the next file: nothing of a killed save";
    if (after < before) ++inTheMiddle;
  }
  EXPECT_GT(inTheMiddle, kills / 20) << "the kills come at the wrong time";
  std::printf("%d kills, %d of them while a file was being written\n", kills, inTheMiddle);
}

// What only a power cut would show: the bytes are on the disk before the name is, and the name before it counts.
TEST(InterruptedSave, FileAndFolderAreFlushedInTheirTurn) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  tracing = true;
  ASSERT_TRUE(Base::ReplaceFile(path, New));
  tracing = false;
  EXPECT_EQ(trace, "owfdrof");
}

// In place too: there the old bytes are written again.
TEST(InterruptedSave, WhatTheDiskDoesNotGiveBackIsNotSaved) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  const auto refused = [&path](const Base::Outcome& saved) {
    return !saved &&
           saved.error().message == "Impossibile scrivere a.dat: errore di lettura o scrittura del disco" &&
           Contents(path) == Old;
  };
  lying = true;
  EXPECT_TRUE(refused(Base::ReplaceFile(path, New)));
  lying = true;
  EXPECT_TRUE(refused(Base::OverwriteInPlace(path, Old, New)));
  failure = EIO;
  for (callsLeft = 2; callsLeft >= 0;) {
    const int call = callsLeft;
    EXPECT_TRUE(refused(Base::OverwriteInPlace(path, Old, New))) << call;
    callsLeft = call - 1;
  }
  callsLeft = -1;
}

TEST(InterruptedSave, WhicheverCallFailsTheOldImageStaysAndTheErrorIsTold) {
  int failures = 0;
  for (const int code : {ENOSPC, EIO, EROFS}) {
    bool failed = true;
    for (int call = 0; failed; ++call) {
      ASSERT_LT(call, 100);
      const TestFolder folder;
      const std::string path = folder.Write("a.dat", Old);
      Backups backups{folder.Path(), {}};
      failure = code;
      callsLeft = call;
      const auto saved = SaveFlash(path, Old, New, backups);
      failed = callsLeft < 0;
      callsLeft = -1;
      const Base::Bytes found = Contents(path);
      if (failed) ++failures;
      EXPECT_TRUE(saved ? found == New : found == Old) << "call " << call << ", error " << code;
      EXPECT_TRUE(CopiesAreWhole(path));
      if (saved) {
        EXPECT_EQ(Contents(path + ".bak"), Old);
        EXPECT_EQ(folder.Files(), 2);
        continue;
      }
      EXPECT_TRUE(saved.error().message.starts_with("Impossibile ")) << saved.error().message;
      EXPECT_LE(folder.Files(), 2) << "no temporary file is left by call " << call;
      ASSERT_TRUE(SaveFlash(path, Old, New, backups)) << "the next attempt succeeds";
    }
  }
  std::printf("%d failing calls\n", failures);
}

TEST(FlashFile, InALockedFolderNothingIsWrittenWithoutACopyElsewhere) {
  const TestFolder folder, program;
  const std::string path = folder.Write("a.dat", Old);
  ::chmod(folder.Path().c_str(), 0555);
  const OrdinaryUser user;
  Backups none{folder.Path("missing"), {}};
  EXPECT_FALSE(SaveFlash(path, Old, New, none));
  EXPECT_EQ(Contents(path), Old);
  Backups elsewhere{program.Path(), {}};
  EXPECT_TRUE(SaveFlash(path, Old, New, elsewhere));
  EXPECT_EQ(Contents(path), New);
  EXPECT_EQ(Contents(program.Path("a.dat.bak")), Old);
}

TEST(FlashFile, WhatAnotherProgramSavesMeanwhileIsKept) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  Backups session{folder.Path(), {}};
  ASSERT_TRUE(SaveFlash(path, Old, New, session));
  const Base::Bytes others(300, '5');
  meanwhile = [&] { folder.Write("a.dat", others); };
  const auto saved = SaveFlash(path, New, Old, session);
  ASSERT_TRUE(saved);
  EXPECT_EQ(Contents(path), Old);
  EXPECT_EQ(saved->othersCopy, "a.dat.bak2");
  EXPECT_EQ(Contents(path + ".bak2"), others);
}

// The copy of a failed attempt is not the copy of what the file holds by the next one.
TEST(FlashFile, AFailedOverwritingDoesNotUseUpTheCopy) {
  const TestFolder folder;
  const std::string path = folder.Write("a.dat", Old);
  Backups session{folder.Path(), {}};
  ::chmod(path.c_str(), 0400);
  {
    const OrdinaryUser user;
    EXPECT_FALSE(SaveFlash(path, Old, New, session));
  }
  const Base::Bytes other = Samples::ImageFullOf('7');
  folder.Write("a.dat", other);
  ASSERT_TRUE(SaveFlash(path, other, New, session));
  EXPECT_EQ(Contents(path + ".bak2"), other);
  struct stat status {};
  ASSERT_EQ(::stat((path + ".bak2").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0666U) << "a copy is as open or closed as its image";
}

}  // namespace Routines
