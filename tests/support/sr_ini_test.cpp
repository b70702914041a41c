#include "support/sr_ini.h"

#include "support/test_folder.h"

#include <gtest/gtest.h>

namespace Support {

using Routines::Sr22000;
using Routines::SymbolRateText;

TEST(SrIni, ReadsTheInputSectionAlone) {
  const auto table = SymbolRatesOf(
      "; 99=prima\r\n [INPUT] \r\n\r\n00=29900\r\n  01=11111\r\n02=5632\n04=275001\n05=0\n06=\n15=20000\r\n"
      "[OUTPUT]\r\n00=12345\r\nqualunque cosa\r\n[INPUT]\r\n07=24500",
      Sr22000::Come2);
  ASSERT_TRUE(table);
  const char* expected[] = {"29900", "22000",      "5632\\",     "27500",
                            "27500", "\\\\\\\\\\", "\\\\\\\\\\", "24500"};
  for (std::size_t code = 0; code < 8; ++code)
    EXPECT_EQ(SymbolRateText(*table, code), expected[code]) << code;
  EXPECT_EQ(SymbolRateText(*table, 15), "20000");
  EXPECT_EQ(table->size(), 96U);
}

TEST(SrIni, AMalformedLineIsAnError) {
  for (const char* line :
       {"16=27500", "7=27500", "0", "xx=1", "; commento", "-1=27500", "00 27500", "=", "1a=3"}) {
    const auto table = SymbolRatesOf(std::string("[INPUT]\r\n") + line + "\r\n", Sr22000::Come2);
    ASSERT_FALSE(table) << line;
    EXPECT_EQ(table.error().message, "Formato invalido del file SR.INI - Correggere e rilanciare");
  }
  // Codes are compared as text, so these lie between "00" and "15".
  for (const char* line : {"0:=27500", "1 =27500", "0x=27500"}) {
    EXPECT_TRUE(SymbolRatesOf(std::string("INPUT\n") + line, Sr22000::Come2)) << line;
  }
}

TEST(SrIni, AMissingFileLeavesTheTwoUsualRates) {
  const Tests::TestFolder folder;
  const auto rates = CaricaTabelleSR(folder.Path(), Sr22000::Come0);
  ASSERT_TRUE(rates);
  EXPECT_EQ(rates->missing, "File SR.INI non trovato: " + folder.Path("SR.INI"));
  EXPECT_EQ(SymbolRateText(rates->table, 1), "27500");
  EXPECT_EQ(SymbolRateText(rates->table, 3), "22000");
  folder.Write("SR.INI", "[INPUT]\n00=30000\n");
  EXPECT_EQ(CaricaTabelleSR(folder.Path(), Sr22000::Come0)->missing, "");
}

}  // namespace Support
