#include "base/file.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace Base {
namespace {

constexpr uid_t NoOwner = static_cast<uid_t>(-1);  // leaves the owner as it is

// The names of files on their way into the place of others: this and six hexadecimal digits.
constexpr std::string_view TemporaryPrefix = ".trovalis-";
constexpr std::size_t TemporaryDigits = 6;
constexpr int MostTemporaries = 1000;
constexpr std::size_t LongestAccessList = 65536;

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] bool Valid() const { return number_ >= 0; }
  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

Error Failure(const char* what, const std::string& path, int code) {
  return {std::string(what) + " " + FileName(path) + ": " + SystemReason(code), "", code};
}

Error ReadFailure(const std::string& path, int code) { return Failure("Impossibile leggere", path, code); }
Error WriteFailure(const std::string& path, int code) { return Failure("Impossibile scrivere", path, code); }

bool WriteAll(int file, ByteView bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file, bytes.data(), bytes.size());
    if (written == 0) errno = EIO;
    if (written == 0 || (written < 0 && errno != EINTR)) return false;
    if (written > 0) bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

// Reads up to `limit` bytes from where the file stands; nothing but an error gives false.
bool ReadUpTo(int file, std::size_t limit, Bytes& bytes) {
  std::array<Byte, 65536> block{};
  while (bytes.size() < limit) {
    const ssize_t got = ::read(file, block.data(), std::min(block.size(), limit - bytes.size()));
    if (got < 0 && errno != EINTR) return false;
    if (got == 0) break;
    if (got > 0) bytes.insert(bytes.end(), block.begin(), block.begin() + got);
  }
  return true;
}

// Writes from the start, flushes to the disk and compares what the file then holds. 0, or the errno.
int WriteFlushCompare(int file, ByteView bytes) {
  if (::lseek(file, 0, SEEK_SET) != 0 || !WriteAll(file, bytes) || ::fsync(file) != 0) return errno;
  Bytes back;
  if (::lseek(file, 0, SEEK_SET) != 0 || !ReadUpTo(file, bytes.size() + 1, back)) return errno;
  return std::equal(back.begin(), back.end(), bytes.begin(), bytes.end()) ? 0 : EIO;
}

void FlushFolder(const std::string& folder) {
  const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.Valid()) ::fsync(opened.Number());
}

// The access list of the file at `path`, or none in the place of what the folder has given to `file`.
bool TakeOverAccessList(int file, const std::string& path) {
  constexpr const char* Name = "system.posix_acl_access";
  Bytes list(LongestAccessList);
  const ssize_t size = ::getxattr(path.c_str(), Name, list.data(), list.size());
  if (size > 0) return ::fsetxattr(file, Name, list.data(), static_cast<std::size_t>(size), 0) == 0;
  return ::fremovexattr(file, Name) == 0 || ::fgetxattr(file, Name, nullptr, 0) <= 0;
}

// Owner and permissions of `old`, the file at `path`. Ownership follows as far as the system lets it.
int TakeOver(int file, const std::string& path, const struct stat& old) {
  const bool owned = ::fchown(file, old.st_uid, old.st_gid) == 0 || ::fchown(file, NoOwner, old.st_gid) == 0;
  // A group that could not follow must not be given the rights of another one, nor, without its access list, those
  // that the list only bounds.
  const bool listed = TakeOverAccessList(file, path);
  const mode_t mode = old.st_mode & (owned && listed ? 07777U : 07707U);
  return ::fchmod(file, mode) == 0 ? 0 : errno;
}

bool IsTemporary(const std::filesystem::directory_entry& entry) {
  const std::string name = entry.path().filename().string();
  const std::size_t prefix = TemporaryPrefix.size();
  std::error_code error;
  return name.size() == prefix + TemporaryDigits && name.starts_with(TemporaryPrefix) &&
         name.find_first_not_of("0123456789abcdef", prefix) == std::string::npos &&
         entry.symlink_status(error).type() == std::filesystem::file_type::regular;
}

// Removes what a program that was killed in the middle of a save has left. A save that goes on holds a lock on its
// file, which the system takes away with the program.
void RemoveAbandoned(const std::string& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    if (!IsTemporary(*entry)) continue;
    const Descriptor file(::open(entry->path().c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC));
    if (file.Valid() && ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0) ::unlink(entry->path().c_str());
  }
}

std::string TemporaryName(unsigned number) {
  std::string digits(TemporaryDigits, '0');
  for (char& digit : digits) {
    digit = "0123456789abcdef"[number & 15U];
    number >>= 4U;
  }
  return std::string(TemporaryPrefix) + digits;
}

// A new file in `folder`, held by a lock while it is open; `path` gets its name. -1 with errno where there is none.
int OpenTemporary(const std::string& folder, mode_t mode, std::string& path) {
  static std::atomic<unsigned> number{static_cast<unsigned>(::getpid()) << 6U};
  for (int i = 0; i < MostTemporaries; ++i) {
    path = folder + "/" + TemporaryName(number++);
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0 && errno != EEXIST) return -1;
    if (file < 0) continue;
    // Another save may have taken the file for abandoned before it was locked. Where a file system knows no locks,
    // nothing is taken so.
    const bool taken = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    struct stat status {};
    if (!taken && ::fstat(file, &status) == 0 && status.st_nlink > 0) return file;
    ::close(file);
  }
  errno = EEXIST;
  return -1;
}

// 0 where `path` may be replaced: it is a file that can be written to, or nothing yet.
int Refusal(const std::string& path, bool exists, const struct stat& old) {
  if (!exists) return errno == ENOENT ? 0 : errno;
  if (S_ISDIR(old.st_mode)) return EISDIR;
  if (!S_ISREG(old.st_mode)) return NotAFile;
  return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? 0 : errno;
}

}  // namespace

std::string SystemReason(int systemCode) {
  switch (systemCode) {
    case ENOENT:
      return "il file o la cartella non esiste";
    case EACCES:
    case EPERM:
      return "permesso negato";
    case EROFS:
      return "il disco è in sola lettura";
    case ENOSPC:
    case EDQUOT:
      return "spazio su disco esaurito";
    case EFBIG:
      return "il file supera la dimensione consentita";
    case EISDIR:
      return "è una cartella";
    case ENOTDIR:
      return "il percorso non è una cartella";
    case NotAFile:
      return "non è un file normale";
    case EIO:
      return "errore di lettura o scrittura del disco";
    case ENAMETOOLONG:
      return "il nome è troppo lungo";
    case ELOOP:
      return "troppi collegamenti simbolici";
    case ETXTBSY:
    case EBUSY:
      return "il file è in uso";
    default:
      return std::strerror(systemCode);
  }
}

std::string FileName(std::string_view path) { return std::string(path.substr(path.rfind('/') + 1)); }

std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string_view::npos ? "." : std::string(path.substr(0, slash + 1));
}

std::string ResolvedPath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path resolved = std::filesystem::canonical(path, error);
  if (!error) return resolved.string();
  const std::filesystem::path target = std::filesystem::read_symlink(path, error);
  return error ? path : (std::filesystem::path(path).parent_path() / target).string();
}

Result<std::uint64_t> FileSize(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return ReadFailure(path, errno);
  if (!S_ISREG(status.st_mode)) return ReadFailure(path, S_ISDIR(status.st_mode) ? EISDIR : NotAFile);
  return static_cast<std::uint64_t>(status.st_size);
}

Result<Bytes> ReadFile(const std::string& path, std::size_t limit) {
  const Result<std::uint64_t> size = FileSize(path);
  if (!size) return size.error();
  if (*size > limit) return ReadFailure(path, EFBIG);
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.Valid()) return ReadFailure(path, errno);
  Bytes bytes;
  bytes.reserve(static_cast<std::size_t>(*size));
  if (!ReadUpTo(file.Number(), limit + 1, bytes)) return ReadFailure(path, errno);
  if (bytes.size() > limit) return ReadFailure(path, EFBIG);
  return bytes;
}

Outcome ReplaceFile(const std::string& path, ByteView bytes, const std::string& like) {
  const std::string target = ResolvedPath(path);
  struct stat old {};
  const bool exists = ::stat(target.c_str(), &old) == 0;
  if (const int refused = Refusal(target, exists, old); refused != 0) return WriteFailure(path, refused);

  struct stat model {};
  const bool hasModel = exists || (!like.empty() && ::stat(like.c_str(), &model) == 0);
  const std::string folder = FolderOf(target);
  RemoveAbandoned(folder);
  std::string temporary;
  const Descriptor file(OpenTemporary(folder, hasModel ? 0600 : 0666, temporary));
  if (!file.Valid()) return WriteFailure(path, errno);
  int code = hasModel ? TakeOver(file.Number(), exists ? target : like, exists ? old : model) : 0;
  if (code == 0) code = WriteFlushCompare(file.Number(), bytes);
  if (code == 0 && ::rename(temporary.c_str(), target.c_str()) != 0) code = errno;
  if (code != 0) {
    ::unlink(temporary.c_str());
    return WriteFailure(path, code);
  }
  FlushFolder(folder);
  return Done{};
}

Outcome OverwriteInPlace(const std::string& path, ByteView before, ByteView bytes) {
  const Descriptor file(::open(path.c_str(), O_RDWR | O_CLOEXEC));
  if (!file.Valid()) return WriteFailure(path, errno);
  const int code = WriteFlushCompare(file.Number(), bytes);
  if (code == 0) return Done{};
  if (WriteFlushCompare(file.Number(), before) == 0) return WriteFailure(path, code);
  Error error = WriteFailure(path, code);
  error.message += "\nIl file può essere danneggiato: vedere le copie di sicurezza (.bak)";
  return error;
}

bool FolderRefuses(const Error& error) {
  return error.systemCode == EACCES || error.systemCode == EPERM || error.systemCode == EROFS;
}

}  // namespace Base
