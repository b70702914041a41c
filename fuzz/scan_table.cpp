// Reading the transponder lists of web sites, and positions in file names.
#include "formats/scan_table.h"

#include "edit/update_transponders.h"
#include "listed.h"
#include "model/symbol_rates.h"

using namespace Fuzz;
using namespace Formats;

namespace {

// Of a list that has none of them, and again of the one that has as many as there is room for.
void Update(const TransponderList& list) {
  Routines::State state;
  state.SymbolRateTable = Routines::EmptySymbolRateTable();
  PlaceUsualRates(state.SymbolRateTable, Routines::Sr22000::Come2);
  state.TransponderCount = 20;
  for (int round = 0; round < 2; ++round) {
    const auto found = Review::CheckTransponders(state, list.transponders, 1, true);
    const Edit::TransponderReport report = Edit::UpdateTransponders(state, found, 1, {});
    const int told = report.Done() + report.noSlot + report.unknownRate + report.inUse;
    Require(told <= static_cast<int>(found.size()), "what is done was found");
    Require(report.added <= state.TransponderCount, "in free slots");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::string_view text = input.Text();
  static_cast<void>(IsTransponderIni(text));
  const TransponderList list = ReadTransponderIni(text);
  CheckTransponders(list);
  for (const ListedTransponder& transponder : list.transponders)
    Require(transponder.position == list.position, "the position is the file's");
  Update(list);
  const int position = PositionInFileName(text.substr(0, 64)).value_or(0);
  Require(position >= -1800 && position <= 1800, "a position in a name");
  return 0;
}
