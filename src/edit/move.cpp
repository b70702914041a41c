#include "edit/move.h"

#include <algorithm>

namespace Edit {
namespace {

bool Has(const Slots& slots, int slot) { return std::binary_search(slots.begin(), slots.end(), slot); }

int Before(const Slots& slots, int slot) {
  return static_cast<int>(std::lower_bound(slots.begin(), slots.end(), slot) - slots.begin());
}

}  // namespace

int MoveChannels(State& state, const Slots& slots, int to) {
  const int count = static_cast<int>(slots.size());
  to = std::clamp(to, 1, state.ChannelCount - count + 1);
  SlotMap map = SameSlots();
  int moved = to;
  int other = 1;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    if (Has(slots, slot)) {
      map[slot] = moved++;
    } else {
      if (other == to) other += count;
      map[slot] = other++;
    }
  }
  Rearrange(state, map);
  return to;
}

int TargetBefore(const Slots& slots, int before) { return before - Before(slots, before); }

bool StepChannels(State& state, const Slots& slots, int step) {
  const int end = step < 0 ? slots.front() : slots.back();
  if (end + step < 1 || end + step > state.ChannelCount) return false;
  SlotMap map = SameSlots();
  for (const int slot : slots) map[slot] = slot + step;
  // A channel that stays goes behind the whole run that comes to its place.
  for (std::size_t i = 0, run = 0; i < slots.size(); ++i) {
    if (i + 1 < slots.size() && slots[i + 1] == slots[i] + 1) continue;
    if (step < 0) {
      map[slots[run] - 1] = slots[i];
    } else {
      map[slots[i] + 1] = slots[run];
    }
    run = i + 1;
  }
  Rearrange(state, map);
  return true;
}

void SwapChannels(State& state, int one, int other) {
  SlotMap map = SameSlots();
  std::swap(map[one], map[other]);
  Rearrange(state, map);
}

std::vector<LostFavourite> CloseGaps(State& state, const Slots& slots) {
  SlotMap map = SameSlots();
  auto next = slots.begin();
  for (const int slot : slots) map[slot] = state.Channel(slot).Empty() ? 0 : *next++;
  if (next == slots.end()) return {};
  return Rearrange(state, map);
}

Base::Result<InsertedRows> InsertEmpty(State& state, const Slots& slots) {
  Slots fronts;  // the slot that each new row is put in front of
  for (std::size_t i = 0; i < slots.size(); ++i)
    fronts.push_back(i > 0 && slots[i] == slots[i - 1] + 1 ? fronts.back() : slots[i]);
  const auto moved = [&](int slot) {
    return slot + static_cast<int>(std::upper_bound(fronts.begin(), fronts.end(), slot) - fronts.begin());
  };
  if (moved(LastOccupied(state)) > state.ChannelCount) return Base::Error{std::string(InvalidPosition)};
  SlotMap map = SameSlots();
  for (int slot = 1; slot <= state.ChannelCount; ++slot)
    map[slot] = moved(slot) <= state.ChannelCount ? moved(slot) : 0;
  InsertedRows inserted{{}, Rearrange(state, map)};
  for (std::size_t i = 0; i < fronts.size(); ++i) {
    if (const int row = fronts[i] + static_cast<int>(i); row <= state.ChannelCount)
      inserted.rows.push_back(row);
  }
  return inserted;
}

}  // namespace Edit
