// Reading an order as text, and writing it.
#include "listed.h"

using namespace Fuzz;
using namespace Formats;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::string_view text = input.Text();
  static_cast<void>(IsOrderText(text));
  CheckOrder(ReadOrderText(text));
  return 0;
}
