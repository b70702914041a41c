#include "edit/take_over.h"

#include "edit/list_operations.h"
#include "model/symbol_rates.h"

#include <optional>

namespace Edit {
namespace {

using namespace Review;
using namespace Routines;

class Taker {
 public:
  Taker(State& state, const State& other, const Comparison& comparison, const BouquetTables& bouquets)
      : state_(state), other_(other), comparison_(comparison), bouquets_(bouquets) {}

  TakeOverReport Run(const std::vector<Difference>& chosen) {
    for (const Difference& difference : chosen) {
      if (difference.Has(Mark::Renamed) || difference.Has(Mark::Retuned) || difference.Has(Mark::Modified))
        Change(difference);
    }
    report_.lost = Arrange(chosen);
    for (int slot = 1; slot <= state_.ChannelCount; ++slot) {
      const ChannelRecord& channel = state_.Channel(slot);
      if (!channel.Empty()) occupied_[Get(channel, ChannelField::Transponder)] = true;
    }
    for (const Difference& difference : chosen) {
      if (difference.Has(Mark::OnlyThere)) Add(difference.there);
    }
    CanaliXTransponder(state_);
    return report_;
  }

 private:
  // The other list's channel, linked to its transponder here; nothing where that finds no slot. `current` is the
  // transponder to keep when it is the same one, 0 for none.
  std::optional<ChannelRecord> Linked(int there, int current) {
    ChannelRecord channel = other_.Channel(there);
    if (!HasTransponder(other_, channel)) {
      // It must not come upon a transponder that it never had, or on one that takes a free slot later.
      const bool inTable =
          static_cast<int>(Get(channel, ChannelField::Transponder)) <= state_.TransponderCount;
      if (inTable) Set(channel, ChannelField::Transponder, 0);
      return channel;
    }
    const TransponderRecord wanted = Wanted(channel);
    int slot = current;
    if (current == 0 || !SameTransponder(state_.Transponder(current).record, wanted)) {
      const TransponderSlot found = FindOrAddTransponder(state_, wanted);
      if (found.added) NameBouquet(state_.Transponder(found.slot), bouquets_);
      slot = found.slot;
    }
    if (slot == 0) return std::nullopt;
    Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(slot));
    return channel;
  }

  [[nodiscard]] TransponderRecord Wanted(const ChannelRecord& theirs) const {
    TransponderRecord wanted = other_.Transponder(Get(theirs, ChannelField::Transponder)).record;
    const auto code = RecodedRate(other_.SymbolRateTable, state_.SymbolRateTable,
                                  Get(wanted, TransponderField::SymbolRate));
    Set(wanted, TransponderField::SymbolRate, static_cast<std::uint32_t>(code));
    return wanted;
  }

  void Change(const Difference& difference) {
    ChannelRecord& mine = state_.Channel(difference.here);
    const int current =
        HasTransponder(state_, mine) ? static_cast<int>(Get(mine, ChannelField::Transponder)) : 0;
    const auto channel = Linked(difference.there, current);
    if (!channel) {
      ++report_.noTransponder;
      return;
    }
    mine = *channel;
    ++report_.changed;
    const ChannelRecord& theirs = other_.Channel(difference.there);
    if (HasTransponder(other_, theirs)) Update(Get(mine, ChannelField::Transponder), Wanted(theirs));
  }

  // A transponder's data go for all its channels: without them the one taken over would still be another. Those that
  // the first channel brings stay, where the other list has several within 3 MHz.
  void Update(std::size_t slot, const TransponderRecord& wanted) {
    using namespace TransponderField;
    TransponderRow& row = state_.Transponder(slot);
    TransponderRecord updated = row.record;
    for (const auto& field : {SymbolRate, Fec, Tid, Nid}) Set(updated, field, Get(wanted, field));
    if (Get(updated, HighBand) != Get(wanted, HighBand)) {
      for (const auto& field : {Frequency, HighBand}) Set(updated, field, Get(wanted, field));
    }
    if (row.record == updated || updated_[slot]) return;
    row.record = updated;
    NameBouquet(row, bouquets_);
    updated_[slot] = true;
    ++report_.updated;
  }

  // The data of a transponder that no channel was on are nobody's: they may be long out of date.
  void UpdateUnoccupied(int there, std::size_t slot) {
    const ChannelRecord& theirs = other_.Channel(there);
    if (HasTransponder(other_, theirs) && !occupied_[slot]) Update(slot, Wanted(theirs));
    occupied_[slot] = true;
  }

  // Takes the chosen channels out that are only here, and puts each moved one behind the channel that it follows in the
  // other list, the moved ones left out.
  std::vector<LostFavourite> Arrange(const std::vector<Difference>& chosen) {
    PerChannel<bool> leaves;
    PerChannel<bool> moves;
    for (const Difference& difference : chosen) {
      if (difference.Has(Mark::OnlyHere) || difference.Has(Mark::Moved)) leaves[difference.here] = true;
      if (difference.Has(Mark::Moved)) moves[difference.here] = true;
    }
    if (leaves == PerChannel<bool>{}) return {};
    report_.moved = moves.Count(true);
    report_.deleted = leaves.Count(true) - report_.moved;

    const PerChannel<std::vector<int>> behind = Followers(moves);
    SlotMap map = SameSlots();
    int next = 1;
    for (int slot = 0; slot <= state_.ChannelCount; ++slot) {
      if (slot > 0 && !leaves[slot]) map[slot] = next++;
      if (slot > 0 && leaves[slot] && !moves[slot]) map[slot] = 0;
      for (const int moved : behind[slot]) map[moved] = next++;
    }
    return Rearrange(state_, map);
  }

  // For each channel that stays, slot 0 for the list's head, the moved ones that come behind it, in the other's order.
  [[nodiscard]] PerChannel<std::vector<int>> Followers(const PerChannel<bool>& moves) const {
    SlotMap here{};
    for (int slot = 1; slot <= LastChannelSlot; ++slot) here[comparison_.there[slot]] = slot;
    PerChannel<std::vector<int>> behind;
    int last = 0;
    for (int there = 1; there <= LastChannelSlot; ++there) {
      const int slot = here[there];
      if (slot == 0) continue;
      if (comparison_.fixed[slot]) last = slot;
      if (moves[slot]) behind[last].push_back(slot);
    }
    return behind;
  }

  void Add(int there) {
    int slot = LastOccupied(state_) + 1;
    if (slot > state_.ChannelCount) {
      slot = 1;
      while (slot <= state_.ChannelCount && !state_.Channel(slot).Empty()) ++slot;
    }
    if (slot > state_.ChannelCount) {
      ++report_.noRoom;
    } else if (const auto channel = Linked(there, 0)) {
      state_.Channel(slot) = *channel;
      ++report_.added;
      UpdateUnoccupied(there, Get(*channel, ChannelField::Transponder));
    } else {
      ++report_.noTransponder;
    }
  }

  State& state_;
  const State& other_;
  const Comparison& comparison_;
  const BouquetTables& bouquets_;
  std::bitset<LastTransponderSlot + 1> updated_;
  PerSlot<bool, 255> occupied_;  // with channels on it, by the number that they have
  TakeOverReport report_;
};

// Gives slots to those that have none yet: the free ones behind `last` first, then from the front on.
void Place(const std::vector<int>& slots, int last, int count, SlotMap& map, PerChannel<bool>& taken) {
  std::vector<int> free;
  for (int slot = last + 1; slot <= count; ++slot) free.push_back(slot);
  for (int slot = 1; slot <= last; ++slot) free.push_back(slot);
  std::erase_if(free, [&taken](int slot) { return taken[slot]; });
  for (std::size_t i = 0; i < slots.size(); ++i) {
    map[slots[i]] = free[i];
    taken[free[i]] = true;
  }
}

}  // namespace

TakeOverReport TakeOver(State& state, const State& other, const Comparison& comparison,
                        const std::vector<Difference>& chosen, const BouquetTables& bouquets) {
  return Taker(state, other, comparison, bouquets).Run(chosen);
}

int TakeOrder(State& state, const State& other, const Comparison& comparison) {
  SlotMap map = SameSlots();
  PerChannel<bool> taken;
  std::vector<int> rest;   // channels without a number of the other list
  std::vector<int> empty;  // a favourites entry on an empty slot goes on naming one
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const int there = comparison.there[slot];
    if (state.Channel(slot).Empty()) {
      empty.push_back(slot);
    } else if (there == 0 || there > state.ChannelCount) {
      rest.push_back(slot);
    } else {
      map[slot] = there;
      taken[there] = true;
    }
  }
  Place(rest, std::min(LastOccupied(other), state.ChannelCount), state.ChannelCount, map, taken);
  Place(empty, 0, state.ChannelCount, map, taken);

  int moved = 0;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    if (!state.Channel(slot).Empty() && map[slot] != slot) ++moved;
  }
  Rearrange(state, map);
  return moved;
}

}  // namespace Edit
