// Reading userbouquets.
#include "formats/userbouquet.h"

#include "listed.h"

using namespace Fuzz;
using namespace Formats;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::string_view text = input.Text();
  static_cast<void>(IsUserBouquet(text));
  CheckOrder(ReadUserBouquet(text));
  return 0;
}
