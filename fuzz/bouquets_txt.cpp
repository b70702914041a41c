// Reading Bouquets.txt, and naming transponders by it.
#include "support/bouquets_txt.h"

#include "base/code_page.h"
#include "base/text.h"
#include "fuzz_support.h"

#include <algorithm>
#include <cmath>

using namespace Fuzz;
using namespace Routines;

namespace {

void CheckTables(const BouquetTables& tables) {
  Require(tables.satellites.size() <= BouquetTables::MaxSatellites, "at most 25 satellites");
  Require(tables.bouquets.size() <= BouquetTables::MaxBouquets, "at most 254 bouquets");
  for (const Satellite& satellite : tables.satellites) {
    Require(satellite.label.size() == 5 && satellite.label.find('=') == std::string::npos,
            "a satellite's label");
  }
  for (const Bouquet& bouquet : tables.bouquets) {
    Require(bouquet.code.size() == 2, "a code has two characters");
    Require(std::isfinite(bouquet.megahertz), "a frequency is a number");
    Require(bouquet.name.find(',') == std::string::npos, "fields end at their commas");
    Require(
        bouquet.label.empty() || std::any_of(tables.satellites.begin(), tables.satellites.end(),
                                             [&](const Satellite& s) { return s.label == bouquet.label; }),
        "a bouquet belongs to a satellite of the file");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Base::AsText({data, size});
  const Support::BouquetDefinitions definitions = Support::BouquetsOf(text);
  const BouquetTables& tables = definitions.tables;
  CheckTables(tables);
  const auto decoded = Base::FromMarkedUtf8(text);
  std::size_t lines = 0;
  for (const std::string_view line : Base::Lines(decoded)) lines += line.starts_with('#') ? 0 : 1;
  Require(tables.satellites.size() + tables.bouquets.size() + definitions.errors.size() == lines,
          "every line is taken or told");

  // A transponder on each bouquet's own frequency.
  TransponderRow row;
  for (const Bouquet& bouquet : tables.bouquets) {
    const double hertz = (bouquet.megahertz - 9750) * 1000000;
    if (hertz < 1 || hertz > 4e9) continue;
    Set(row.record, TransponderField::Frequency, static_cast<std::uint32_t>(hertz));
    Set(row.record, TransponderField::Satellite,
        bouquet.label.empty() ? 0U : static_cast<std::uint32_t>(bouquet.label.back() - 'A'));
    NameBouquet(row, tables);
    const bool found = FindBouquet(tables, FrequencyMHz(row.record), SatelliteLabel(row.record)) != nullptr;
    Require(found || row.BouquetCode() == "  ", "a bouquet that was not found has no code");
    Require(found || bouquet.label != SatelliteLabel(row.record), "a bouquet is found on its own frequency");
  }
  return 0;
}
