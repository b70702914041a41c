// The satellites and bouquets (channel packages) that the user has named, and the naming of transponders by
// them.
#pragma once

#include "model/routines.h"

#include <string>
#include <vector>

namespace Routines {

// Texts are bytes of the code page.
struct Satellite {
  std::string name;
  std::string label;  // "SAT B"
};

struct Bouquet {
  std::string name;
  std::string label;     // of its satellite
  std::string code;      // two digits
  double megahertz = 0;  // 0 where its frequency is no number
};

struct BouquetTables {
  static constexpr std::size_t MaxSatellites = 25;
  static constexpr std::size_t MaxBouquets = 254;

  std::vector<Satellite> satellites;
  std::vector<Bouquet> bouquets;
};

// "SAT B  Hotbird", or the label alone where the satellite has no name.
std::string SatelliteText(std::uint32_t satellite, const std::vector<Satellite>& satellites);

// The first bouquet of that satellite less than 3 MHz away, or null.
const Bouquet* FindBouquet(const BouquetTables& tables, int frequencyMHz, std::string_view label);

// Looks a transponder up; one without a bouquet is named "Nessuno" and has no code.
void NameBouquet(TransponderRow& row, const BouquetTables& tables);

// Does so for transponders 1..TransponderCount.
void NameBouquets(State& state, const BouquetTables& tables);

}  // namespace Routines
