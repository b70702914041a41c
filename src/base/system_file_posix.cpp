#include "base/file.h"
#include "base/system_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Base {
namespace {

constexpr uid_t NoOwner = static_cast<uid_t>(-1);  // leaves the owner as it is

constexpr std::size_t LongestAccessList = 65536;

int Number(std::intptr_t handle) { return static_cast<int>(handle); }

bool WriteAll(int file, ByteView bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file, bytes.data(), bytes.size());
    if (written == 0) errno = EIO;
    if (written == 0 || (written < 0 && errno != EINTR)) return false;
    if (written > 0) bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

// The access list of the file at `path`, or none in the place of what the folder has given to `file`.
bool TakeOverAccessList(int file, const std::string& path) {
  constexpr const char* Name = "system.posix_acl_access";
  Bytes list(LongestAccessList);
  const ssize_t size = ::getxattr(path.c_str(), Name, list.data(), list.size());
  if (size > 0) return ::fsetxattr(file, Name, list.data(), static_cast<std::size_t>(size), 0) == 0;
  return ::fremovexattr(file, Name) == 0 || ::fgetxattr(file, Name, nullptr, 0) <= 0;
}

void FlushFolder(const std::string& folder) {
  const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return;
  ::fsync(opened);
  ::close(opened);
}

}  // namespace

std::string ResolvedPath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path resolved = std::filesystem::canonical(path, error);
  if (!error) return resolved.string();
  const std::filesystem::path target = std::filesystem::read_symlink(path, error);
  return error ? path : (std::filesystem::path(path).parent_path() / target).string();
}

FileStatus StatusOf(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return {errno};
  if (S_ISDIR(status.st_mode)) return {0, FileKind::Folder};
  if (!S_ISREG(status.st_mode)) return {0, FileKind::Other};
  return {0, FileKind::File, static_cast<std::uint64_t>(status.st_size)};
}

int WriteRefusal(const std::string& path) {
  return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

// The system takes a lock away with the program that held it.
void RemoveUnlessHeld(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
  if (file < 0) return;
  if (::flock(file, LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
  ::close(file);
}

unsigned ProgramNumber() { return static_cast<unsigned>(::getpid()); }

SystemFile::~SystemFile() {
  if (held_) Remove();
  if (handle_ >= 0) ::close(Number(handle_));
}

int SystemFile::Open(const std::string& path, Access access) {
  handle_ = access == Access::Read ? ::open(path.c_str(), O_RDONLY | O_CLOEXEC)
                                   : ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  path_ = path;
  return handle_ >= 0 ? 0 : errno;
}

int SystemFile::Create(const std::string& path, Rights rights) {
  const mode_t mode = rights == Rights::Usual ? 0666 : 0600;
  const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
  if (file < 0) return errno;
  // Another save may have taken the file for abandoned before it was locked. Where a file system knows no locks,
  // nothing is taken so.
  const bool taken = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
  struct stat status {};
  if (taken || ::fstat(file, &status) != 0 || status.st_nlink == 0) {
    ::close(file);
    return EEXIST;
  }
  handle_ = file;
  path_ = path;
  return 0;
}

int SystemFile::Hold(const std::string& path) {
  constexpr int MostTries = 100;
  for (int i = 0; i < MostTries; ++i) {
    int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0 && errno == EACCES) file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);  // another user's
    if (file < 0) return errno;
    // Where a file system knows no locks, nothing is held.
    const bool busy = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    // The one who held it may have removed it before it was locked.
    struct stat status {};
    const bool there = !busy && ::fstat(file, &status) == 0 && status.st_nlink > 0;
    if (there) {
      handle_ = file;
      path_ = path;
      held_ = true;
      return 0;
    }
    ::close(file);
    if (busy) return EBUSY;
  }
  return ENOLCK;
}

// Ownership follows as far as the system lets it.
int SystemFile::TakeOver(const std::string& model) const {
  struct stat old {};
  if (::stat(model.c_str(), &old) != 0) return errno;
  const int file = Number(handle_);
  const bool owned = ::fchown(file, old.st_uid, old.st_gid) == 0 || ::fchown(file, NoOwner, old.st_gid) == 0;
  // A group that could not follow must not be given the rights of another one, nor, without its access list, those
  // that the list only bounds.
  const bool listed = TakeOverAccessList(file, model);
  const mode_t mode = old.st_mode & (owned && listed ? 07777U : 07707U);
  return ::fchmod(file, mode) == 0 ? 0 : errno;
}

int SystemFile::Read(std::size_t limit, Bytes& bytes) const {
  if (::lseek(Number(handle_), 0, SEEK_SET) != 0) return errno;
  std::array<Byte, 65536> block{};
  while (limit > 0) {
    const ssize_t got = ::read(Number(handle_), block.data(), std::min(block.size(), limit));
    if (got < 0 && errno != EINTR) return errno;
    if (got == 0) break;
    if (got < 0) continue;
    bytes.insert(bytes.end(), block.begin(), block.begin() + got);
    limit -= static_cast<std::size_t>(got);
  }
  return 0;
}

int SystemFile::Write(ByteView bytes) const {
  const int file = Number(handle_);
  return ::lseek(file, 0, SEEK_SET) == 0 && WriteAll(file, bytes) && ::fsync(file) == 0 ? 0 : errno;
}

void SystemFile::LeaveMemory() const { ::posix_fadvise(Number(handle_), 0, 0, POSIX_FADV_DONTNEED); }

int SystemFile::MoveTo(const std::string& target) const {
  if (::rename(path_.c_str(), target.c_str()) != 0) return errno;
  FlushFolder(FolderOf(target));
  return 0;
}

void SystemFile::Remove() const { ::unlink(path_.c_str()); }

}  // namespace Base
