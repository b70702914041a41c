// POS.ini, the folders that the file dialogs were last used in: three lines, each a two-character prefix
// ("0:", "1:", "2:") and a folder. Lines count by their place; errors with the file are never the user's
// concern.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace Support {

enum class FolderKind { Input = 0, Foreign = 1, Output = 2 };

// The folders that a file's text gives, by kind; fewer than three lines give none.
using Folders = std::array<std::string, 3>;
Folders FoldersOf(std::string_view text);

// Those of the lines that there are, for a file that is about to be written again.
Folders KnownFoldersOf(std::string_view text);

// Puts the folder of a chosen file, the path before its last separator, in the place of the one of its kind. A path
// without a folder, or with a line end in it, changes nothing.
void SetFolderOf(Folders& folders, FolderKind kind, const std::string& path);

// The text of the file that holds them.
std::string PosIniOf(const Folders& folders);

// The folder that POS.ini remembers for a kind, as bytes of the file system; empty where there is none.
std::string LoadFolder(const std::string& programFolder, FolderKind kind);

// Has it remember the folder of a chosen file.
void SaveFolderOf(const std::string& programFolder, FolderKind kind, const std::string& path);

}  // namespace Support
