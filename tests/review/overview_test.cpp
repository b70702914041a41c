// What the overview counts, on a list with something for every line.
#include "review/overview.h"

#include "core_test.h"

namespace Review {

using namespace Routines;
using namespace Samples;

TEST(Overview, EveryLineHasItsRowsAndWhatTheyAreAShareOf) {
  const auto state = std::make_unique<State>();
  state->ChannelCount = 12;
  state->TransponderCount = 6;
  state->SymbolRateTable = "27000,22000,";
  const struct {
    int slot, megahertz, satellite, rate;
    std::uint32_t channels;
    const char* bouquet;
  } transponders[] = {{1, 11000, 0, 0, 2, "Citt\xE0"}, {2, 11500, 1, 0, 0, "Citt\xE0"},  // a wrong count
                      {4, 12800, 2, 1, 1, "Oltre"},    {5, 11000, 1, 2, 0, "Vuoto"},     // none of the rates
                      {6, 12000, 0, 1, 1, " "},        {7, 12000, 0, 1, 9, "Oltre il conto"}};
  for (const auto& t : transponders) {
    TransponderRow& row = state->Transponder(t.slot);
    row.record = MakeTransponder(t.megahertz, true, t.satellite, t.rate, 2);
    Set(row.record, TransponderField::ChannelCount, t.channels);
    row.SetBouquet(t.bouquet, "");
  }
  constexpr int None = 65535;
  const struct {
    std::size_t slot;
    int transponder, sid, vpid, apid, flags;
  } channels[] = {{1, 1, 7, 8, 9, 0x04}, {2, 6, 8, None, 9, 0x04}, {4, 2, 9, None, None, 0x00},
                  {5, 3, 1, 8, 9, 0x04}, {6, 7, 1, 8, 9, 0x24},    {7, 0, 1, None, 9, 0x20},
                  {8, 1, 7, 8, 9, 0x04}, {10, 4, 2, 8, 9, 0x24},   {13, 1, 7, 8, 9, 0x04}};
  for (const auto& c : channels)
    state->Channel(c.slot) = MakeChannel("C", c.transponder, c.sid, c.vpid, c.apid, c.flags);

  std::string told;
  auto section = OverviewSection::Checks;
  for (const OverviewLine& line : Overview(*state, {{"\xC8st", "SAT B"}})) {
    told += (line.section == section ? "; " : "\n") + line.text + ":";
    section = line.section;
    for (const int slot : line.slots) told += " " + std::to_string(slot);
    told += (line.transponders ? " t/" : " /") + std::to_string(line.of);
  }
  EXPECT_EQ(told, R"(
TV: 1 5 6 8 10 /8; Radio: 2 7 /8; Servizi: 4 /8; di cui non attivi: 4 7 /8
SAT A: 1 2 8 /8; SAT B  Èst: 4 /8; SAT C: 10 /8; Transponder mancanti: 5 6 7 /8
Città  (SAT A): 1 8 /8; Città  (SAT B): 4 /8; Nessuno  (SAT A): 2 /8; Oltre  (SAT C): 10 /8; )"
                  R"(Transponder mancanti: 5 6 7 /8
04: 1 2 5 8 /8; 24: 6 10 /8; 00: 4 /8; 20: 7 /8
Occupati: 1 2 4 5 6 t/6; Liberi: 3 t/6
Occupati: 1 2 4 5 6 7 8 10 /12; Vuoti fra i canali: 3 9 /12; Liberi in fondo: 11 12 /12
Canali su transponder mancanti: 5 6 7 /8; Canali doppi: 1 8 /8; Transponder senza canali: 5 t/5; )"
                  R"(Transponder fuori banda o senza SR: 4 5 t/5; Transponder con conteggio errato: 2 t/5)");
}

}  // namespace Review
