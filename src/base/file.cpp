#include "base/file.h"

#include "base/system_file.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <filesystem>

namespace Base {
namespace {

// The names of files on their way into the place of others: this and six hexadecimal digits.
constexpr std::string_view TemporaryPrefix = ".trovalis-";
constexpr std::size_t TemporaryDigits = 6;
constexpr int MostTemporaries = 1000;

constexpr auto Separator = static_cast<char>(std::filesystem::path::preferred_separator);
constexpr const char* Separators = Separator == '/' ? "/" : "/\\";

Error Failure(const char* what, const std::string& path, int code) {
  return {std::string(what) + " " + FileName(path) + ": " + SystemReason(code), "", code};
}

Error ReadFailure(const std::string& path, int code) { return Failure("Impossibile leggere", path, code); }
Error WriteFailure(const std::string& path, int code) { return Failure("Impossibile scrivere", path, code); }

std::string Utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

// Writes, flushes to the disk and compares what the disk then holds.
int WriteAndCompare(const SystemFile& file, ByteView bytes) {
  if (const int code = file.Write(bytes); code != 0) return code;
  file.LeaveMemory();
  Bytes back;
  if (const int code = file.Read(bytes.size() + 1, back); code != 0) return code;
  return std::equal(back.begin(), back.end(), bytes.begin(), bytes.end()) ? 0 : EIO;
}

bool IsTemporary(const std::filesystem::directory_entry& entry) {
  const std::string name = Utf8(entry.path().filename());
  const std::size_t prefix = TemporaryPrefix.size();
  std::error_code error;
  return name.size() == prefix + TemporaryDigits && name.starts_with(TemporaryPrefix) &&
         name.find_first_not_of("0123456789abcdef", prefix) == std::string::npos &&
         entry.symlink_status(error).type() == std::filesystem::file_type::regular;
}

// Removes what a program that was killed in the middle of a save has left. A save that goes on holds its file.
void RemoveAbandoned(const std::string& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(std::u8string(folder.begin(), folder.end()), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    if (IsTemporary(*entry)) RemoveUnlessHeld(Utf8(entry->path()));
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

int CreateTemporary(SystemFile& file, const std::string& folder, SystemFile::Rights rights) {
  static std::atomic<unsigned> number{ProgramNumber() << 6U};
  int code = EEXIST;
  for (int i = 0; code == EEXIST && i < MostTemporaries; ++i) {
    code = file.Create(PathIn(folder, TemporaryName(number++)), rights);
  }
  return code;
}

// 0 where `path` may be replaced: it is a file that can be written to, or nothing yet.
int Refusal(const std::string& path, const FileStatus& old) {
  if (old.code != 0) return old.code == ENOENT ? 0 : old.code;
  if (old.kind == FileKind::Folder) return EISDIR;
  return old.kind == FileKind::File ? WriteRefusal(path) : NotAFile;
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
#ifdef EDQUOT
    case EDQUOT:
#endif
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

std::string FileName(std::string_view path) {
  return std::string(path.substr(path.find_last_of(Separators) + 1));
}

std::string FolderOf(std::string_view path) {
  const std::size_t separator = path.find_last_of(Separators);
  return separator == std::string_view::npos ? "." : std::string(path.substr(0, separator + 1));
}

std::string PathIn(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (path.empty() || path.find_last_of(Separators) != path.size() - 1) path += Separator;
  return path.append(name);
}

Result<std::uint64_t> FileSize(const std::string& path) {
  const FileStatus status = StatusOf(path);
  if (status.code != 0) return ReadFailure(path, status.code);
  if (status.kind != FileKind::File)
    return ReadFailure(path, status.kind == FileKind::Folder ? EISDIR : NotAFile);
  return status.size;
}

Result<Bytes> ReadFile(const std::string& path, std::size_t limit) {
  const Result<std::uint64_t> size = FileSize(path);
  if (!size) return size.error();
  if (*size > limit) return ReadFailure(path, EFBIG);
  SystemFile file;
  if (const int code = file.Open(path, SystemFile::Access::Read); code != 0) return ReadFailure(path, code);
  Bytes bytes;
  bytes.reserve(static_cast<std::size_t>(*size));
  if (const int code = file.Read(limit + 1, bytes); code != 0) return ReadFailure(path, code);
  if (bytes.size() > limit) return ReadFailure(path, EFBIG);
  return bytes;
}

Outcome ReplaceFile(const std::string& path, ByteView bytes, const std::string& like,
                    const LastLook& lastLook) {
  const std::string target = ResolvedPath(path);
  const FileStatus old = StatusOf(target);
  if (const int refused = Refusal(target, old); refused != 0) return WriteFailure(path, refused);

  const std::string& model = old.code == 0 ? target : like;
  const bool hasModel = old.code == 0 || (!like.empty() && StatusOf(like).code == 0);
  const std::string folder = FolderOf(target);
  RemoveAbandoned(folder);
  SystemFile file;
  const auto rights = hasModel ? SystemFile::Rights::OnlyTheOwners : SystemFile::Rights::Usual;
  if (const int code = CreateTemporary(file, folder, rights); code != 0) return WriteFailure(path, code);
  int code = hasModel ? file.TakeOver(model) : 0;
  if (code == 0) code = WriteAndCompare(file, bytes);
  Outcome looked = code == 0 && lastLook ? lastLook() : Done{};
  if (code == 0 && looked) code = file.MoveTo(target);
  if (code == 0 && looked) return Done{};
  file.Remove();
  return looked ? WriteFailure(path, code) : looked;
}

Outcome OverwriteInPlace(const std::string& path, ByteView before, ByteView bytes) {
  SystemFile file;
  if (const int code = file.Open(path, SystemFile::Access::Change); code != 0)
    return WriteFailure(path, code);
  const int code = WriteAndCompare(file, bytes);
  if (code == 0) return Done{};
  if (WriteAndCompare(file, before) == 0) return WriteFailure(path, code);
  Error error = WriteFailure(path, code);
  error.message += "\nIl file può essere danneggiato: vedere le copie di sicurezza (.bak)";
  return error;
}

bool FolderRefuses(const Error& error) {
  return error.systemCode == EACCES || error.systemCode == EPERM || error.systemCode == EROFS;
}

}  // namespace Base
