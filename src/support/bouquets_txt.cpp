#include "support/bouquets_txt.h"

#include "base/code_page.h"
#include "base/file.h"
#include "base/text.h"

#include <cerrno>
#include <charconv>
#include <cmath>

namespace Support {
namespace {

constexpr std::size_t SizeLimit = 1U << 20U;

double Megahertz(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return std::isfinite(value) ? value : 0;
}

class Reader {
 public:
  BouquetDefinitions Run(std::string_view text) {
    for (const std::string_view line : Base::Lines(text)) {
      if (line.starts_with('#')) continue;
      const std::string_view trimmed = Base::Trimmed(line);
      if (trimmed.find("SAT=") != std::string_view::npos) {
        TakeSatellite(trimmed);
      } else {
        TakeBouquet(line);
      }
    }
    return std::move(definitions_);
  }

 private:
  void Report(const char* what, std::string_view line = {}) {
    definitions_.errors.push_back(what + Base::ToUtf8(line));
  }

  void TakeSatellite(std::string_view line) {
    const char letter = line.back();
    const bool capital = letter >= 'A' && letter <= 'Z';
    if (!capital && !(letter >= 'a' && letter <= 'z')) {
      Report("Codice satellite non compreso tra A e Z ", line);
      return;
    }
    auto& satellites = definitions_.tables.satellites;
    if (satellites.size() == Routines::BouquetTables::MaxSatellites) {
      Report("Troppi satelliti, max 25)");
      return;
    }
    std::string label(line.substr(line.size() - 5));
    std::replace(label.begin(), label.end(), '=', ' ');
    satellites.push_back({std::string(line.substr(0, line.find(','))), label});
  }

  void TakeBouquet(std::string_view line) {
    const std::size_t first = line.find(',');
    const std::size_t second = first == std::string_view::npos ? first : line.find(',', first + 1);
    if (second == std::string_view::npos || line.find(',', second + 1) != std::string_view::npos) {
      Report("Record Bouquet errato: ", line);
      return;
    }
    auto& tables = definitions_.tables;
    if (tables.bouquets.size() == Routines::BouquetTables::MaxBouquets) {
      Report("Troppi bouquet, max 254");
      return;
    }
    const std::string_view frequency = line.substr(first + 1, second - first - 1);
    const std::string code = "00" + std::string(Base::Trimmed(line.substr(second + 1)));
    tables.bouquets.push_back({std::string(line.substr(0, first)),
                               tables.satellites.empty() ? "" : tables.satellites.back().label,
                               code.substr(code.size() - 2), Megahertz(frequency)});
  }

  BouquetDefinitions definitions_;
};

}  // namespace

BouquetDefinitions BouquetsOf(std::string_view text) { return Reader().Run(Base::FromMarkedUtf8(text)); }

BouquetDefinitions LoadBouquets(const std::string& folder) {
  const auto bytes = Base::ReadFile(Base::PathIn(folder, "Bouquets.txt"), SizeLimit);
  if (bytes) return BouquetsOf(Base::AsText(*bytes));
  BouquetDefinitions none;
  if (bytes.error().systemCode != ENOENT) none.errors.push_back(bytes.error().message);
  return none;
}

}  // namespace Support
