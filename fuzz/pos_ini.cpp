// Reading POS.ini, and putting a folder into it.
#include "support/pos_ini.h"

#include "fuzz_support.h"

using namespace Fuzz;
using namespace Support;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const auto kind = static_cast<FolderKind>(input.Byte() % 3);
  const auto path = std::string(Base::AsText(input.Run(input.Byte())));
  Folders folders = FoldersOf(input.Text());
  for (const std::string& folder : folders) {
    Require(!folder.ends_with(' ') && folder.find('\n') == std::string::npos, "a folder is a trimmed line");
  }
  Require(FoldersOf(PosIniOf(folders)) == folders, "folders survive being written");

  const Folders before = folders;
  SetFolderOf(folders, kind, path);
  for (std::size_t i = 0; i < folders.size(); ++i) {
    Require(i == static_cast<std::size_t>(kind) || folders[i] == before[i], "the other folders stay");
  }
  const std::string& set = folders[static_cast<std::size_t>(kind)];
  Require(set == before[static_cast<std::size_t>(kind)] || path.starts_with(set), "a folder is its path's");
  Folders again = FoldersOf(PosIniOf(folders));
  Require(FoldersOf(PosIniOf(again)) == again, "a folder that was set stays on its line");
  for (std::size_t i = 0; i < folders.size(); ++i)
    Require(folders[i].starts_with(again[i]), "only blanks at its end are lost");
  return 0;
}
