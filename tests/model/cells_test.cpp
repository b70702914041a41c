#include "model/cells.h"

#include "image_builder.h"
#include "model/row_kind.h"
#include "model/symbol_rates.h"

#include <gtest/gtest.h>

#include <memory>

namespace Routines {
namespace {

using namespace Samples;

std::string Row(std::string (*cell)(const State&, int, int), const State& state, int columns) {
  std::string row;
  for (int column = 0; column < columns; ++column) row += (column > 0 ? "|" : "") + cell(state, 1, column);
  return row;
}

}  // namespace

TEST(Cells, ChannelRowsByKind) {
  const auto state = std::make_unique<State>();
  const struct {
    int vpid, apid, flags;
    RowKind kind;
    const char* ends;  // Codifica and Attivo
  } cases[] = {{512, 650, 0x24, RowKind::Tv, "24|S"},      {0, 650, 0x04, RowKind::Radio, "04|S"},
               {65535, 650, 0x04, RowKind::Radio, "04|S"}, {65535, 65535, 0x04, RowKind::Service, "04|S"},
               {0, 0, 0xF4, RowKind::Service, "F4|S"},     {0, 650, 0x20, RowKind::Inactive, "20|N"}};
  for (const auto& c : cases) {
    state->Channel(1) = MakeChannel("Uno", 7, 300, c.vpid, c.apid, c.flags);
    EXPECT_EQ(ChannelRowKind(*state, 1), c.kind) << c.vpid << " " << c.apid << " " << c.flags;
    const std::string row = Row(ChannelCell, *state, 11);
    EXPECT_TRUE(row.ends_with(c.ends)) << row;
    EXPECT_TRUE(row.starts_with("0001|Uno|007|300|")) << row;
  }
  state->Channel(1).bytes[0] = 0;
  EXPECT_EQ(Row(ChannelCell, *state, 11), "0001||||||||||") << "only the number of an empty slot shows";
  EXPECT_EQ(ChannelRowKind(*state, 1), RowKind::EmptySlot);
}

TEST(Cells, TransponderRows) {
  const auto state = std::make_unique<State>();
  state->SymbolRateTable = EmptySymbolRateTable();
  PlaceUsualRates(state->SymbolRateTable, Sr22000::Come2);
  TransponderRow& row = state->Transponder(1);
  row.record = MakeTransponder(12092, true, 1, 3, 5, 7, 65535);
  EXPECT_EQ(Row(TransponderCell, *state, 10), "001|12092|7|65535|0|27500|Auto|H|On|SAT B");
  EXPECT_EQ(TransponderRowKind(*state, 1), RowKind::Transponder);
  EXPECT_TRUE(SatelliteLabel(MakeTransponder(11000, false, 31, 0, 0)).ends_with('`'));

  row.record = MakeTransponder(11000, false, 0, 16, 0);
  EXPECT_EQ(TransponderCell(*state, 1, 5), "") << "a code past the table";
  EXPECT_EQ(TransponderRowKind(*state, 1), RowKind::DoubtfulTransponder) << "no symbol rate";
  row.record = MakeTransponder(10699, false, 0, 1, 0);
  EXPECT_EQ(TransponderRowKind(*state, 1), RowKind::DoubtfulTransponder) << "outside the band";

  row.record = {};
  EXPECT_EQ(TransponderCell(*state, 1, 1), "0");
  EXPECT_EQ(TransponderRowKind(*state, 1), RowKind::FreeTransponder) << "a free slot is no fault";
  row.record.bytes[1] = 1;
  EXPECT_EQ(TransponderCell(*state, 1, 1), "0") << "the cell goes by the first byte";
  EXPECT_EQ(TransponderRowKind(*state, 1), RowKind::DoubtfulTransponder) << "the row by all four";
}

}  // namespace Routines
