#include "core_test.h"

namespace Routines {

TEST(SymbolRates, ConvertingMovesRatesAndKeepsTheCodesOfThoseThatTheOutputLacks) {
  State state;
  state.SymbolRateTable = Tests::UsualRates();
  SetSymbolRate(state.SymbolRateTable, 0, "29900");
  SetSymbolRate(state.SymbolRateTable, 5, "5632");
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 5), "5632\\");
  const int before[] = {1, 3, 0, 5, 9, 16, 255};
  const int after[] = {3, 1, 0, 5, 9, 16, 255};
  state.TransponderCount = 7;
  for (std::size_t i = 0; i < 7; ++i) {
    state.Transponder(i + 1).record = Samples::MakeTransponder(11000, true, 0, before[i], 0);
  }
  EXPECT_EQ(ConvertiSR(state, Sr22000::Come0), 2);
  for (std::size_t i = 0; i < 7; ++i) {
    EXPECT_EQ(Get(state.Transponder(i + 1).record, TransponderField::SymbolRate),
              static_cast<std::uint32_t>(after[i]));
  }
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 1), "27500");
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 3), "22000");
  EXPECT_EQ(ConvertiSR(state, Sr22000::Come0), 0) << "the output table is the input table now";
  SetSymbolRate(state.SymbolRateTable, 1, "30000");
  EXPECT_EQ(ConvertiSR(state, Sr22000::Come0), 0)
      << "a rate that is pushed out of the table has no other cell";
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 1), "27500");
}

}  // namespace Routines
