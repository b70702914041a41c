// Reading the transponder lists of web sites, and positions in file names.
#include "formats/scan_table.h"

#include "listed.h"

using namespace Fuzz;
using namespace Formats;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::string_view text = input.Text();
  static_cast<void>(IsTransponderIni(text));
  const TransponderList list = ReadTransponderIni(text);
  CheckTransponders(list);
  for (const ListedTransponder& transponder : list.transponders)
    Require(transponder.position == list.position, "the position is the file's");
  const int position = PositionInFileName(text.substr(0, 64)).value_or(0);
  Require(position >= -1800 && position <= 1800, "a position in a name");
  return 0;
}
