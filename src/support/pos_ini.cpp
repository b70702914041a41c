#include "support/pos_ini.h"

#include "base/file.h"
#include "base/text.h"

#include <array>

namespace Support {
namespace {

constexpr std::size_t SizeLimit = 1U << 20U;
using Folders = std::array<std::string, 3>;

std::string PathIn(const std::string& programFolder) { return programFolder + "/POS.ini"; }

Folders ReadFolders(const std::string& programFolder) {
  Folders folders;
  const auto bytes = Base::ReadFile(PathIn(programFolder), SizeLimit);
  if (!bytes) return folders;
  const auto lines = Base::Lines(Base::AsText(*bytes));
  if (lines.size() < folders.size()) return folders;
  for (std::size_t i = 0; i < folders.size(); ++i) {
    folders[i] = Base::TrimmedRight(lines[i].substr(std::min<std::size_t>(2, lines[i].size())));
  }
  return folders;
}

}  // namespace

std::string RememberedFolder(const std::string& programFolder, FolderKind kind) {
  return ReadFolders(programFolder)[static_cast<std::size_t>(kind)];
}

void RememberFolderOf(const std::string& programFolder, FolderKind kind, const std::string& path) {
  Folders folders = ReadFolders(programFolder);
  const std::size_t separator = path.find_last_of("/\\");
  // A line end inside a folder's name would push the other folders off their lines.
  if (separator != std::string::npos && path.find_first_of("\r\n") >= separator) {
    folders[static_cast<std::size_t>(kind)] = path.substr(0, separator);
  }
  std::string text;
  for (std::size_t i = 0; i < folders.size(); ++i) text += std::to_string(i) + ":" + folders[i] + "\r\n";
  // Nothing to be done where it cannot be written: the next dialog opens in its default folder.
  static_cast<void>(Base::ReplaceFile(PathIn(programFolder), Base::AsBytes(text)));
}

}  // namespace Support
