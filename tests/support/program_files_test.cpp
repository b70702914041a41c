// The files of the program folder that people write by hand, and the one that remembers their folders.
#include "core_test.h"
#include "support/bouquets_txt.h"
#include "support/pos_ini.h"
#include "support/sdx_ini.h"
#include "support/sr_ini.h"

namespace Support {

using Routines::Sr22000;
using Routines::SymbolRateText;
using Tests::Contents;

TEST(BouquetsTxt, ReadsSatellitesAndTheirBouquets) {
  const auto read = BouquetsOf(
      "\xEF\xBB\xBF# commento con SAT=Z, e, virgole\r\nOrfano,10719,7\r\nHotbird,13 "
      "Est,SAT=A\r\nTel\xC3\xA9, \t10758.5,123\r\n"
      "  Astra, 19.2 , SAT=b  \r\nAltro,abc, 4 \r\n");
  EXPECT_TRUE(read.errors.empty());
  std::string told;
  for (const auto& satellite : read.tables.satellites) told += satellite.name + "=" + satellite.label + ";";
  const auto& bouquets = read.tables.bouquets;
  for (const auto& bouquet : bouquets) told += bouquet.name + "," + bouquet.code + "=" + bouquet.label + ";";
  EXPECT_EQ(told, "Hotbird=SAT A;Astra=SAT b;Orfano,07=;Tel\xE9,23=SAT A;Altro,04=SAT b;");
  EXPECT_EQ(bouquets[1].megahertz, 10758.5);
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

TEST(PosIni, RemembersAFolderForEachKindByItsLine) {
  const Tests::TestFolder folder;
  EXPECT_EQ(LoadFolder(folder.Path(), FolderKind::Input), "");
  SaveFolderOf(folder.Path(), FolderKind::Output, "/home/anna/Città/lista.dat");
  SaveFolderOf(folder.Path(), FolderKind::Input, "C:\\lista.dat");
  SaveFolderOf(folder.Path(), FolderKind::Foreign, "senza cartella");
  SaveFolderOf(folder.Path(), FolderKind::Foreign, "/due\nrighe/lista.sdx");
  EXPECT_EQ(Base::AsText(Contents(folder.Path("POS.ini"))), "0:C:\r\n1:\r\n2:/home/anna/Città\r\n");
  EXPECT_EQ(LoadFolder(folder.Path(), FolderKind::Output), "/home/anna/Città");
  folder.Write("POS.ini", "2:/uno  \n/home\nx\n");
  EXPECT_EQ(LoadFolder(folder.Path(), FolderKind::Input), "/uno");
  EXPECT_EQ(LoadFolder(folder.Path(), FolderKind::Foreign), "ome");
  EXPECT_EQ(LoadFolder(folder.Path(), FolderKind::Output), "");
  folder.Write("POS.ini", "0:/uno\r\n1:/due\r\n");
  EXPECT_EQ(LoadFolder(folder.Path(), FolderKind::Input), "") << "fewer than three lines read as empty";
  SaveFolderOf(folder.Path(), FolderKind::Input, "/uno/lista.dat");
  EXPECT_EQ(Base::AsText(Contents(folder.Path("POS.ini"))), "0:/uno\r\n1:/due\r\n2:\r\n");
}

TEST(SdxIni, OnlyAMissingFileIsNotFound) {
  const Tests::TestFolder folder;
  EXPECT_EQ(LoadAddresses(folder.Path()).error().message,
            "File SDX.INI non trovato: " + folder.Path("SDX.INI"));
  folder.Write("SDX.INI", std::string((1U << 20U) + 1, 'h'));
  EXPECT_EQ(LoadAddresses(folder.Path()).error().message,
            "Impossibile leggere SDX.INI: il file supera la dimensione consentita");
}

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
  for (const char* line : {"0:=27500", "1 =27500", "0x=27500"})
    EXPECT_TRUE(SymbolRatesOf(std::string("INPUT\n") + line, Sr22000::Come2)) << line;
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
  folder.Write("SR.INI", std::string((1U << 20U) + 1, '\n'));
  EXPECT_EQ(CaricaTabelleSR(folder.Path(), Sr22000::Come0)->missing.find("non trovato"), std::string::npos);
}

}  // namespace Support
