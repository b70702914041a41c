// Texts of the core, of records and of the file system as the toolkit has them.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace Ui {

// Texts of the core are UTF-8, texts of records and files are Windows-1252.
inline QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
QString CodePageText(std::string_view bytes);

// Paths are the file system's own bytes.
QString PathText(const std::string& path);
std::string PathBytes(const QString& path);

}  // namespace Ui
