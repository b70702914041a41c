// The list for spreadsheets, read back.
#include "formats/csv_reader.h"

#include "formats/csv_format.h"
#include "formats/foreign_text.h"
#include "image_builder.h"
#include "model/symbol_rates.h"
#include "review/compare.h"

#include <gtest/gtest.h>

namespace Formats {

TEST(CsvReader, IsReadBackWhateverASpreadsheetDidToItAndNoWrongCellIsTaken) {
  Routines::State state;
  state.ChannelCount = 9;
  state.TransponderCount = 2;
  state.SymbolRateTable = Routines::EmptySymbolRateTable();
  PlaceUsualRates(state.SymbolRateTable, Routines::Sr22000::Come2);
  state.Transponder(1).record = Samples::MakeTransponder(11013, true, 1, 3, 2, 318, 10);
  state.Transponder(2).record = Samples::MakeTransponder(12092, false, 0, 1, 5, 320, 10);
  const char* names[] = {"Citt\xE0 ", " =1+1", "a;\"b\"", "24/7", "Cinque", "Sei"};
  for (std::size_t i = 0; i < std::size(names); ++i)
    state.Channel(i + 1) =
        Samples::MakeChannel(names[i], i < 3 ? 1 : 2, 4100 + static_cast<int>(i), 512, 600);
  const auto compared = [&](const std::string& bytes) {
    const auto read = ReadChannelsCsv(DecodeForeign(bytes, "")->text, state);
    if (!read) return read.error().message;
    std::string told;
    for (const auto& one : Review::Compare(state, read->list).differences)
      told += std::to_string(one.here) + ">" + std::to_string(one.there) + " " +
              DetailsOf(state, read->list, one) + "; ";
    for (const std::string& fault : read->faults) told += fault + "; ";
    return told;
  };
  const std::string written = WriteChannelsCsv(state, {1, 2, 3, 4, 5, 6});
  const auto changed = [&](std::initializer_list<std::pair<std::string, std::string>> changes) {
    std::string text = written;
    for (const auto& [from, to] : changes) {
      EXPECT_NE(text.find(from), std::string::npos) << from;
      for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    }
    return compared(text);
  };
  EXPECT_EQ(compared(written), "");
  EXPECT_EQ(changed({{"\xEF\xBB\xBF", ""},
                     {"\r\n000", "\n"},
                     {";04;", ";4;"},
                     {";512;", ";512,00;"},
                     {";4100;", ";4.100;"},
                     {"3⁄4", "3/4"},
                     {"a;\"\"b", "a#\"\"b"},
                     {";", "\t"},
                     {"#", ";"}}),
            "");
  EXPECT_EQ(changed({{"Cinque", "Nuovo nome"}, {"4105", "4999"}, {"\r\n0001;", "\r\n;"}}),
            "1>7 ; 5>5 Cinque → Nuovo nome; 6>6 SID 4105 → 4999; ");
  EXPECT_EQ(changed({{"4100", "12,5"},
                     {"0002;", "0003;"},
                     {"Cinque", "Un nome troppo lungo"},
                     {"Sei;002", "Sei;001"},
                     {"4103;512", "4103;70000"}}),
            "2>3  =1+1 → =1+1; riga 2, SID: «12,5»; riga 4, Prog.: 3 c'è già; riga 5, VPID: «70000»; "
            "riga 6, Canale: «Un nome troppo lungo»; riga 7, Transponder: «001» e la frequenza non sono "
            "dello stesso; ");
  EXPECT_EQ(compared("Nome;SID\nUno;1\n"),
            "Il file non ha le colonne di una lista esportata (Prog., Canale…)");
}

}  // namespace Formats
