// What the three options say: where a list ends, and by which codes its rates go.
#include "model/write_settings.h"

#include "core_test.h"

namespace Routines {

TEST(WriteSettings, TheFirstMissingChoiceIsTold) {
  EXPECT_EQ(CheckSettings({}).error().message, "Si deve selezionare il numero di canali da visualizzare");
  EXPECT_EQ(CheckSettings({0, {}, {}}).error().message, "Si deve selezionare il tipo di FLASH da registrare");
  EXPECT_EQ(CheckSettings({0, 0, {}}).error().message, "Si deve definere la posizione dell' SR 22000");
  EXPECT_TRUE(CheckSettings({2, 2, 1}));
}

TEST(WriteSettings, LimitsAndWarnings) {
  const std::string many = "Impossibile gestire più di ", left = "\nne verranno salvati solo ";
  const std::string warns999 = many + "999 canali sulla FLASH tipo D- 1-x (999 canali)" + left + "999";
  const std::string warns2000 = many + "2000 canali sulla FLASH tipo 2000 Canali" + left + "2000";
  // An ordinary save, into a larger receiver, into smaller ones; and the second save, which writes no less than the first.
  const struct {
    int maxChannels, channelCount;
    std::size_t capacity, type;
    int limit;
    std::string warning;
  } cases[] = {
      {999, 999, 0, 0, 999, ""},           {999, 999, 0, 1, 1998, ""},   {3996, 3996, 2, 0, 999, warns999},
      {3996, 3996, 2, 2, 2000, warns2000}, {2000, 2000, 1, 2, 2000, ""}, {3996, 3996, 2, 1, 3996, ""},
      {0, 1998, 0, 1, 1998, ""},           {0, 999, 1, 1, 2000, ""},     {0, 3996, 0, 0, 999, warns999}};
  for (const auto& c : cases) {
    State state;
    state.MaxChannels = c.maxChannels;
    state.ChannelCount = c.channelCount;
    const WritePlan plan = PlanWrite(state, {c.capacity, c.type, 0});
    EXPECT_EQ(plan.maxChannels, c.limit) << c.maxChannels << " " << c.type;
    EXPECT_EQ(plan.warning, c.warning) << c.maxChannels << " " << c.type;
    EXPECT_EQ(static_cast<std::size_t>(plan.type), c.type + 1);
  }
}

TEST(SymbolRates, ConvertingMovesRatesAndKeepsTheCodesOfThoseThatTheOutputLacks) {
  State state;
  state.SymbolRateTable = Tests::UsualRates();
  SetSymbolRate(state.SymbolRateTable, 0, "29900");
  SetSymbolRate(state.SymbolRateTable, 5, "5632");
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 5), "5632\\");
  const int before[] = {1, 3, 0, 5, 9, 16, 255};
  const int after[] = {3, 1, 0, 5, 9, 16, 255};
  state.TransponderCount = 7;
  for (std::size_t i = 0; i < 7; ++i)
    state.Transponder(i + 1).record = Samples::MakeTransponder(11000, true, 0, before[i], 0);
  EXPECT_EQ(ConvertiSR(state, Sr22000::Come0), 2);
  for (std::size_t i = 0; i < 7; ++i)
    EXPECT_EQ(static_cast<int>(Get(state.Transponder(i + 1).record, TransponderField::SymbolRate)), after[i]);
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 1), "27500");
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 3), "22000");
  EXPECT_EQ(ConvertiSR(state, Sr22000::Come0), 0) << "the output table is the input table now";
  SetSymbolRate(state.SymbolRateTable, 1, "30000");
  EXPECT_EQ(ConvertiSR(state, Sr22000::Come0), 0)
      << "a rate that is pushed out of the table has no other cell";
  EXPECT_EQ(SymbolRateText(state.SymbolRateTable, 1), "27500");
}

}  // namespace Routines
