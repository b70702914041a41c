// POS.ini, the folders that the file dialogs were last used in: three lines, each a two-character prefix
// ("0:", "1:", "2:") and a folder. Lines count by their place; errors with the file are never the user's
// concern.
#pragma once

#include <string>

namespace Support {

enum class FolderKind { Input = 0, Foreign = 1, Output = 2 };

// The remembered folder, as bytes of the file system; empty where there is none.
std::string RememberedFolder(const std::string& programFolder, FolderKind kind);

// Remembers the folder of a chosen file: the path before its last separator.
void RememberFolderOf(const std::string& programFolder, FolderKind kind, const std::string& path);

}  // namespace Support
