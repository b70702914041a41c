#include "formats/satcodx.h"

#include "base/columns.h"
#include "core_test.h"
#include "formats/row_text.h"
#include "formats/sdx_import.h"

namespace Formats {
namespace {

using namespace Routines;
using namespace Samples;

struct Service {
  const char* type = "T";
  const char* format = "MPG2";
  const char* frequency = "010719";
  const char* rate = "27500";
  const char* vpid = "0512";
  const char* apid = "0650";
  const char* sid = "04903";
  const char* tid = "11000";
  const char* code = "MGIV";
};

std::string Line(const Service& service) {
  const struct {
    std::size_t first, width;
    const char* text;
  } columns[] = {{1, 10, "SATCODX103"},   {11, 17, "HOTBIRD 13E"},    {29, 1, service.type},
                 {30, 4, service.format}, {34, 6, service.frequency}, {40, 4, "000H"},
                 {44, 8, "Canale 5"},     {70, 5, service.rate},      {75, 1, "3"},
                 {76, 4, service.vpid},   {80, 4, service.apid},      {84, 4, "0044"},
                 {88, 5, service.sid},    {93, 5, "00318"},           {98, 5, service.tid},
                 {112, 4, service.code},  {116, 12, " Europa Plus"}};
  std::string line;
  for (const auto& column : columns) Base::Put(line, {column.first, column.width}, column.text);
  return line + "\r\n";
}

SdxOptions Everything() {
  SdxOptions options;
  options.data = options.allCodes = true;
  return options;
}

SdxRow RowAt(int megahertz) {
  return ReadSatcodx(Line({.frequency = ("0" + std::to_string(megahertz)).c_str()}), Everything()).rows.at(0);
}

}  // namespace

TEST(Satcodx, ALineBecomesARow) {
  SdxOptions options = Everything();
  options.satellite = 1;
  const SdxTable table = ReadSatcodx(
      Line({}) + Line({.type = "R", .code = "VICS"}) +
          Line({.type = "D", .format = "    ", .vpid = "0000", .apid = "    ", .tid = "   ", .code = "????"}),
      options);
  EXPECT_EQ(table.satelliteName, "HOTBIRD 13E      ");
  EXPECT_EQ(
      Texts(table.rows),
      (std::vector<std::string>{"Canale 5 Europa Plus TB 010719H- 27500 3 0512 0650 44 4903 318 11000 132",
                                "Canale 5 Europa Plus RB 010719H- 27500 3 65535 0650 44 4903 318 11000 164",
                                "Canale 5 Europa Plus SB 010719H- 27500 3 65535 65535 44 4903 318 00000 4"}))
      << "MGIV belongs to the first group; a radio has no video, whatever its line says of it";
}

TEST(Satcodx, EachDroppedLineHasItsReason) {
  SdxOptions options;
  options.codes = {"MGIV"};
  options.filtered = {{650, 77}, {0, 4435}};
  options.known = {{0, 11000, 88}, {1, 11000, 77}};
  const std::string list = Line({}) + Line({.rate = "5632 "}) + Line({.rate = "05632"}) +
                           Line({.type = "D"}) + Line({.format = "MPG4"}) + Line({.vpid = "0000"}) +
                           Line({.code = "NAGV"}) + Line({.sid = "00077"}) + Line({.sid = "00088"}) +
                           Line({.sid = "04435"}) + "corta\n";
  SdxTable table = ReadSatcodx(list, options);
  EXPECT_EQ(table.rows.size(), 2U);
  EXPECT_EQ(table.lines, 11);
  EXPECT_EQ(table.dropped.Text(), "senza PID 1, tipo 1, non MPG2 1, symbol rate 2, codifica 1, filtri 3");
  EXPECT_EQ(table.lacking, SdxFields{});
  KeepOthers(table, ReadSatcodx(list, WithoutFilters(options)));
  EXPECT_EQ(table.others.size(), 8U) << "none that is there counts as gone";
  const SdxTable uncoded = ReadSatcodx(Line({.vpid = "0000", .code = "____"}), Everything());
  EXPECT_EQ(uncoded.lacking, SdxFields{SdxField::Coding}) << "no line says whether it is encrypted";
  EXPECT_EQ(uncoded.others.size(), 1U) << "to compare a list with";
  std::string many;
  for (int i = 0; i < 4001; ++i) many += Line({});
  EXPECT_TRUE(ReadSatcodx(many, Everything()).full);
  EXPECT_EQ(ReadSatcodx(many, Everything()).rows.size(), 4000U);
}

TEST(Satcodx, CodesAndFiltersAndDownloads) {
  EXPECT_EQ(EncryptionCodesOf(Line({.code = "____"}) + Line({.code = "NAGV"}) + "x\n" +
                              Line({.code = "    "}) + Line({.code = "NAGV"})),
            std::vector<std::string>({"NAGV", "    "}));
  EXPECT_EQ(FilteredServices("650 77\r\n 0\t4435\nx 1\n12\n"),
            (std::set<std::pair<int, int>>{{650, 77}, {0, 4435}}));
  EXPECT_EQ(DownloadedLines("a\nb\nc"), "a\r\nb\r\n");
  EXPECT_FALSE(LooksLikeSatcodx("SAT"));
}

TEST(SdxImport, RowsFindOrMakeTheirTransponder) {
  auto state = std::make_unique<State>();
  state->SymbolRateTable = Tests::UsualRates();
  state->ChannelCount = 10;
  state->TransponderCount = 2;
  state->Transponder(2).record = MakeTransponder(10721, true, 0, 9, 0);
  Set(state->Transponder(2).record, TransponderField::ChannelCount, 5);
  state->Channel(3) = MakeChannel("vecchio", 2, 1, 1, 1);
  const BouquetTables bouquets{{}, {{"Nuovo", "SAT A", "05", 12092}}};
  SdxImport import(*state, bouquets);
  import.Put(RowAt(10719), 3, 1);
  ChannelRecord expected = MakeChannel("Canale 5 Europa", 2, 4903, 512, 650, 0x84);
  Set(expected, ChannelField::Pcr, 44);
  EXPECT_EQ(state->Channel(3), expected);
  EXPECT_EQ(Get(state->Transponder(2).record, TransponderField::SymbolRate), 9U) << "linked to as it is";
  EXPECT_EQ(Get(state->Transponder(2).record, TransponderField::ChannelCount), 5U) << "one off, one on";
  import.Put(RowAt(12092), 4, 2);
  const TransponderRow& made = state->Transponder(1);
  EXPECT_EQ(made.BouquetCode(), "05");
  TransponderRecord usual = MakeTransponder(12092, true, 0, 3, 2, 11000, 318);
  Set(usual, TransponderField::ChannelCount, 1);
  EXPECT_EQ(made.record, usual);
  EXPECT_EQ(import.Message(), "");
  import.Put(RowAt(11500), 5, 3);
  import.Put(RowAt(11600), 6, 4);
  import.Put(RowAt(12093), 7, 5);
  EXPECT_EQ(import.Message(),
            "Superato il numero di transponders gestibili 2\ncollego i canali restanti sul transponder 2\n "
            "Posizione canale SDX 3");
  EXPECT_EQ(Get(state->Channel(6), ChannelField::Transponder), 2U);
  EXPECT_EQ(Get(state->Channel(7), ChannelField::Transponder), 1U) << "one that exists is still found";
  import.Put(RowAt(0), 3, 6);
  EXPECT_TRUE(state->Channel(3).Empty()) << "frequency 0 clears the slot";

  for (const auto& [megahertz, inBand] :
       {std::pair{9749, false}, {3720, false}, {9750, true}, {14894, true}, {14895, false}, {0, true}})
    EXPECT_EQ(InBand(RowAt(megahertz)), inBand) << megahertz;
  state->Transponder(1).record = {};
  import.Put(RowAt(9750), 8, 5);
  EXPECT_EQ(Get(state->Channel(8), ChannelField::Transponder), 1U) << "at the oscillator: a free slot";

  SetFavouriteEntries(state->FavouritesBlock = Base::Bytes(NormalFavouritesSize, 0), 2, {9, 5, 4000, 6});
  EXPECT_EQ(EmptySlots(*state, 9), std::vector({1, 2, 3, 9, 10}));
  EXPECT_EQ(SlotsFrom(*state, 9, 9), std::vector({9, 10}));
  EXPECT_EQ(OverwrittenBy(*state, SlotsFrom(*state, 5, 2)).Text(), "2 canali, 2 voci di preferiti");
  EXPECT_EQ(OverwrittenBy(*state, {1}).Text(), "");
}

TEST(SdxImport, TheListHasARowByItsStreamOrByItsTransponder) {
  auto state = std::make_unique<State>();
  state->ChannelCount = 3;
  state->TransponderCount = 2;
  state->Transponder(1).record = MakeTransponder(12092, true, 0, 3, 2, 11000, 318);
  state->Transponder(2).record = MakeTransponder(11500, true, 0, 3, 2, 7, 318);
  for (const auto& [slot, transponder] : {std::pair{1, 2}, {2, 1}, {3, 1}})
    state->Channel(slot) = MakeChannel("uno", transponder, 4903, 512, 650);
  std::vector<SdxRow> rows(6, RowAt(12093));
  rows[1].tid = rows[2].tid = "00000";
  rows[2].horizontal = false;
  rows[3].tid = "00007";
  rows[4].satellite = 1;
  rows[5].sid = "4904";
  EXPECT_EQ(SlotsWith(*state, rows), std::vector({2, 2, 0, 1, 0, 0}));
}

TEST(Satcodx, WhatAListHolds) {
  std::string other = Line({.frequency = "011766"});
  other.replace(10, 17, "ASTRA 19E        ");
  other.replace(51, 4, "3550");
  const SatcodxSummary summary = SummaryOf(Line({}) + "\r\n" + Line({.type = "R"}) + other + "corta\r\n");
  EXPECT_EQ(summary.lines, 4);
  EXPECT_EQ(summary.satellites,
            (std::vector<std::pair<std::string, int>>{{"HOTBIRD 13E", 2}, {"ASTRA 19E", 1}}));
  ASSERT_EQ(summary.transponders.size(), 2U);
  EXPECT_EQ(summary.transponders[1].position, -50);
  EXPECT_EQ(summary.transponders[1].frequency, 11766000);
  EXPECT_EQ(summary.transponders[1].polarisation, Polarisation::Horizontal);
}

}  // namespace Formats
