#include "formats/flash_rows.h"

#include "core_test.h"
#include "formats/row_text.h"
#include "formats/sdx_import.h"

namespace Formats {
namespace {

using namespace Routines;
using namespace Samples;

std::string Rates() {
  std::string table = Tests::UsualRates();
  SetSymbolRate(table, 9, "27500");
  SetSymbolRate(table, 4, "5632");
  return table;
}

std::vector<TransponderRecord> Transponders() {
  std::vector<TransponderRecord> records = {MakeTransponder(11766, false, 1, 9, 2, 1200, 1),
                                            MakeTransponder(12092, true, 0, 12, 7, 5400, 318),
                                            {},
                                            MakeTransponder(10719, true, 25, 4, 0, 60000, 65535)};
  Set(records[0], TransponderField::Frequency, 1166521234);  // no whole number of MHz
  records[1].bytes[11] |= 4;                                 // a bit that only the receiver knows
  return records;
}

std::vector<ChannelRecord> Channels() {
  std::vector<ChannelRecord> records = {MakeChannel("Uno             ", 1, 8001, 512, 650, 0xA6),
                                        MakeChannel("Sedici caratteri", 2, 65535, 65535, 700),
                                        {},
                                        MakeChannel("Perso", 3, 1, 1, 1),
                                        MakeChannel("Oltre", 5, 1, 1, 1),
                                        MakeChannel("Quattro", 4, 0, 0, 65535, 0x00)};
  Set(records[0], ChannelField::Aecm, 0x1234);
  Set(records[0], ChannelField::Vecm, 0x1235);
  return records;
}

}  // namespace

TEST(FlashRows, CarriedOverTheyAreTheChannelsOfTheirFlash) {
  ImageBuilder builder(7);
  builder.PutRecords(1, 0, 16, "TCS", Channels()).PutRecords(2, 0, 16, "TPT", Transponders());
  builder.PutRecords(3, 0, 16, "TCS", Channels());
  const SdxTable table = ReadFlashRows(builder.Image(), Rates(), {});
  EXPECT_EQ(table.lines, 5) << "the second copy does not count";
  EXPECT_EQ(table.dropped.Text(), "senza transponder 2");
  ASSERT_EQ(Texts(table.rows), (std::vector<std::string>{
                                   "Uno              TB 011766V+ 27500 3 512 650 512 8001 1 01200 166",
                                   R"(Sedici caratteri RA 012092H+ \\\\\  65535 700 65535 65535 318 05400 4)",
                                   R"(Quattro SZ 010719H- 5632\ 1 0 65535 0 0 65535 60000 0)"}));

  auto list = std::make_unique<State>();
  list->SymbolRateTable = Rates();
  list->ChannelCount = 3;
  list->TransponderCount = 3;
  const Routines::BouquetTables bouquets;
  SdxImport import(*list, bouquets);
  for (int i = 0; i < 3; ++i) import.Put(table.rows[static_cast<std::size_t>(i)], i + 1, i + 1);
  const std::size_t from[] = {0, 1, 5};
  const std::size_t on[] = {0, 1, 3};
  for (std::size_t i = 0; i < 3; ++i) {
    ChannelRecord expected = Channels()[from[i]];
    Set(expected, ChannelField::Transponder, static_cast<std::uint32_t>(i + 1));
    EXPECT_TRUE(list->Channel(i + 1) == expected) << i;
    TransponderRecord transponder = Transponders()[on[i]];
    Set(transponder, TransponderField::ChannelCount, 1);
    EXPECT_TRUE(list->Transponder(i + 1).record == transponder) << i;
  }
  EXPECT_EQ(import.UnknownRates(), 0) << "a code without a rate stays what it was";

  auto other = std::make_unique<State>(*list);
  other->TransponderTable = {};
  PlaceUsualRates(other->SymbolRateTable, Sr22000::Come0);
  SetSymbolRate(other->SymbolRateTable, 9, "30000");
  SdxImport recoded(*other, bouquets);
  recoded.Put(table.rows[0], 1, 1);
  EXPECT_EQ(Get(other->Transponder(1).record, TransponderField::SymbolRate), 1U)
      << "27500 where the list has it";
}

}  // namespace Formats
