#include "base/file.h"
#include "base/system_file.h"
#include "base/wide_windows.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <vector>
#include <windows.h>

namespace Base {
namespace {

constexpr DWORD SharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD KeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;

HANDLE Handle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

// The errno value that stands for the system's last error.
int LastCode() {
  switch (::GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return ENOENT;
    case ERROR_ACCESS_DENIED:
      return EACCES;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return EBUSY;
    case ERROR_WRITE_PROTECT:
      return EROFS;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return ENOSPC;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return EEXIST;
    case ERROR_FILENAME_EXCED_RANGE:
      return ENAMETOOLONG;
    case ERROR_CANT_RESOLVE_FILENAME:
      return ELOOP;
    default:
      return EIO;
  }
}

// A handle of its own for asking about what is at `path`.
class Inquiry {
 public:
  Inquiry(const std::string& path, DWORD access)
      : handle_(::CreateFileW(Wide(path).c_str(), access, SharedWithAll, nullptr, OPEN_EXISTING,
                              FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {}
  ~Inquiry() {
    if (Valid()) ::CloseHandle(handle_);
  }
  Inquiry(const Inquiry&) = delete;
  Inquiry& operator=(const Inquiry&) = delete;

  [[nodiscard]] bool Valid() const { return handle_ != INVALID_HANDLE_VALUE; }
  [[nodiscard]] HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

// "\\?\C:\folder" is "C:\folder", "\\?\UNC\server\share" is "\\server\share".
std::wstring WithoutPrefix(const std::wstring& path) {
  constexpr std::wstring_view Plain = L"\\\\?\\";
  constexpr std::wstring_view Network = L"\\\\?\\UNC\\";
  if (path.starts_with(Network)) return L"\\\\" + path.substr(Network.size());
  return path.starts_with(Plain) ? path.substr(Plain.size()) : path;
}

bool Rewind(HANDLE file) { return ::SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, FILE_BEGIN) != 0; }

// Who may do what with the file. A file system that knows no such list has none to follow.
int CopyAccessList(const std::wstring& from, const std::wstring& to) {
  DWORD size = 0;
  ::GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> list(size);
  if (size == 0 || ::GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size) == 0)
    return 0;
  return ::SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, list.data()) != 0 ? 0 : LastCode();
}

}  // namespace

std::string ResolvedPath(const std::string& path) {
  const Inquiry file(path, 0);
  if (!file.Valid()) return path;
  std::wstring name(::GetFinalPathNameByHandleW(file.Get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
  const DWORD length = ::GetFinalPathNameByHandleW(file.Get(), name.data(), static_cast<DWORD>(name.size()),
                                                   FILE_NAME_NORMALIZED);
  if (length == 0 || length >= name.size()) return path;
  name.resize(length);
  return Narrow(WithoutPrefix(name));
}

FileStatus StatusOf(const std::string& path) {
  const Inquiry file(path, 0);
  if (!file.Valid()) return {LastCode()};
  BY_HANDLE_FILE_INFORMATION about{};
  if (::GetFileType(file.Get()) != FILE_TYPE_DISK) return {0, FileKind::Other};
  if (::GetFileInformationByHandle(file.Get(), &about) == 0) return {LastCode()};
  if ((about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return {0, FileKind::Folder};
  return {0, FileKind::File, (std::uint64_t{about.nFileSizeHigh} << 32U) | about.nFileSizeLow};
}

// Read-only counts where a file server would open the file all the same, too; on a folder it says nothing.
int WriteRefusal(const std::string& path) {
  const DWORD attributes = ::GetFileAttributesW(Wide(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return LastCode();
  const DWORD about = attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY);
  if (about == FILE_ATTRIBUTE_READONLY) return EACCES;
  return Inquiry(path, GENERIC_WRITE).Valid() ? 0 : LastCode();
}

// A file that is open without being shared cannot be deleted.
void RemoveUnlessHeld(const std::string& path) { ::DeleteFileW(Wide(path).c_str()); }

unsigned ProgramNumber() { return ::GetCurrentProcessId(); }

SystemFile::~SystemFile() {
  if (handle_ != -1) ::CloseHandle(Handle(handle_));
}

int SystemFile::Open(const std::string& path, Access access) {
  const bool reading = access == Access::Read;
  handle_ = reinterpret_cast<std::intptr_t>(
      ::CreateFileW(Wide(path).c_str(), reading ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE,
                    reading ? SharedWithAll : FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  path_ = path;
  return handle_ != -1 ? 0 : LastCode();
}

// A new file has the rights that its folder hands down; TakeOver puts others in their place.
int SystemFile::Create(const std::string& path, Rights /*rights*/) {
  handle_ =
      reinterpret_cast<std::intptr_t>(::CreateFileW(Wide(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                                                    0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
  path_ = path;
  return handle_ != -1 ? 0 : LastCode();
}

int SystemFile::Hold(const std::string& path) {
  handle_ = reinterpret_cast<std::intptr_t>(
      ::CreateFileW(Wide(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
  return handle_ != -1 ? 0 : LastCode();
}

int SystemFile::TakeOver(const std::string& model) const {
  const std::wstring from = Wide(model);
  const std::wstring own = Wide(path_);
  const DWORD attributes = ::GetFileAttributesW(from.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return LastCode();
  const DWORD kept = attributes & KeptAttributes;
  if (::SetFileAttributesW(own.c_str(), kept != 0 ? kept : FILE_ATTRIBUTE_NORMAL) == 0) return LastCode();
  return CopyAccessList(from, own);
}

int SystemFile::Read(std::size_t limit, Bytes& bytes) const {
  if (!Rewind(Handle(handle_))) return LastCode();
  std::array<Byte, 65536> block{};
  while (limit > 0) {
    DWORD got = 0;
    const auto wanted = static_cast<DWORD>(std::min(block.size(), limit));
    if (::ReadFile(Handle(handle_), block.data(), wanted, &got, nullptr) == 0) return LastCode();
    if (got == 0) break;
    bytes.insert(bytes.end(), block.begin(), block.begin() + got);
    limit -= got;
  }
  return 0;
}

int SystemFile::Write(ByteView bytes) const {
  constexpr std::size_t MostAtOnce = 1U << 20U;
  if (!Rewind(Handle(handle_))) return LastCode();
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto wanted = static_cast<DWORD>(std::min(MostAtOnce, bytes.size()));
    if (::WriteFile(Handle(handle_), bytes.data(), wanted, &written, nullptr) == 0) return LastCode();
    if (written == 0) return ENOSPC;
    bytes = bytes.subspan(written);
  }
  return ::FlushFileBuffers(Handle(handle_)) != 0 ? 0 : LastCode();
}

// Only a second handle could read past the system's cache, and nobody else may open the file while it is written.
void SystemFile::LeaveMemory() const {}

// By its handle, so that the file is held until it has its name; a rename by path would need it free. The second
// flush takes the new name to the disk.
int SystemFile::MoveTo(const std::string& target) const {
  const std::wstring name = std::filesystem::absolute(Wide(target)).make_preferred().wstring();
  const std::size_t bytes = name.size() * sizeof(wchar_t);
  std::vector<std::byte> buffer(sizeof(FILE_RENAME_INFO) + bytes);
  auto* move = reinterpret_cast<FILE_RENAME_INFO*>(buffer.data());
  move->ReplaceIfExists = TRUE;
  move->FileNameLength = static_cast<DWORD>(bytes);
  std::memcpy(&move->FileName[0], name.data(), bytes);
  if (::SetFileInformationByHandle(Handle(handle_), FileRenameInfo, move,
                                   static_cast<DWORD>(buffer.size())) == 0)
    return LastCode();
  ::FlushFileBuffers(Handle(handle_));
  return 0;
}

void SystemFile::Remove() const {
  FILE_DISPOSITION_INFO gone{TRUE};
  ::SetFileInformationByHandle(Handle(handle_), FileDispositionInfo, &gone, sizeof(gone));
}

}  // namespace Base
