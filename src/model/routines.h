// The state that every command works on: the tables of one channel list and what belongs to them. It is one
// plain value, so that a copy of it is a complete snapshot.
#pragma once

#include "model/channel.h"
#include "model/transponder.h"

#include <concepts>
#include <string>

namespace Routines {

inline constexpr int LastChannelSlot = 3996;     // slot 0 is never used
inline constexpr int LastTransponderSlot = 254;  // slot 0 is never used
inline constexpr std::size_t NormalFavouritesSize = 2488;

struct State {
  std::array<ChannelRecord, LastChannelSlot + 1> ChannelTable{};  // by channel number
  std::array<TransponderRow, LastTransponderSlot + 1> TransponderTable{};
  Base::Bytes FavouritesBlock;  // see favourites.h
  std::string SymbolRateTable;  // see symbol_rates.h

  int MaxChannels = 0;       // highest usable channel slot; 0 before a load and after a write
  int ChannelCount = 0;      // slots of the loaded list; a write leaves it alone
  int TransponderCount = 0;  // at most 254

  bool Loaded = false;
  bool FromFls = false;     // the list came from an exchange file of raw records, not from a flash
  int CutNumber = 0;        // of the last cut; another one for every cut
  int ListNumber = 0;       // another one for every list loaded in the place of the last
  std::string InputFlash;   // path of the flash image last opened
  std::string OutputFlash;  // path of the flash image chosen for writing, empty when none is

  // What is in a slot: 0..LastChannelSlot of the one table, 0..LastTransponderSlot of the other.
  ChannelRecord& Channel(std::integral auto slot) { return ChannelTable[static_cast<std::size_t>(slot)]; }
  const ChannelRecord& Channel(std::integral auto slot) const {
    return ChannelTable[static_cast<std::size_t>(slot)];
  }
  TransponderRow& Transponder(std::integral auto slot) {
    return TransponderTable[static_cast<std::size_t>(slot)];
  }
  const TransponderRow& Transponder(std::integral auto slot) const {
    return TransponderTable[static_cast<std::size_t>(slot)];
  }

  friend bool operator==(const State&, const State&) = default;
};

// The highest slot that holds a channel, 0 when there is none.
inline int LastUsedChannel(const State& state) {
  int slot = LastChannelSlot;
  while (slot > 0 && state.Channel(slot).Empty()) --slot;
  return slot;
}

// The highest slot within the channel count that holds a channel, 0 when there is none.
inline int LastOccupied(const State& state) {
  int slot = state.ChannelCount;
  while (slot > 0 && state.Channel(slot).Empty()) --slot;
  return slot;
}

// Channels in slots 1..`last`, which is the channel count where it is not given.
inline int UsedChannels(const State& state, int last) {
  const auto first = state.ChannelTable.begin() + 1;
  return static_cast<int>(
      std::count_if(first, first + last, [](const ChannelRecord& c) { return !c.Empty(); }));
}
inline int UsedChannels(const State& state) { return UsedChannels(state, state.ChannelCount); }

// Transponders in slots 1..TransponderCount.
inline int UsedTransponders(const State& state) {
  const auto first = state.TransponderTable.begin() + 1;
  return static_cast<int>(std::count_if(first, first + state.TransponderCount,
                                        [](const TransponderRow& row) { return !IsFree(row.record); }));
}

// The transponder of that number; none where it is no slot of the list, or a free one.
inline const TransponderRow* TransponderInUse(const State& state, std::uint32_t number) {
  if (number < 1 || static_cast<int>(number) > state.TransponderCount) return nullptr;
  const TransponderRow& row = state.Transponder(number);
  return IsFree(row.record) ? nullptr : &row;
}

// Adds to a transponder's own count of channels, which stays within 0..254. Numbers that are no slot do nothing.
inline void AddToChannelCount(State& state, std::uint32_t transponder, int step) {
  if (transponder < 1 || transponder > LastTransponderSlot) return;
  TransponderRecord& record = state.Transponder(transponder).record;
  const int count = static_cast<int>(Get(record, TransponderField::ChannelCount)) + step;
  Set(record, TransponderField::ChannelCount, static_cast<std::uint32_t>(std::clamp(count, 0, 254)));
}

struct TransponderSlot {
  int slot = 0;        // 0 for none
  bool added = false;  // it was free before
};

// The slot 1..TransponderCount whose transponder is the same as `record`, else the first free one, which then takes
// it.
inline TransponderSlot FindOrAddTransponder(State& state, const TransponderRecord& record, int megahertz) {
  int free = 0;
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    const TransponderRecord& known = state.Transponder(slot).record;
    if (IsFree(known)) {
      if (free == 0) free = slot;
    } else if (SameTransponder(known, record, megahertz)) {
      return {slot, false};
    }
  }
  if (free != 0) state.Transponder(free).record = record;
  return {free, free != 0};
}

inline TransponderSlot FindOrAddTransponder(State& state, const TransponderRecord& record) {
  return FindOrAddTransponder(state, record, FrequencyMHz(record));
}

}  // namespace Routines
