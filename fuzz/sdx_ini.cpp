// Reading SDX.INI.
#include "support/sdx_ini.h"

#include "fuzz_support.h"

#include <algorithm>

using namespace Fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Base::AsText({data, size});
  const auto addresses = Support::AddressesOf(text);
  const auto ends = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  Require(addresses.size() == ends + (text.empty() || text.ends_with('\n') ? 0 : 1), "a line an address");
  std::string_view rest = text;
  for (const std::string& address : addresses) {
    Require(rest.starts_with(address), "addresses stand in the order of their lines");
    rest.remove_prefix(address.size());
    if (rest.starts_with('\r')) rest.remove_prefix(1);
    Require(rest.empty() || rest.starts_with('\n'), "an address is a whole line");
    rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
  }
  Require(rest.empty(), "no line is left out");
  return 0;
}
