#include "support/sdx_ini.h"

#include "base/file.h"
#include "base/text.h"

namespace Support {

Base::Result<std::vector<std::string>> ReadSdxIni(const std::string& programFolder) {
  const std::string path = programFolder + "/SDX.INI";
  const auto bytes = Base::ReadFile(path, 1U << 20U);
  if (!bytes) return Base::Error{"File SDX.INI non trovato: " + path};
  std::vector<std::string> addresses;
  for (const std::string_view line : Base::Lines(Base::AsText(*bytes))) addresses.emplace_back(line);
  return addresses;
}

}  // namespace Support
