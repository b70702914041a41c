// Reading lamedb, its services and its transponders.
#include "formats/lamedb.h"

#include "listed.h"

using namespace Fuzz;
using namespace Formats;

// Options, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  Input choices(data, size);
  input.Run(5);
  const std::string_view text = input.Text();
  static_cast<void>(IsLamedb(text));
  for (const ListedTransponder& transponder : ReadLamedbTransponders(text).transponders)
    Require(transponder.tid != NotSaid && transponder.nid != NotSaid, "a transponder has its ids");
  CheckServices(choices, [&] { return std::make_unique<LamedbReader>(text); });
  return 0;
}
