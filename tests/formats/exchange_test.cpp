#include "base/columns.h"
#include "base/text.h"
#include "core_test.h"
#include "formats/csv_format.h"
#include "formats/fls_format.h"
#include "formats/list_import.h"
#include "formats/text_format.h"

#include <cstring>

namespace Formats {
namespace {

using namespace Routines;
using namespace Samples;

std::unique_ptr<State> SmallList() {
  auto state = std::make_unique<State>();
  state->ChannelCount = state->MaxChannels = 5;
  state->TransponderCount = 3;
  state->SymbolRateTable = Tests::UsualRates();
  SetSymbolRate(state->SymbolRateTable, 5, "5632");
  state->Channel(1) = MakeChannel("Citt\xE0 \r1", 7, 300, 512, 65535, 0xA4);
  state->Channel(3) = MakeChannel("Mute|d", 12, 65535, 1, 2, 0xB0);
  state->Channel(4).bytes[3] = 'x';
  state->Transponder(1).record = MakeTransponder(12092, true, 1, 3, 2, 7, 318);
  state->Transponder(1).SetBouquet("Sette", "07");
  state->Transponder(3).record = MakeTransponder(11000, false, 31, 5, 9);
  state->FavouritesBlock.assign(NormalFavouritesSize, 0);
  state->FavouritesBlock[1] = 3;
  state->FavouritesBlock[FavouriteNameOffset(NormalFavouritesSize, 0)] = 'C';
  return state;
}

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return text.replace(at, from.size(), to);
}

ImportReport Read(State& state, std::string_view text) { return ReadText(state, text, "lista.txt", {}); }

}  // namespace

TEST(TextFormat, WritesEachLineToItsColumns) {
  const std::string blanks(30, ' ');
  EXPECT_EQ(WriteText(*SmallList()),
            "[CANALI] 0005\r\n"
            "0001 Citt\xE0  1         007 00300 00512 65535 65535 65535 00512 A4 S\r\n"
            "0003 Mute|d           012 65535 00001 00002 65535 65535 00001 B0 N\r\n"
            "0004                  000 00000 00000 00000 00000 00000 00000 00 N\r\n"
            "[END CANALI] 0005\r\n"
            "[TRANSPONDERS] 0003\r\n"
            "001 12092 00007 00318 00000 27500 3/4 H On  SAT B Sette" +
                blanks +
                " \r\n"
                "003 11000 00000 00000 00000 5632\\ Auto V Off SAT ` " +
                blanks +
                "      \r\n"
                "[END TRANSPONDERS] 0003\r\n"
                "[PREFERITI]\r\n00| C\r\n0003 Mute d\r\n01| \r\n02| \r\n03| \r\n04| \r\n05| \r\n06| \r\n07| "
                "\r\n[END PREFERITI]\r\n");
}

TEST(TextFormat, ReadsBackWithTheKnownLosses) {
  const auto written = SmallList();
  written->Channel(4) = MakeChannel("[END CANALI] 1", 1, 1, 1, 1);
  written->Channel(5) = MakeChannel("The [END", 1, 1, 1, 1);
  auto read = std::make_unique<State>();
  read->SymbolRateTable = written->SymbolRateTable;
  read->Channel(2) = MakeChannel("sparisce", 1, 1, 1, 1);
  read->Channel(9) = MakeChannel("resta", 1, 1, 1, 1);
  Set(written->Channel(5), ChannelField::Flags, 0x8D);
  const ImportReport report = Read(*read, WriteText(*written));
  EXPECT_TRUE(report.whole);
  EXPECT_EQ(report.codings.Text(), "1 canale diventa non attivo, 1 codifica cambiata");
  EXPECT_EQ(CodingsLostAsText(*written).Text(), report.codings.Text());
  EXPECT_TRUE(report.listRead);
  // "N" loses the coding; behind "Auto" a transponder is vertical, without tone, on satellite A; names get blanks.
  std::string expected = WriteText(*written);
  for (const auto& [was, is] :
       {std::pair{"B0 N", "00 N"}, {"8D S", "80 N"}, {"SAT `", "SAT A"}, {"e d\r", "e d          \r"}})
    expected = Replaced(expected, was, is);
  EXPECT_EQ(WriteText(*read), expected);
  EXPECT_EQ(read->Channel(4).Name(), " END CANALI] 1  ") << "a name does not end its section";
  EXPECT_EQ(read->Channel(5).Name(), "The [END        ");
  EXPECT_EQ(read->Channel(9).Name(), "resta") << "slots past the header's count keep their content";
  EXPECT_EQ(read->Transponder(1).record, written->Transponder(1).record);
  EXPECT_EQ(read->Transponder(1).BouquetCode(), "  ") << "no bouquet matches it here";
  EXPECT_EQ(read->Transponder(3).record.bytes[11], 0);
  EXPECT_EQ(read->FavouritesBlock.size(), 2291U);
}

TEST(TextFormat, AHandEditedListIsTakenAsItStands) {
  const std::string text = WriteText(*SmallList());
  auto state = std::make_unique<State>();
  state->SymbolRateTable = SmallList()->SymbolRateTable;
  const auto read = [&](std::string_view from, const std::string& to) {
    ImportReport report = Read(*state, Replaced(text, from, to));
    EXPECT_TRUE(report.whole) << to;
    return report;
  };
  for (const char* line : {"0042 Mosso            012 99999 00001 00002 65535 65535 00001 B4 S", "0000 x",
                           "3996 x", "3997 x", "9999 x", "", "12", "0007 corta            01"})
    read("[END CANALI]", std::string(line) + "\n[END CANALI]");
  EXPECT_EQ(state->Channel(42).Name(), "Mosso           ");
  EXPECT_EQ(Get(state->Channel(42), ChannelField::Flags), 4U) << "of the letters only A4 is known";
  EXPECT_EQ(Get(state->Channel(42), ChannelField::Sid), 0U) << "too large for its field";
  EXPECT_EQ(state->Channel(3996).Name(), "x");
  read("12092", "09000");
  EXPECT_TRUE(IsFree(state->Transponder(1).record)) << "below the oscillator";
  EXPECT_EQ(read("27500", "27501").unknownRates, 1);
  read("[CANALI] 0005", "[CANALI]");
  EXPECT_EQ(state->ChannelCount, 0);
  read("[TRANSPONDERS] 0003", "[TRANSPONDERS] 9999");
  EXPECT_EQ(state->TransponderCount, 254);
  read("[CANALI] 0005", "[CANALI] 99999");
  EXPECT_EQ(state->ChannelCount, 3996);
  std::string full = "05| Nomelunghissimo\n";
  for (int i = 1; i <= 130; ++i) full += Base::ZeroPadded(i, 4) + "\n";
  read("05| \r\n", full + "08| fuori\n0009\n");
  EXPECT_EQ(FavouriteEntriesOf(state->FavouritesBlock, 5).size(), 128U);
  EXPECT_EQ(FavouriteNameOf(state->FavouritesBlock, 5), "Nomelung");
  EXPECT_TRUE(FavouriteEntriesOf(state->FavouritesBlock, 7).empty());
  read("07| \r\n", "07| \n0003\n");
  EXPECT_EQ(FavouriteEntriesOf(state->FavouritesBlock, 7), std::vector<int>{3});
}

TEST(TextFormat, ABrokenSectionIsNamedAndWhatWasReadStays) {
  const std::string text = WriteText(*SmallList());
  const std::pair<std::string, std::string> cases[] = {
      {"", "Canali"},
      {"[canali]", "Canali"},
      {text.substr(0, 100), "Canali"},
      {Replaced(text, "[TRANSPONDERS]", "[TRANS]"), "Transponders"},
      {text.substr(0, text.find("[END TRANS")), "Transponders"},
      {text.substr(0, text.find("[PREF")), "PREFERITI"},
      {text.substr(0, text.find("[END PREF")), "PREFERITI"}};
  for (const auto& [broken, section] : cases) {
    State state;
    const ImportReport report = Read(state, broken);
    ASSERT_FALSE(report.whole);
    EXPECT_EQ(report.whole.error().message, "Formato file invalido (" + section + ") per lista.txt");
    EXPECT_EQ(report.changed, broken.size() > 20) << broken;
    EXPECT_EQ(report.listRead, section == "PREFERITI") << broken;
    EXPECT_EQ(state == State{}, !report.changed) << broken;
  }
}

// What no view shows would go into a receiver all the same.
TEST(ListImport, LeavesWhatItsFileFilledAndShowsAllOfIt) {
  const std::string text = WriteText(*SmallList());
  auto state = std::make_unique<State>();
  const auto import = [&](const std::string& file) {
    *state = *SmallList();
    state->Channel(2) = state->Channel(900) = MakeChannel("di prima", 1, 1, 1, 1);
    return ImportList(*state, SmallList()->SymbolRateTable, [&](State& into) { return Read(into, file); });
  };
  const std::string far = Replaced(text, "[END CANALI]", "0042 Lontano\n[END CANALI]");
  for (const std::string& file : {far, far.substr(0, far.find("[PREF"))}) {
    EXPECT_EQ(import(file).channelsRead, 4);
    EXPECT_EQ(UsedChannels(*state, LastChannelSlot), 4) << "nothing of the list before";
    EXPECT_EQ(std::pair(state->ChannelCount, state->MaxChannels), std::pair(42, 42));
    EXPECT_EQ(IsBlankFavourites(state->FavouritesBlock), file.size() < far.size());
  }
  EXPECT_EQ(import(text.substr(0, text.find("[TRANS"))).channelsRead, 3);
  EXPECT_EQ(state->ChannelCount, 900) << "of a list that breaks off, the others stay and are seen";
  EXPECT_EQ(import("").changed, false);
  EXPECT_EQ(state->ChannelCount, 5);
}

TEST(FlsFormat, IsMadeOfThirtyByteRecordsAndEveryCutEndsCleanly) {
  const auto list = SmallList();
  list->FavouritesBlock.resize(2291);
  const Base::Bytes file = WriteFls(*list);
  ASSERT_EQ(file.size(), 30U * (1 + 5 + 1 + 3 + 1 + 77));
  for (const auto& [number, text] :
       {std::pair{1, "[CANALI] 0005"}, {7, "[TRANSPONDERS] 3"}, {11, "[PREFERITI] 2291"}})
    EXPECT_EQ(Base::AsText(file).substr(30U * static_cast<std::size_t>(number - 1), 30),
              text + std::string(30 - std::strlen(text), ' '));
  State state;
  for (std::size_t size = 0; size <= file.size(); size = size == 13 * 30 ? file.size() : size + 1) {
    state = {};
    state.FavouritesBlock = {1};
    const ImportReport report = ReadFls(state, Base::ByteView(file).first(size), {});
    EXPECT_TRUE(size != 10 * 30 || state.FavouritesBlock.empty()) << "those before name other channels";
    EXPECT_EQ(report.changed, size >= 13) << size;
    EXPECT_EQ(static_cast<bool>(report.whole), size >= 10 * 30 + 12) << size;
    EXPECT_EQ(report.listRead, size >= 6 * 30 + 16) << size;
  }
  EXPECT_EQ(state.ChannelTable, list->ChannelTable);
  EXPECT_EQ(state.Transponder(3).record, list->Transponder(3).record);
  EXPECT_EQ(state.FavouritesBlock, list->FavouritesBlock);
}

TEST(FlsFormat, WrongHeadersAndCounts) {
  State state;
  for (const char* header :
       {"[CANALI] 0000", "[CANALI]  ", "[CANALI]00005", "[canali] 0005", "[CANALI] -1"}) {
    std::string record(header);
    record.resize(30, ' ');
    const ImportReport report = ReadFls(state, Base::AsBytes(record), {});
    ASSERT_FALSE(report.whole || report.changed) << header;
    EXPECT_EQ(report.whole.error().message, "Formato input sconosciuto");
  }
  const std::string greedy = "[CANALI] 9999" + std::string(17, ' ') + std::string(30 * 9999, 'c') +
                             "[TRANSPONDERS] 300" + std::string(12, ' ') + std::string(30 * 300, 't') +
                             "[PREFERITI] 99999" + std::string(13, ' ') + "x";
  EXPECT_TRUE(ReadFls(state, Base::AsBytes(greedy), {}).whole);
  EXPECT_EQ(state.TransponderCount, 254);
  Base::Bytes block(SectorSize, 0);
  block[0] = 'x';
  EXPECT_EQ(state.FavouritesBlock, block) << "what is missing is zero, and no more than a sector holds";
}

TEST(Csv, FieldsStayOneTextWhateverTheyHold) {
  auto state = std::make_unique<State>();
  state->ChannelCount = 9;
  state->TransponderCount = 2;
  state->SymbolRateTable = "27000,22000,";
  state->Transponder(2).record = MakeTransponder(11013, true, 1, 1, 2, 318, 10);
  state->Transponder(2).SetBouquet("Reti; \"Citt\xE0\"", "01");
  const char* names[] = {"Citt\xE0 ", "", "=1+1", " @a", "a;\"b\"", "a\r\nb", "24/7", "105"};
  for (std::size_t i = 0; i < std::size(names); ++i)
    state->Channel(i + 1) = MakeChannel(names[i], i == 0 ? 2 : 1, 7, 512, 65535, 0xA4);
  const std::string details = ";001;7;512;65535;65535;65535;512;A4;S;;;;;;;;\r\n";
  const std::string header =
      "\xEF\xBB\xBFProg.;Canale;Transponder;SID;VPID;APID;AECM;VECM;PCR;Codifica;Attivo;"
      "Frequenza;Pol;SR;FEC;Satellite;Bouquet;TID;NID\r\n";
  const std::string first =
      "0001;Città;002;7;512;65535;65535;65535;512;A4;S;11013;H;22000;3⁄4;SAT B;\"Reti; "
      "\"\"Città\"\"\";318;10\r\n";
  EXPECT_EQ(WriteChannelsCsv(*state, {1, 2, 3, 4, 5, 6, 7, 8, 9}),
            header + first + "0003;'=1+1" + details + "0004;' @a" + details + "0005;\"a;\"\"b\"\"\"" +
                details + "0006;a  b" + details + "0007;'24/7" + details + "0008;105" + details);
  EXPECT_EQ(WriteChannelsCsv(*state, {1, 2}), header + first);
  EXPECT_EQ(WriteTranspondersCsv(*state, {1, 2}),
            "\xEF\xBB\xBFNum.;Frequenza;TID;NID;Canali;SR;FEC;Polarizzazione;22KHz;Satellite;Bouquet\r\n"
            "002;11013;318;10;0;22000;3⁄4;H;Off;SAT B;\"Reti; \"\"Città\"\"\"\r\n");
}

}  // namespace Formats
