// Reading blocks of the fifth DVB interface, as services and as transponders, and the one-line form that came before.
#include "formats/dvbv5.h"

#include "listed.h"

using namespace Fuzz;
using namespace Formats;

// Options, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  Input choices(data, size);
  const bool zap = size > 0 && (data[0] & 128U) != 0;
  input.Run(5);
  const std::string_view text = input.Text();
  Require(!IsDvbV5(text) || !IsDvbV5ScanTable(text), "a file is of one kind");
  static_cast<void>(IsZap(text));
  CheckTransponders(ReadDvbV5Transponders(text));
  CheckServices(choices, [&]() -> std::unique_ptr<ServiceReader> {
    if (zap) return std::make_unique<ZapReader>(text);
    return std::make_unique<DvbV5Reader>(text);
  });
  return 0;
}
