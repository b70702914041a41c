#include "model/bouquets.h"

namespace Routines {

std::string SatelliteText(std::uint32_t satellite, const std::vector<Satellite>& satellites) {
  std::string label = SatelliteLabel(satellite);
  for (const Satellite& named : satellites) {
    if (named.label == label) return label + "  " + named.name;
  }
  return label;
}

const Bouquet* FindBouquet(const BouquetTables& tables, int frequencyMHz, std::string_view label) {
  for (const Bouquet& bouquet : tables.bouquets) {
    if (WithinThreeMHz(bouquet.megahertz, frequencyMHz) && bouquet.label == label) return &bouquet;
  }
  return nullptr;
}

void NameBouquet(TransponderRow& row, const BouquetTables& tables) {
  const Bouquet* bouquet = FindBouquet(tables, FrequencyMHz(row.record), SatelliteLabel(row.record));
  if (bouquet != nullptr) {
    row.SetBouquet(bouquet->name, bouquet->code);
  } else {
    row.SetBouquet("Nessuno", "");
  }
}

void NameBouquets(State& state, const BouquetTables& tables) {
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    NameBouquet(state.Transponder(slot), tables);
  }
}

}  // namespace Routines
