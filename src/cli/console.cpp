#include "cli/console.h"

#include "base/file.h"

#include <algorithm>

namespace Cli {

void Console::Note(const std::string& path, const std::string& text) {
  std::string line = text;
  std::replace(line.begin(), line.end(), '\n', ' ');
  const std::string name = ShownName(path);
  Note(line.find(Base::FileName(name)) == std::string::npos ? name + ": " + line : line);
}

std::string ShownName(const std::string& path) { return path == "-" ? "ingresso standard" : path; }

}  // namespace Cli
