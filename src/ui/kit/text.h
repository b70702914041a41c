// Texts of the core, of records and of the file system as the toolkit has them.
#pragma once

#include "base/text.h"

#include <QString>

#include <string>
#include <string_view>

namespace Ui {

// Texts of the core are UTF-8, texts of records and files are Windows-1252.
inline QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
QString CodePageText(std::string_view bytes);

inline QString Counted(std::integral auto count, std::string_view one, std::string_view more) {
  return Text(Base::Counted(count, one, more));
}

// Paths are the file system's own bytes; on Windows UTF-8 with its own separators.
QString PathText(const std::string& path);
std::string PathBytes(const QString& path);
// Of a folder without a separator at its end, as POS.ini has it.
QString FolderText(const std::string& folder);

}  // namespace Ui
