#include "model/symbol_rates.h"

namespace Routines {
namespace {

std::string_view Cell(std::string_view table, std::size_t code) {
  return table.substr(std::min(code * SymbolRateCell, table.size()), SymbolRateCell);
}

}  // namespace

std::size_t RecodedRate(std::string_view input, std::string_view output, std::size_t code) {
  const std::string_view cell = Cell(input, code);
  if (cell.empty() || cell.front() == '\\') return code;
  for (std::size_t i = 0; i < SymbolRateCodes; ++i) {
    if (Cell(output, i) == cell) return i;
  }
  return code;
}

std::string EmptySymbolRateTable() { return std::string(SymbolRateCodes * SymbolRateCell, '\\'); }

void SetSymbolRate(std::string& table, std::size_t code, std::string_view rate) {
  std::string cell(rate.substr(0, SymbolRateCell - 1));
  cell.resize(SymbolRateCell, '\\');
  table.replace(code * SymbolRateCell, SymbolRateCell, cell);
}

void PlaceUsualRates(std::string& table, Sr22000 place) {
  SetSymbolRate(table, 1, place == Sr22000::Come2 ? "22000" : "27500");
  SetSymbolRate(table, 3, place == Sr22000::Come2 ? "27500" : "22000");
}

std::string_view SymbolRateText(std::string_view table, std::size_t code) {
  return Cell(table, code).substr(0, SymbolRateCell - 1);
}

bool SamePlaces(std::string_view one, std::string_view other) {
  return Cell(one, 1) == Cell(other, 1) && Cell(one, 3) == Cell(other, 3);
}

int ConvertiSR(State& state, Sr22000 place) {
  std::string output = state.SymbolRateTable;
  PlaceUsualRates(output, place);
  int changed = 0;
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    TransponderRecord& record = state.Transponder(slot).record;
    const std::size_t code = Get(record, TransponderField::SymbolRate);
    const std::size_t recoded = RecodedRate(state.SymbolRateTable, output, code);
    if (recoded == code) continue;
    Set(record, TransponderField::SymbolRate, static_cast<std::uint32_t>(recoded));
    ++changed;
  }
  state.SymbolRateTable = output;
  return changed;
}

}  // namespace Routines
