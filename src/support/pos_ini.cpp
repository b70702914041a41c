#include "support/pos_ini.h"

#include "base/file.h"
#include "base/text.h"

#include <algorithm>

namespace Support {
namespace {

constexpr std::size_t SizeLimit = 1U << 20U;

std::string PathOf(const std::string& programFolder) { return Base::PathIn(programFolder, "POS.ini"); }

std::string ReadText(const std::string& programFolder) {
  const auto bytes = Base::ReadFile(PathOf(programFolder), SizeLimit);
  return bytes ? std::string(Base::AsText(*bytes)) : std::string();
}

}  // namespace

Folders FoldersOf(std::string_view text) {
  return Base::Lines(text).size() < Folders().size() ? Folders() : KnownFoldersOf(text);
}

Folders KnownFoldersOf(std::string_view text) {
  Folders folders;
  const auto lines = Base::Lines(text);
  for (std::size_t i = 0; i < std::min(lines.size(), folders.size()); ++i) {
    folders[i] = Base::TrimmedRight(lines[i].substr(std::min<std::size_t>(2, lines[i].size())));
  }
  return folders;
}

void SetFolderOf(Folders& folders, FolderKind kind, const std::string& path) {
  const std::size_t separator = path.find_last_of("/\\");
  // A line end inside a folder's name would push the other folders off their lines.
  if (separator == std::string::npos || path.find_first_of("\r\n") < separator) return;
  folders[static_cast<std::size_t>(kind)] = path.substr(0, separator);
}

std::string PosIniOf(const Folders& folders) {
  std::string text;
  for (std::size_t i = 0; i < folders.size(); ++i) text += std::to_string(i) + ":" + folders[i] + "\r\n";
  return text;
}

std::string LoadFolder(const std::string& programFolder, FolderKind kind) {
  return FoldersOf(ReadText(programFolder))[static_cast<std::size_t>(kind)];
}

void SaveFolderOf(const std::string& programFolder, FolderKind kind, const std::string& path) {
  const std::string text = ReadText(programFolder);
  Folders folders = KnownFoldersOf(text);
  SetFolderOf(folders, kind, path);
  // Most files come from where the last one did, and a flush to the disk is what a user would wait for.
  if (folders == FoldersOf(text)) return;
  // Nothing to be done where it cannot be written: the next dialog opens in its default folder.
  static_cast<void>(Base::ReplaceFile(PathOf(programFolder), Base::AsBytes(PosIniOf(folders))));
}

}  // namespace Support
