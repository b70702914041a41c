// Reading SR.INI, and recoding transponders by it.
#include "support/sr_ini.h"

#include "fuzz_support.h"

using namespace Fuzz;
using namespace Routines;

namespace {

void CheckTable(const std::string& table, Sr22000 place) {
  Require(table.size() == SymbolRateCodes * SymbolRateCell, "the table has 96 characters");
  for (std::size_t code = 0; code < SymbolRateCodes; ++code)
    Require(table[code * SymbolRateCell + 5] == '\\', "a cell ends with a backslash");
  const bool come2 = place == Sr22000::Come2;
  Require(SymbolRateText(table, 1) == (come2 ? "22000" : "27500") &&
              SymbolRateText(table, 3) == (come2 ? "27500" : "22000"),
          "the two usual rates have their places");
}

// A transponder on each code, some of them no codes at all, keeps its rate in the other receiver's table.
void CheckRecoding(const std::string& table, Sr22000 place) {
  State state;
  state.SymbolRateTable = table;
  state.TransponderCount = 20;
  const auto shown = [&state](std::size_t slot) {
    return std::string(SymbolRateText(state.SymbolRateTable,
                                      Get(state.Transponder(slot).record, TransponderField::SymbolRate)));
  };
  std::array<std::string, 21> rates;
  for (std::size_t slot = 1; slot <= 20; ++slot) {
    Set(state.Transponder(slot).record, TransponderField::SymbolRate, static_cast<std::uint32_t>(slot) - 1);
    rates[slot] = shown(slot);
  }
  const Sr22000 other = place == Sr22000::Come2 ? Sr22000::Come0 : Sr22000::Come2;
  ConvertiSR(state, other);
  CheckTable(state.SymbolRateTable, other);
  for (std::size_t slot = 1; slot <= 20; ++slot) Require(shown(slot) == rates[slot], "a rate stays the same");
  Require(ConvertiSR(state, other) == 0, "a second conversion changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Base::AsText({data, size});
  for (const Sr22000 place : {Sr22000::Come2, Sr22000::Come0}) {
    const auto table = Support::SymbolRatesOf(text, place);
    if (!table) continue;
    CheckTable(*table, place);
    CheckRecoding(*table, place);
  }
  return 0;
}
