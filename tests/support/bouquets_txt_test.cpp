#include "support/bouquets_txt.h"

#include <gtest/gtest.h>

namespace Support {

TEST(BouquetsTxt, ReadsSatellitesAndTheirBouquets) {
  const auto read = BouquetsOf(
      "# commento con SAT=Z, e, virgole\r\nOrfano,10719,7\r\nHotbird,13 Est,SAT=A\r\nTel\xE9,10758.5,123\r\n"
      "  Astra, 19.2 , SAT=b  \r\nAltro,abc, 4 \r\n");
  EXPECT_TRUE(read.errors.empty());
  std::string told;
  for (const auto& satellite : read.tables.satellites) told += satellite.name + "=" + satellite.label + ";";
  const auto& bouquets = read.tables.bouquets;
  for (const auto& bouquet : bouquets) told += bouquet.name + "," + bouquet.code + "=" + bouquet.label + ";";
  EXPECT_EQ(told, "Hotbird=SAT A;Astra=SAT b;Orfano,07=;Tel\xE9,23=SAT A;Altro,04=SAT b;");
  EXPECT_EQ(bouquets[1].megahertz, 10758.5);
  EXPECT_EQ(bouquets[2].satelliteCode, 8) << "the low 8 bits of (98 - 65) x 8";
  EXPECT_EQ(FindBouquet(read.tables, 10761, "SAT A"), &bouquets[1]);
  EXPECT_EQ(FindBouquet(read.tables, 10762, "SAT A"), nullptr);
}

TEST(BouquetsTxt, EveryBadLineIsToldOnceInOrder) {
  const auto read = BouquetsOf("Uno,1,SAT=A\nX,1,SAT=9\nB\xE9,10719\nB,1,2,3\n\n #c\nB,10720,05\n");
  const std::vector<std::string> expected = {
      "Codice satellite non compreso tra A e Z X,1,SAT=9", "Record Bouquet errato: Bé,10719",
      "Record Bouquet errato: B,1,2,3", "Record Bouquet errato: ", "Record Bouquet errato:  #c"};
  EXPECT_EQ(read.errors, expected);
  ASSERT_EQ(read.tables.bouquets.size(), 1U);
  EXPECT_EQ(read.tables.bouquets[0].label, "SAT A") << "a refused satellite leaves the one before it";
}

TEST(BouquetsTxt, TablesEndWhereTheyAreFull) {
  std::string text;
  for (int i = 0; i < 27; ++i)
    text += "S" + std::to_string(i) + ",x,SAT=" + static_cast<char>('A' + i % 26) + "\n";
  for (int i = 0; i < 256; ++i) text += "B,10719,01\n";
  const auto read = BouquetsOf(text);
  EXPECT_EQ(read.tables.satellites.size(), 25U);
  ASSERT_EQ(read.tables.bouquets.size(), 254U);
  EXPECT_EQ(read.tables.bouquets[0].label, "SAT Y") << "under the last satellite that was accepted";
  EXPECT_EQ(read.errors, std::vector<std::string>({"Troppi satelliti, max 25)", "Troppi satelliti, max 25)",
                                                   "Troppi bouquet, max 254", "Troppi bouquet, max 254"}));
}

}  // namespace Support
