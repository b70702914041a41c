// Comparing two lists, and taking over what the other one has without losing a channel or a favourite.
#include "core_test.h"
#include "edit/move.h"
#include "edit/take_over.h"
#include "formats/list_format.h"
#include "formats/sdx_other.h"
#include "formats/service_rows.h"
#include "formats/vdr_channels.h"
#include "review/order_match.h"

#include <functional>

namespace Review {
namespace {

using namespace Edit;
using namespace Routines;
using namespace Samples;

ChannelRecord& Channel(State& state, int slot) { return state.Channel(slot); }
TransponderRecord& Transponder(State& state, int slot) { return state.Transponder(slot).record; }

// Six channels of SID 101 to 106; 1 and 2 are on satellite A, 3 is on satellite B.
State SmallList() {
  State state;
  state.Loaded = true;
  state.ChannelCount = 12;
  state.TransponderCount = 5;
  state.SymbolRateTable = Tests::UsualRates();
  Transponder(state, 1) = MakeTransponder(11766, false, 0, 3, 2, 10, 318);
  Transponder(state, 2) = MakeTransponder(11804, false, 0, 3, 2, 20, 318);
  Transponder(state, 3) = MakeTransponder(11766, false, 1, 3, 2, 10, 1);
  for (int slot = 1; slot <= 6; ++slot)
    Channel(state, slot) = MakeChannel("c" + std::to_string(slot), (slot + 1) / 2, 100 + slot, 500, 600);
  CanaliXTransponder(state);
  state.FavouritesBlock.assign(NormalFavouritesSize, 0);
  SetFavouriteEntries(state.FavouritesBlock, 0, {2, 5});
  return state;
}

Comparison Compare(const State& here, const State& there) {
  return Review::Compare(here, OtherListOf(there));
}

TakeOverReport TakeOver(State& here, const State& there, const Comparison& found,
                        const std::vector<Difference>& chosen) {
  return Edit::TakeOver(here, OtherListOf(there), found, chosen, {});
}

// "3>4 Moved Renamed: c3 → x; rest"
std::string Told(const State& here, const State& there) {
  constexpr const char* Names[] = {"OnlyHere", "OnlyThere", "Moved",    "Renamed",
                                   "Retuned",  "Pids",      "Modified", "Favourites"};
  const OtherList other = OtherListOf(there);
  const Comparison found = Review::Compare(here, other);
  std::string text;
  for (const Difference& difference : found.differences) {
    text += std::to_string(difference.here) + ">" + std::to_string(difference.there);
    for (std::size_t i = 0; i < Marks; ++i) text += difference.marks[i] ? std::string(" ") + Names[i] : "";
    text += ": " + DetailsOf(here, other, difference) + "; ";
  }
  EXPECT_EQ(found.Nothing(), text.empty() && OtherDifferences(found, "").empty());
  return text + OtherDifferences(found, "solo di là");
}

const struct Change {
  const char* what;
  std::function<void(State&)> make;
  const char* told;
} Changes[] = {
    {"the same list", [](State&) {}, ""},
    {"renamed and another stream",
     [](State& s) {
       Set(Channel(s, 2), ChannelField::Vpid, 501);
       std::fill_n(Channel(s, 2).bytes.begin(), 2, Base::Byte{'x'});
     },
     "2>2 Renamed Pids: VPID 500 → 501, c2 → xx; "},
    {"coding and active", [](State& s) { Set(Channel(s, 3), ChannelField::Flags, 0x20); },
     "3>3 Modified: codifica 04 → 20, attivo S → N; "},
    {"no stream, said in two ways, and padding",
     [](State& s) {
       Set(Channel(s, 1), ChannelField::Aecm, AbsentPid - Get(Channel(s, 1), ChannelField::Aecm));
       Channel(s, 2).bytes[3] = ' ';
     },
     "2 canali sono diversi solo in byte senza effetto"},
    {"rows put in at the top move nothing", [](State& s) { static_cast<void>(MakeRoom(s, 1, 2)); },
     "6 canali hanno un altro numero nello stesso ordine"},
    {"one channel moved to the end", [](State& s) { MoveChannels(s, {1}, 6); },
     "1>6 Moved: ; 5 canali hanno un altro numero nello stesso ordine"},
    {"one deleted, one added",
     [](State& s) {
       DeleteSlots(s, {4});
       SetFavouriteEntries(s.FavouritesBlock, 1, {2});
       Channel(s, 8) = MakeChannel("c4", 1, 999, 1, 1);
       CanaliXTransponder(s);
     },
     "4>0 OnlyHere: 11804 V SAT A, SID 104; 0>8 OnlyThere: 11766 V SAT A, SID 999; 0>0 Favourites: voci 0 → "
     "1; "
     "Transponder: 2 con un altro conteggio dei canali. 2 canali hanno un altro numero nello stesso ordine"},
    {"the same name and SID on another satellite is another channel",
     [](State& s) { Set(Channel(s, 1), ChannelField::Transponder, 3); },
     "1>0 OnlyHere: 11766 V SAT A, SID 101; 0>1 OnlyThere: 11766 V SAT B, SID 101; "},
    {"a service that has changed its frequency",
     [](State& s) { Transponder(s, 2) = MakeTransponder(12500, true, 0, 1, 2, 20, 318); },
     "3>3 Retuned: 11804 V → 12500 H, SR 27500 → 22000; 4>4 Retuned: 11804 V → 12500 H, SR 27500 → 22000; "
     "Transponder: 1 solo in questa lista, 1 solo di là"},
    {"a frequency 1 MHz aside whose TID was corrected",
     [](State& s) { Transponder(s, 2) = MakeTransponder(11805, false, 0, 3, 2, 0, 0); },
     "3>3 Modified: TID 20 → 0, NID 318 → 0; 4>4 Modified: TID 20 → 0, NID 318 → 0; "
     "Transponder: 1 con altri dati"},
    {"transponders in other slots",
     [](State& s) {
       std::swap(s.Transponder(1), s.Transponder(2));
       for (int slot = 1; slot <= 4; ++slot)
         Set(Channel(s, slot), ChannelField::Transponder, slot <= 2 ? 2 : 1);
     },
     "Transponder: 2 con un altro numero. 4 canali hanno lo stesso transponder con un altro numero"},
    {"a service twice there, its double in front",
     [](State& s) {
       static_cast<void>(MakeRoom(s, 1, 1));
       Channel(s, 1) = MakeChannel("double", 1, 102, 7, 7);
     },
     "0>1 OnlyThere: 11766 V SAT A, SID 102; 6 canali hanno un altro numero nello stesso ordine"},
};

TEST(Compare, TellsEachKindOfDifferenceByServiceAndNeverByName) {
  for (const Change& one : Changes) {
    const State here = SmallList();
    State there = here;
    one.make(there);
    EXPECT_EQ(Told(here, there), one.told) << one.what;
  }
}

TEST(Compare, DoublesOnBothSidesArePairedInOrder) {
  State here = SmallList();
  for (const int slot : {3, 4, 5}) Channel(here, slot) = MakeChannel("same", 1, 7, slot, 1);
  State there = here;
  DeleteSlots(there, {3});
  EXPECT_EQ(Told(here, there).substr(0, 12), "3>0 OnlyHere");
  Set(Channel(there, 3), ChannelField::Vpid, 70);  // was the fourth
  const Comparison found = Compare(here, there);
  EXPECT_EQ(found.there[3], 3) << "the first that is not equal to any";
  EXPECT_EQ(found.there[4], 0);
  EXPECT_EQ(found.there[5], 4) << "the equal one";
}

// The SIDs that favourites list 1 names.
std::vector<std::uint32_t> Named(const State& state) {
  std::vector<std::uint32_t> sids;
  for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, 0))
    sids.push_back(Get(state.Channel(slot), ChannelField::Sid));
  return sids;
}

TEST(TakeOver, EveryListCanBecomeEveryOtherAndLosesOnlyWhatIsChosen) {
  for (const Change& one : Changes) {
    for (const Change& other : Changes) {
      SCOPED_TRACE(std::string(one.what) + " / " + other.what);
      State here = SmallList(), there = here;
      one.make(here);
      other.make(there);
      const Comparison found = Compare(here, there);

      State ordered = here;
      TakeOrder(ordered, OtherListOf(there), found);
      EXPECT_EQ(Named(ordered), Named(here));
      for (int slot = 1; slot <= here.ChannelCount; ++slot) {
        const int wanted = found.there[static_cast<std::size_t>(slot)];
        if (wanted == 0) continue;
        EXPECT_EQ(Channel(ordered, wanted), Channel(here, slot));
      }
      State richer = here;
      std::vector<Difference> chosen = found.differences;
      std::erase_if(chosen, [](const Difference& difference) {
        return difference.Has(Mark::OnlyHere) || difference.Has(Mark::Favourites);
      });
      const TakeOverReport report = TakeOver(richer, there, found, chosen);
      EXPECT_EQ(UsedChannels(richer), UsedChannels(here) + report.added);
      EXPECT_EQ(Named(richer).size(), Named(here).size());

      TakeOver(here, there, found, found.differences);
      TakeOrder(here, OtherListOf(there), Compare(here, there));
      const Comparison last = Compare(here, there);
      EXPECT_TRUE(last.differences.empty() && last.shifted == 0);
    }
  }
}

TEST(TakeOver, TheOrderOfALongerListEndsWithOnesOwn) {
  State here = SmallList(), there = here;
  here.ChannelCount = 7;
  MoveChannels(there, {1}, 8);
  TakeOrder(here, OtherListOf(there), Compare(here, there));
  EXPECT_EQ(UsedChannels(here), 6);
}

TEST(TakeOver, WhatHasNoPlaceIsLeftAndTold) {
  State here = SmallList();
  State there = here;
  there.SymbolRateTable = Tests::UsualRates(Sr22000::Come0);
  for (int slot = 1; slot <= 3; ++slot)
    Set(Transponder(there, slot), TransponderField::SymbolRate, 1);  // 27500, as here
  Transponder(there, 4) = MakeTransponder(12600, true, 0, 3, 2, 40, 318);
  Transponder(there, 5) = MakeTransponder(12640, true, 0, 3, 2, 50, 318);
  Channel(there, 7) = MakeChannel("n1", 4, 7, 1, 1);
  Channel(there, 8) = MakeChannel("n2", 5, 8, 1, 1);
  Transponder(there, 2) = MakeTransponder(12500, false, 0, 1, 2, 20, 318);
  Transponder(here, 4) = MakeTransponder(12700, true, 0, 3, 2, 60, 318);

  Comparison found = Compare(here, there);
  found.differences.erase(found.differences.begin(), found.differences.end() - 2);  // the two new ones
  TakeOverReport report = TakeOver(here, there, found, found.differences);
  EXPECT_EQ(report.added, 1);
  EXPECT_EQ(report.noTransponder, 1);
  EXPECT_EQ(Get(Transponder(here, 5), TransponderField::SymbolRate), 1U) << "22000 has another code here";

  found = Compare(here, there);
  const auto before = here.ChannelTable;
  report = TakeOver(here, there, found, {found.differences.front()});
  EXPECT_EQ(report.noTransponder, 1) << "a channel is not put on a transponder that is not its own";
  EXPECT_EQ(here.ChannelTable, before);

  here.ChannelCount = 5;  // the list is full
  found = Compare(here, there);
  report = TakeOver(here, there, found, {found.differences.back()});
  EXPECT_EQ(report.noRoom, 1);
  EXPECT_EQ(here.ChannelTable, before);
}

TEST(TakeOver, AChannelWithoutATransponderGetsNoneByChance) {
  State here = SmallList();
  State there = here;
  Channel(there, 7) = MakeChannel("lost", 4, 7, 1, 1);
  Channel(there, 8) = MakeChannel("new", 5, 8, 1, 1);
  Transponder(there, 5) = MakeTransponder(12640, true, 0, 3, 2, 50, 318);
  const Comparison found = Compare(here, there);
  TakeOver(here, there, found, found.differences);
  EXPECT_EQ(Get(Channel(here, 8), ChannelField::Transponder), 4U) << "the first free slot";
  EXPECT_EQ(OtherChannelOf(here, 7).transponder, 0);
}

// Rows of a channels.conf for satellite A, and what else it has.
OtherList Listed(const std::string& lines, const State& here) {
  Formats::ListOptions options;
  options.satellites[130] = 0;
  options.codes = {"04"};
  Formats::VdrReader wanted(lines);
  Formats::SdxTable table = Formats::RowsOf(wanted, options);
  Formats::VdrReader all(lines);
  Formats::KeepOthers(table, Formats::RowsOf(all, Formats::WithoutFilters(options)));
  return Formats::OtherListOf(table, here.SymbolRateTable);
}

TEST(Compare, AListOfTodayIsAskedOnlyWhatItSaysAndEachKindIsTakenByItself) {
  State here = SmallList();
  for (int slot = 1; slot <= 6; ++slot) Set(Channel(here, slot), ChannelField::Pcr, 500);
  Set(Channel(here, 2), ChannelField::Flags, 0);
  Channel(here, 7) = MakeChannel("c7", 1, 107, 500, 600);
  Channel(here, 9) = MakeChannel("c9", 2, 109, 500, 600);
  here.Transponder(1).SetBouquet("Uno", "01");
  const OtherList other = Listed(
      "c2:11767:VS0:S13E:27500:501:600:0:0:102:0:10:0\n"  // no FEC, no NID; whether it is active no list says
      "Primo:11766:VC34S0:S13E:27500:500:0:0:0:101:318:10:0\n"  // no sound is none said
      "c3:12500:HC34S0:S13E:22000:500:600:0:0:103:318:20:0\n"
      "Quarto:11804:VC34S0:S13E:27500:0:0:0:0:104:318:20:0\n"     // no PIDs: no row
      "c9:11804:VC34S0:S13E:27500:500:600:0:1801:109:318:20:0\n"  // not wanted: no row, and not gone either
      "Criptato:11804:VC34S0:S13E:27500:500:600:0:1801:110:318:20:0\n"  // nor new
      "Nuovo:11766:VC34S0:S13E:27500:510:610:0:0:199:318:10:0\n",
      here);
  const Comparison found = Review::Compare(here, other);
  std::string told;
  for (const Difference& difference : found.differences)
    told += std::to_string(difference.here) + " " + difference.marks.to_string() + " " +
            DetailsOf(here, other, difference) + "; ";
  EXPECT_EQ(
      told,
      "1 00001100 c1 → Primo; 2 00100000 VPID 500 → 501, PCR 500 → 501; 3 00010000 11804 V → 12500 H, SR "
      "27500 → "
      "22000; 4 00001000 c4 → Quarto; 0 00000010 11766 V SAT A, SID 199; 7 00000001 11766 V SAT A, SID 107; "
      "9 01000000 codifica 04 → 44; ");
  EXPECT_EQ(OtherDifferences(found, ""), "2 canali non sono confrontati: l'altra non ne dice niente");

  const auto take = [&](std::initializer_list<Mark> marks, NewPlace place) {
    State state = here;
    MarkSet kinds;
    for (const Mark mark : marks) kinds.set(static_cast<std::size_t>(mark));
    std::vector<Difference> chosen = found.differences;
    for (Difference& difference : chosen) difference.marks &= kinds;
    Edit::TakeOver(state, other, found, chosen, {}, place);
    std::string names;
    for (int slot = 1; slot <= state.ChannelCount; ++slot)
      names += std::string(Channel(state, slot).Name()) + " ";
    return names;
  };
  EXPECT_EQ(take({Mark::Renamed}, NewPlace::Behind), "Primo c2 c3 Quarto c5 c6 c7  c9    ");
  EXPECT_EQ(take({Mark::Moved, Mark::OnlyHere}, NewPlace::Behind), "c2 c1 c3 c4 c5 c6  c9     ");
  EXPECT_EQ(take({Mark::OnlyThere}, NewPlace::Behind), "c1 c2 c3 c4 c5 c6 c7  c9 Nuovo   ");
  EXPECT_EQ(take({Mark::OnlyThere}, NewPlace::Holes), "c1 c2 c3 c4 c5 c6 c7 Nuovo c9    ");
  Channel(here, 7) = {};
  EXPECT_EQ(take({Mark::OnlyThere}, NewPlace::Bouquet), "c1 c2 Nuovo c3 c4 c5 c6   c9   ");
}

TEST(OrderMatch, EntriesAreFoundByIdsThenByNameAndNumberedAsWanted) {
  State here = SmallList();
  Channel(here, 6) = MakeChannel("Perch\xE8", 3, 106, 1, 1);
  const Order order = {"",
                       {{7, "anything", {}, 318, 20, 104},  // c4
                        {0, "c1", {}, 1, 10, 101},          // another network, but the name
                        {3, "", {}, 0, 10, 102},            // c2, on a list that does not say networks
                        {3, "PERCHE", {}},
                        {9, "c4", {}},  // is taken already
                        {900, "c3", {}}}};
  const auto told = [&](Numbering numbering) {
    const OrderMatch match = MatchOrder(here, order, numbering);
    std::string text;
    for (const Difference& one : match.found.differences)
      text += std::to_string(one.here) + ">" + std::to_string(one.there) + (one.byName ? " name; " : "; ");
    State ordered = here;
    TakeOrder(ordered, match.list, match.found);
    for (int slot = 1; slot <= here.ChannelCount; ++slot)
      text += std::string(Channel(ordered, slot).Name()) + " ";
    return text;
  };
  EXPECT_EQ(told(Numbering::Together),
            "1>2 name; 2>3; 3>5 name; 4>1; 5>0; 6>4 name; 0>6; c4 c1 c2 Perch\xE8 c3 c5       ");
  EXPECT_EQ(told(Numbering::AsListed),
            "1>8 name; 2>3; 3>0; 4>7; 5>0; 6>4 name; 0>9; 0>10;   c2 Perch\xE8   c4 c1 c3 c5   ");
  const OrderMatch own = MatchOrder(
      here,
      Formats::ReadOrderText(Formats::ListText(Formats::WriteOrderText(Routines::OrderOf(here))).View()),
      Numbering::AsListed);
  EXPECT_TRUE(own.found.differences.empty());
  EXPECT_EQ(MatchOrder(here, OrderOfFavourites(here, 0), Numbering::Together).list.offered, 2);
}

}  // namespace
}  // namespace Review
