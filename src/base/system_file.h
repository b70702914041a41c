// What whole files need of the operating system: system_file_posix.cpp and system_file_windows.cpp are the same
// functions for two of them. Paths are UTF-8; codes are errno values on both, 0 where nothing went wrong.
#pragma once

#include "base/bytes.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace Base {

enum class FileKind { File, Folder, Other };

struct FileStatus {
  int code = 0;
  FileKind kind = FileKind::Other;
  std::uint64_t size = 0;
};

// Of what a path leads to, symbolic links followed.
FileStatus StatusOf(const std::string& path);

// 0 where an existing file can be written to, or a folder takes new files.
int WriteRefusal(const std::string& path);

// Removes a file unless a running program holds it.
void RemoveUnlessHeld(const std::string& path);

// A number that differs between running programs.
unsigned ProgramNumber();

// One open file.
class SystemFile {
 public:
  enum class Access { Read, Change };
  enum class Rights { Usual, OnlyTheOwners };

  SystemFile() = default;
  ~SystemFile();
  SystemFile(const SystemFile&) = delete;
  SystemFile& operator=(const SystemFile&) = delete;

  int Open(const std::string& path, Access access);
  // A new file, held until it is closed. EEXIST where the name is taken.
  int Create(const std::string& path, Rights rights);
  // Opens a file, or makes it, and holds it until it is closed or this program ends; then it goes away. EBUSY where a
  // running program holds it, be it on another computer, as far as the file system tells; what it contains and who has
  // left it does not matter.
  int Hold(const std::string& path);
  [[nodiscard]] bool IsOpen() const { return handle_ != -1; }
  // Owner and permissions of another file, as far as the system lets a program give them.
  int TakeOver(const std::string& model) const;
  // Appends up to `limit` bytes from the start of the file.
  int Read(std::size_t limit, Bytes& bytes) const;
  // Writes from the start of the file and flushes it to the disk.
  int Write(ByteView bytes) const;
  // What has been flushed is read from the disk from now on, where the system can be told so.
  void LeaveMemory() const;
  // Puts a created file in the place of `target` in one step, and its name on the disk.
  int MoveTo(const std::string& target) const;
  // Takes a created file away.
  void Remove() const;

 private:
  std::intptr_t handle_ = -1;
  std::string path_;
  bool held_ = false;  // to be removed when it is closed
};

}  // namespace Base
