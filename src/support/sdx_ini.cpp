#include "support/sdx_ini.h"

#include "base/file.h"
#include "base/text.h"

#include <cerrno>

namespace Support {

std::vector<std::string> AddressesOf(std::string_view text) {
  std::vector<std::string> addresses;
  for (const std::string_view line : Base::Lines(text)) addresses.emplace_back(line);
  return addresses;
}

Base::Result<std::vector<std::string>> LoadAddresses(const std::string& folder) {
  const std::string path = Base::PathIn(folder, "SDX.INI");
  const auto bytes = Base::ReadFile(path, 1U << 20U);
  if (!bytes && bytes.error().systemCode == ENOENT) return Base::Error{"File SDX.INI non trovato: " + path};
  if (!bytes) return bytes.error();
  return AddressesOf(Base::AsText(*bytes));
}

}  // namespace Support
