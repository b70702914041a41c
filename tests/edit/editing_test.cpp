// Editing the list: every command that moves channels carries the favourites along, and every step can be undone.
#include "core_test.h"
#include "edit/changed_rows.h"
#include "edit/clipboard.h"
#include "edit/history.h"
#include "edit/move.h"
#include "edit/regroup.h"

namespace Edit {
namespace {

using namespace Routines;
using namespace Samples;

ChannelRecord& Channel(State& state, int slot) { return state.Channel(slot); }

// `limit` slots, most of them filled with channels of SIDs of their own on transponders 0 to 255; favourites on some of
// the channels, the last list full.
std::unique_ptr<State> RandomList(Junk& junk, int limit) {
  auto state = std::make_unique<State>();
  state->ChannelCount = state->MaxChannels = limit;
  state->TransponderCount = 200;
  state->Loaded = true;
  state->FavouritesBlock.assign(NormalFavouritesSize, 0);
  for (int slot = 1; slot <= limit - 20; ++slot) {
    if (junk.Below(8) == 0) continue;
    const int transponder =
        junk.Below(5) == 0 ? static_cast<int>(junk.Below(2) * 255) : static_cast<int>(junk.Below(12));
    Channel(*state, slot) = MakeChannel("c" + std::to_string(slot), transponder, slot, 1, 1);
    if (junk.Below(30) == 0) std::fill_n(Channel(*state, slot).bytes.begin(), 16, Base::Byte{' '});
  }
  for (std::size_t i = 1; i < 20; ++i) {
    const std::string digit(1, static_cast<char>('0' + junk.Below(3)));
    state->Transponder(i).record = MakeTransponder(10700 + static_cast<int>(i) * 20, true, 0, 1, 2);
    state->Transponder(i).SetBouquet("B", "0" + digit);
  }
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    std::vector<int> entries(list == 7 ? FavouriteEntries : junk.Below(60));
    for (int& slot : entries) {
      while (slot == 0 || Channel(*state, slot).Empty())
        slot = 1 + static_cast<int>(junk.Below(static_cast<std::size_t>(limit)));
    }
    SetFavouriteEntries(state->FavouritesBlock, list, entries);
  }
  return state;
}

// The SIDs that the entries of a list name; 0 for an entry on an empty slot.
std::vector<int> Named(const State& state, std::size_t list) {
  std::vector<int> sids;
  for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list))
    sids.push_back(static_cast<int>(Get(state.Channel(slot), ChannelField::Sid)));
  return sids;
}

void ExpectSameFavourites(const State& before, const State& after) {
  std::array<bool, 400> present{};
  for (const ChannelRecord& c : after.ChannelTable) present[Get(c, ChannelField::Sid)] = true;
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    std::vector<int> expected = Named(before, list);
    std::erase_if(expected, [&](int sid) { return sid == 0 || !present[static_cast<std::size_t>(sid)]; });
    std::vector<int> named = Named(after, list);
    // What a cut took out comes back with the paste; a gap that was closed takes its entry along.
    std::erase_if(named, [&](int sid) { return std::ranges::count(expected, sid) == 0; });
    EXPECT_EQ(named, expected) << "list " << list;
  }
}

Slots RandomSlots(Junk& junk, const State& state) {
  Slots slots;
  int slot = 1 + static_cast<int>(junk.Below(static_cast<std::size_t>(state.ChannelCount)));
  do {
    slots.push_back(slot);
    slot += junk.Below(2) == 0 ? 1 : 1 + static_cast<int>(junk.Below(9));
  } while (slot <= state.ChannelCount && junk.Below(6) != 0);
  return slots;
}

// Ten slots with a channel for each letter, all of them favourites in their order; a dot is an empty slot.
State Lettered(std::string_view letters) {
  State state;
  state.ChannelCount = static_cast<int>(letters.size());
  state.FavouritesBlock.assign(NormalFavouritesSize, 0);
  std::vector<int> entries;
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (letters[i] != '.')
      Channel(state, static_cast<int>(i) + 1) = MakeChannel(letters.substr(i, 1), 1, 1, 1, 1);
    entries.push_back(static_cast<int>(i) + 1);
  }
  SetFavouriteEntries(state.FavouritesBlock, 0, entries);
  return state;
}

// The slots, and behind them the favourites that name a channel.
std::string Letters(const State& state) {
  const auto letter = [&](int slot) {
    return state.Channel(slot).Empty() ? '.' : state.Channel(slot).Name().front();
  };
  std::string text;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) text += letter(slot);
  text += ' ';
  for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, 0))
    if (letter(slot) != '.') text += letter(slot);
  return text;
}

// One random command; nothing where it was refused.
void RandomCommand(Junk& junk, State& state, Clipboard& clipboard) {
  const Slots slots = RandomSlots(junk, state);
  const std::size_t command = junk.Below(14);
  if (command == 0) DeleteSlots(state, slots);
  if (command == 1) {
    clipboard = CopyChannels(state, slots);
    CutChannels(state, slots, clipboard);
  }
  if (command == 2 && IsPosition(state, slots.front(), clipboard.Count())) {
    static_cast<void>(Paste(state, clipboard, slots.front(), PasteWay::Move, {}));
    clipboard = {};
  }
  if (command == 3) MoveChannels(state, slots, RandomSlots(junk, state).front());
  if (command == 4) OrdinaPerBouquet(state, slots.front());
  if (command == 5) static_cast<void>(MakeRoom(state, slots.front(), 2));
  if (command == 6) InvertiSatelliti(state);
  if (command == 7) Regroup(state, slots.front());
  if (command == 8) StepChannels(state, slots, junk.Below(2) == 0 ? 1 : -1);
  if (command == 9) CanaliXTransponder(state);
  if (command == 10) SwapChannels(state, slots.front(), slots.back());
  if (command == 11) CloseGaps(state, slots);
  if (command == 12) CloseGaps(state, SlotRun(slots.front(), LastOccupied(state)));
  if (command == 13) static_cast<void>(InsertEmpty(state, slots));
}

// The sort as it is described: a plain exchange sort over the table's slots, then the gaps.
void PlainSort(State& state, int start) {
  const int last = LastOccupied(state);
  const auto key = [&](int slot) {
    const auto number = Get(Channel(state, slot), ChannelField::Transponder);
    const bool none = Channel(state, slot).Empty() || number == 0 || number == 255;
    return none ? std::pair(std::string(), 0U)
                : std::pair(std::string(state.Transponder(number).BouquetCode()), number);
  };
  for (int i = start; i < last; ++i)
    for (int j = i + 1; j <= last; ++j)
      if (key(j).second != 0 && key(j) < key(i)) std::swap(Channel(state, i), Channel(state, j));
  const auto end = state.ChannelTable.begin() + last + 1;
  const auto isGap = [](const ChannelRecord& c) {
    return c.Empty() || Base::AsText(c.bytes).starts_with("     ");
  };
  std::fill(std::remove_if(state.ChannelTable.begin() + start, end, isGap), end, ChannelRecord{});
}

}  // namespace

TEST(Editing, FavouritesGoOnNamingTheSameChannelsAndEveryStepCanBeTakenBack) {
  Junk junk(5);
  for (int round = 0; round < 10; ++round) {
    History history;
    Clipboard clipboard;
    auto state = RandomList(junk, 300);
    const State first = *state;
    for (int step = 0; step < 40; ++step) {
      auto before = std::make_unique<State>(*state);
      RandomCommand(junk, *state, clipboard);
      ExpectSameFavourites(*before, *state);
      if (*before == *state) continue;
      history.Push("passo", History::Kind::Edit, std::move(before));
    }
    const State last = *state;
    while (history.Undo(state, clipboard)) continue;
    ASSERT_TRUE(*state == first) << round;
    while (history.Redo(state, clipboard)) continue;
    ASSERT_TRUE(*state == last) << round;
  }
}

TEST(Editing, WhatAStepChangedIsShown) {
  const State before = Lettered("abcdef");
  State deleted = before, moved = before, renamed = before;
  DeleteSlots(deleted, {2, 3});
  MoveChannels(moved, {1}, 3);
  Channel(renamed, 5).bytes[0] = 'y';
  EXPECT_EQ(ChannelsToShow(before, deleted), std::vector{2});
  EXPECT_EQ(ChannelsToShow(deleted, before), std::vector({2, 3}));
  EXPECT_EQ(ChannelsToShow(moved, before), std::vector({1, 2, 3}));
  EXPECT_EQ(ChannelsToShow(before, renamed), std::vector{5});
}

// Channels are cut and moved, never deleted, so that each of them is somewhere at any time.
TEST(Editing, NoOrderOfUndoAndRedoLosesACutChannel) {
  Junk junk(8);
  for (int round = 0; round < 20; ++round) {
    History history;
    Clipboard clipboard;
    auto state = RandomList(junk, 60);
    const auto channels = [&] {
      std::vector<Base::Bytes> all;
      const auto add = [&all](const ChannelRecord& c) {
        if (!c.Empty()) all.emplace_back(c.bytes.begin(), c.bytes.end());
      };
      std::ranges::for_each(state->ChannelTable, add);
      std::ranges::for_each(clipboard.channels, add);
      std::sort(all.begin(), all.end());
      return all;
    };
    const auto first = channels();
    for (int step = 0; step < 100; ++step) {
      const std::size_t way = junk.Below(4);
      if (way == 0) history.Undo(state, clipboard);
      if (way == 1) history.Redo(state, clipboard);
      if (way > 1) {
        auto before = std::make_unique<State>(*state);
        const Clipboard copied = clipboard;
        const Slots slots = RandomSlots(junk, *state);
        if (way == 2) {
          MoveChannels(*state, slots, RandomSlots(junk, *state).front());
        } else if (clipboard.Count() == 0) {
          clipboard = CopyChannels(*state, slots);
          CutChannels(*state, slots, clipboard);
        } else if (Paste(*state, clipboard, slots.front(), PasteWay::Move, {})) {
          clipboard = {};
        }
        if (*before != *state)
          history.Push("passo", History::Kind::Edit, std::move(before), copied, clipboard);
      }
      ASSERT_EQ(channels(), first) << round << ", " << step;
    }
  }
}

TEST(Editing, DeletingClosesTheListAndItsFavourites) {
  Junk junk(1);
  auto state = RandomList(junk, 40);
  state->FavouritesBlock.assign(NormalFavouritesSize, 0);
  for (int slot = 1; slot <= 20; ++slot) Channel(*state, slot) = MakeChannel("x", 3, slot, 1, 1);
  Channel(*state, 6) = {};
  SetFavouriteEntries(state->FavouritesBlock, 0, {5, 9, 4000, 6, 20, 7});
  Set(state->Transponder(3).record, TransponderField::ChannelCount, 1);
  const auto lost = DeleteSlots(*state, {5, 6, 7});
  EXPECT_EQ(FavouriteEntriesOf(state->FavouritesBlock, 0), std::vector<int>({6, 4000, 17}));
  EXPECT_EQ(LostFavouritesText(state->FavouritesBlock, lost), "tolti 3 preferiti (lista 1 3)");
  EXPECT_EQ(Get(Channel(*state, 5), ChannelField::Sid), 8U);
  EXPECT_TRUE(Channel(*state, 40).Empty());
  EXPECT_EQ(Get(state->Transponder(3).record, TransponderField::ChannelCount), 0U) << "never below 0";
  DeleteSlots(*state, {1, 4, 12});
  EXPECT_EQ(Get(Channel(*state, 1), ChannelField::Sid), 2U);
  EXPECT_EQ(Get(Channel(*state, 10), ChannelField::Sid), 16U);
  EXPECT_EQ(LastOccupied(*state), 14);
  EXPECT_EQ(FavouriteEntriesOf(state->FavouritesBlock, 0), std::vector<int>({4, 4000, 14}));
  DeleteSlots(*state, SlotRun(1, 40));
  EXPECT_EQ(LastOccupied(*state), 0);
}

TEST(Editing, ScatteredChannelsAreMovedExactlyAndTheirFavouritesToo) {
  State s;
  const auto from = [&s](std::string_view letters) -> State& { return s = Lettered(letters); };
  MoveChannels(from("abcd.efg.."), {2, 4, 7}, 1);
  EXPECT_EQ(Letters(s), "bdfac.eg.. abcdefg");
  MoveChannels(from("abcd.efg.."), {2, 4, 7}, 4);
  EXPECT_EQ(Letters(s), "ac.bdfeg.. abcdefg");
  MoveChannels(from("abcd.efg.."), {2, 4, 7}, 99);
  EXPECT_EQ(Letters(s), "ac.eg..bdf abcdefg");
  MoveChannels(from("abcd.efg.."), {1, 2}, TargetBefore({1, 2}, 4));
  EXPECT_EQ(Letters(s), "cabd.efg.. abcdefg");
  MoveChannels(from("abcd.efg.."), {2, 7}, TargetBefore({2, 7}, 4));
  EXPECT_EQ(Letters(s), "acbfd.eg.. abcdefg");
  MoveChannels(from("abcd.efg.."), {2, 3}, TargetBefore({2, 3}, 3));
  EXPECT_EQ(Letters(s), "abcd.efg.. abcdefg");
  StepChannels(from("abcd.efg.."), {2, 4, 7}, -1);
  EXPECT_EQ(Letters(s), "badc.feg.. abcdefg");
  StepChannels(from("abcd.efg.."), {2, 3, 7}, 1);
  EXPECT_EQ(Letters(s), "adbc.egf.. abcdefg");
  EXPECT_FALSE(StepChannels(from("abcd.efg.."), {1, 3}, -1));
  EXPECT_EQ(Letters(s), "abcd.efg.. abcdefg");
  EXPECT_FALSE(StepChannels(from("abcd.efg.x"), {3, 10}, 1));
  EXPECT_EQ(Letters(s), "abcd.efg.x abcdefgx");
  SwapChannels(from("abcd.efg.."), 1, 8);
  EXPECT_EQ(Letters(s), "gbcd.efa.. abcdefg");
  SwapChannels(from("abcd.efg.."), 2, 5);
  EXPECT_EQ(Letters(s), "a.cdbefg.. abcdefg");
  CloseGaps(from("a..b.c.d.e"), {2, 4, 5, 7, 8});
  EXPECT_EQ(Letters(s), "ab.d.c...e abcde");
  CloseGaps(from("a..b.c.d.e"), SlotRun(3, 10));
  EXPECT_EQ(Letters(s), "a.bcde.... abcde");
  EXPECT_TRUE(CloseGaps(from("a..b.c.d.e"), {1, 4}).empty());
  EXPECT_EQ(Letters(s), "a..b.c.d.e abcde");
  EXPECT_EQ(CloseGaps(from("a..b.c.d.e"), {2, 3, 4}).size(), 2U);
  EXPECT_EQ(Letters(s), "ab...c.d.e abcde");
  EXPECT_EQ(InsertEmpty(from("abcdef...."), {2, 3, 5})->rows, Slots({2, 3, 7}));
  EXPECT_EQ(Letters(s), "a..bcd.ef. abcdef");
  EXPECT_FALSE(InsertEmpty(from("abcdef...."), SlotRun(1, 5)));
  EXPECT_EQ(Letters(s), "abcdef.... abcdef");
  DeleteSlots(from("abcd.efg.."), {1, 4, 5, 8});
  EXPECT_EQ(Letters(s), "bcef...... bcef");
  from("abcd.efg..");
  Clipboard clipboard = CopyChannels(s, {2, 4, 7});
  CutChannels(s, {2, 4, 7}, clipboard);
  EXPECT_EQ(Letters(s), "ac.eg..... aceg");
  EXPECT_TRUE(Paste(s, clipboard, 2, PasteWay::Move, {}));
  EXPECT_EQ(Letters(s), "abdfc.eg.. abcdefg");
}

TEST(Editing, CutAndPasteGivesFavouritesBackAndKeepsToTheLimit) {
  Junk junk(2);
  auto state = RandomList(junk, 100);
  Channel(*state, 97) = MakeChannel("ultimo", 1, 97, 1, 1);
  const State before = *state;
  Clipboard clipboard = CopyChannels(*state, SlotRun(10, 20));
  CutChannels(*state, SlotRun(10, 20), clipboard);
  ASSERT_TRUE(Paste(*state, clipboard, 10, PasteWay::Move, {}));
  EXPECT_EQ(state->ChannelTable, before.ChannelTable);
  EXPECT_EQ(state->FavouritesBlock, before.FavouritesBlock);
  *state = before;
  ASSERT_TRUE(Paste(*state, clipboard, 85, PasteWay::Overwrite, {}));
  EXPECT_EQ(state->FavouritesBlock, before.FavouritesBlock) << "not twice, where the cut was undone";

  *state = before;
  EXPECT_TRUE(IsPosition(*state, 95, 5) && !IsPosition(*state, 96, 5) && !IsPosition(*state, 0, 5));
  clipboard = CopyChannels(*state, SlotRun(1, 4));
  const auto refused = Paste(*state, clipboard, 50, PasteWay::Move, {});
  ASSERT_FALSE(refused);
  EXPECT_EQ(refused.error().message, "Posizione di inserimento invalida");
  EXPECT_FALSE(Paste(*state, clipboard, 101, PasteWay::Move, {})) << "behind the last slot";
  EXPECT_TRUE(*state == before);
  ASSERT_TRUE(Paste(*state, clipboard, 96, PasteWay::Overwrite, {}));
  EXPECT_EQ(Channel(*state, 97), Channel(*state, 2));
  EXPECT_EQ(state->FavouritesBlock, before.FavouritesBlock) << "overwriting leaves entries on their slot";
}

TEST(Editing, ChannelsOfAnotherListFindTheirTransponders) {
  Junk junk(4);
  auto from = RandomList(junk, 50);
  for (int i = 1; i <= 3; ++i) Channel(*from, i) = MakeChannel("x", i, i, 1, 1);
  auto to = std::make_unique<State>();
  from->SymbolRateTable = to->SymbolRateTable = EmptySymbolRateTable();
  for (auto& [table, code] : {std::pair(&from->SymbolRateTable, 1), std::pair(&to->SymbolRateTable, 3)})
    SetSymbolRate(*table, static_cast<std::size_t>(code), "22000");
  const Clipboard clipboard = CopyChannels(*from, SlotRun(1, 3));
  to->ListNumber = 9;
  to->ChannelCount = 50;
  to->TransponderCount = 3;
  to->Transponder(1).record = MakeTransponder(12500, true, 0, 1, 2);
  to->Transponder(3).record = MakeTransponder(10742, true, 0, 9, 9);
  const auto pasted = Paste(*to, clipboard, 5, PasteWay::Overwrite, {});
  ASSERT_TRUE(pasted);
  EXPECT_EQ(pasted->withoutTransponder, 1);
  std::vector<std::uint32_t> linked;
  for (int i = 5; i <= 7; ++i) linked.push_back(Get(Channel(*to, i), ChannelField::Transponder));
  EXPECT_EQ(linked, std::vector<std::uint32_t>({2, 3, 3}));
  EXPECT_EQ(FrequencyMHz(to->Transponder(2).record), 10720);
  EXPECT_EQ(to->Transponder(2).BouquetName().substr(0, 7), "Nessuno");
  EXPECT_EQ(Get(to->Transponder(2).record, TransponderField::SymbolRate), 3U) << "the code of 22000 there";
}

TEST(Editing, TheSortIsTheExchangeSortsOwn) {
  for (std::uint32_t seed = 1; seed <= 40; ++seed) {
    Junk junk(seed);
    auto state = RandomList(junk, 60 + static_cast<int>(junk.Below(200)));
    auto plain = std::make_unique<State>(*state);
    const int start =
        1 + static_cast<int>(junk.Below(static_cast<std::size_t>(std::max(LastOccupied(*state), 1))));
    OrdinaPerBouquet(*state, start);
    PlainSort(*plain, start);
    ASSERT_EQ(state->ChannelTable, plain->ChannelTable) << seed;
  }
}

TEST(Editing, TelevisionComesBeforeRadioAndServices) {
  State state;
  state.ChannelCount = 40;
  state.FavouritesBlock.assign(NormalFavouritesSize, 0);
  constexpr int None = 65535;
  const struct {
    int slot, sid, vpid, apid;
  } channels[] = {{2, 2, 0, 7},   {4, 4, None, 7},      {5, 0, 8, 9},   {6, 6, 8, 9},   {9, 9, 0, None},
                  {10, 10, 0, 0}, {11, 11, None, None}, {12, 12, 0, 7}, {13, 13, 8, 0}, {14, 0, 0, 7}};
  for (const auto& c : channels) Channel(state, c.slot) = MakeChannel("x", 1, c.sid, c.vpid, c.apid);
  std::fill_n(Channel(state, 6).bytes.begin(), 16, Base::Byte{' '});
  SetFavouriteEntries(state.FavouritesBlock, 0, {2, 1, 8, 14, 6, 30});
  const Regrouped done = Regroup(state, 4);
  EXPECT_EQ((std::vector{done.television, done.radio, done.services}), (std::vector{2, 2, 5}));
  std::vector<int> sids;
  for (int slot = 1; slot <= 13; ++slot)
    sids.push_back(
        Channel(state, slot).Empty() ? -1 : static_cast<int>(Get(Channel(state, slot), ChannelField::Sid)));
  EXPECT_EQ(sids, std::vector<int>({-1, 2, -1, 6, 13, 4, 12, 0, 9, 10, 11, 0, -1}));
  EXPECT_EQ(FavouriteEntriesOf(state.FavouritesBlock, 0), std::vector<int>({2, 1, 12, 4, 30}));
  EXPECT_EQ(done.lost, std::vector<LostFavourite>({{0, 2, 8}})) << "only the gap between channels was closed";
}

TEST(Editing, WholeListCommands) {
  Junk junk(6);
  auto state = RandomList(junk, 300);
  const State before = *state;
  InvertiSatelliti(*state);
  EXPECT_EQ(SatelliteLabel(state->Transponder(1).record), "SAT B");
  InvertiSatelliti(*state);
  EXPECT_TRUE(*state == before);
  state->Transponder(1).record.bytes[11] = 0xF7 & 0x17;  // satellite C, everything else on
  state->Transponder(2).record.bytes[11] = 0x1F;
  RiportaAB(*state);
  EXPECT_EQ(state->Transponder(1).record.bytes[11], 0x07);
  EXPECT_EQ(state->Transponder(2).record.bytes[11], 0x0F);
  for (int slot = 1; slot <= 290; ++slot) Channel(*state, slot) = MakeChannel("x", 7, slot, 1, 1);
  CanaliXTransponder(*state);
  EXPECT_EQ(Get(state->Transponder(7).record, TransponderField::ChannelCount), 255U);
  EXPECT_EQ(Azzera(*state), 290);
  EXPECT_EQ(LastUsedChannel(*state), 0);
  EXPECT_EQ(UsedTransponders(*state), 0);
  EXPECT_EQ(state->FavouritesBlock, before.FavouritesBlock);
  EXPECT_EQ(Azzera(*state), 0);
}

TEST(Editing, NamesAreFoundWhateverTheirCase) {
  State state;
  state.ChannelCount = 5;
  Channel(state, 2) = MakeChannel("Citt\xE0 \x9C", 12, 300, 1, 1);
  EXPECT_EQ(FindName(state, "TT\xC0 \x8C", 1), 2);
  EXPECT_EQ(FindName(state, "tt\xE0", 3), 0);
}

TEST(History, UndoingAnEditKeepsTheOutputAndUndoingALoadGivesItBack) {
  History history;
  auto state = std::make_unique<State>();
  Clipboard clipboard;
  history.Push("apri", History::Kind::List, std::make_unique<State>(*state));
  state->MaxChannels = 999;
  history.Push("elimina", History::Kind::Edit, std::make_unique<State>(*state));
  state->ChannelCount = 5;
  state->FromFls = true;
  const auto many = static_cast<int>(2 * History::MostSteps);
  for (int step = 0; step < many; ++step)
    history.Push("cella", History::Kind::Edit, std::make_unique<State>(*state));
  state->OutputFlash = "scelta.dat";
  state->MaxChannels = 0;
  state->FromFls = false;
  history.Undo(state, clipboard);
  EXPECT_EQ(state->OutputFlash, "scelta.dat");
  EXPECT_EQ(state->MaxChannels, 0);
  EXPECT_FALSE(state->FromFls) << "a save has lifted it";
  while (history.UndoLabel() == "cella") history.Undo(state, clipboard);
  EXPECT_EQ(history.UndoLabel(), "apri") << "the way back from a list outlives its edits";
  history.Undo(state, clipboard);
  EXPECT_EQ(state->OutputFlash, "");
  history.Push("altro", History::Kind::Edit, std::make_unique<State>(*state));
  EXPECT_EQ(history.RedoLabel(), "") << "a new step forgets what was undone";
}

}  // namespace Edit
