#include "edit/list_operations.h"

#include "base/names.h"
#include "base/text.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>

namespace Edit {
namespace {

using namespace Routines;

// Bouquet code and transponder number as one number that orders as the two texts and the number do; nothing for a
// transponder that takes no part.
constexpr std::uint32_t NoKey = 0xFFFFFFFF;

std::uint32_t SortKey(const State& state, const ChannelRecord& channel) {
  const std::uint32_t transponder = Get(channel, ChannelField::Transponder);
  if (transponder < 1 || transponder > LastTransponderSlot) return NoKey;
  const auto& code = state.Transponder(transponder).bouquetCode;
  return static_cast<std::uint32_t>(static_cast<unsigned char>(code[0])) << 16U |
         static_cast<std::uint32_t>(static_cast<unsigned char>(code[1])) << 8U | transponder;
}

// The slots of one sort key, in a ring that begins at `first`.
struct Ring {
  std::vector<int> slots;
  std::size_t first = 0;
};

// The order that a plain exchange sort leaves, equal ones included, without its n * n comparisons. Taken one channel
// at a time, that sort puts each behind the others of its key; to make room, the first of every larger key moves
// behind the last of its own. So each key is a ring, which a channel of a smaller key turns by one.
std::vector<int> ExchangeSorted(const std::vector<std::uint32_t>& keys, const std::vector<int>& slots) {
  std::vector<std::uint32_t> different = keys;
  std::sort(different.begin(), different.end());
  different.erase(std::unique(different.begin(), different.end()), different.end());

  std::vector<Ring> rings(different.size());
  std::vector<unsigned> turns(rings.size());  // that each has made and its `first` does not tell yet
  const auto settled = [&](std::size_t place) -> Ring& {
    Ring& ring = rings[place];
    if (!ring.slots.empty()) ring.first = (ring.first + turns[place]) % ring.slots.size();
    turns[place] = 0;
    return ring;
  };
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const auto place = static_cast<std::size_t>(
        std::lower_bound(different.begin(), different.end(), keys[i]) - different.begin());
    Ring& ring = settled(place);
    ring.slots.insert(ring.slots.begin() + static_cast<std::ptrdiff_t>(ring.first), slots[i]);
    ++ring.first;
    for (std::size_t larger = place + 1; larger < turns.size(); ++larger) ++turns[larger];
  }

  std::vector<int> sorted;
  for (std::size_t place = 0; place < rings.size(); ++place) {
    const Ring& ring = settled(place);
    std::rotate_copy(ring.slots.begin(), ring.slots.begin() + static_cast<std::ptrdiff_t>(ring.first),
                     ring.slots.end(), std::back_inserter(sorted));
  }
  return sorted;
}

// An empty slot, or a channel whose name begins with five blanks.
bool IsGap(const ChannelRecord& channel) {
  return channel.Empty() || Base::AsText(channel.bytes).starts_with("     ");
}

template <class Change>
void ChangeSatellites(State& state, Change change) {
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    TransponderRecord& record = state.Transponder(slot).record;
    Set(record, TransponderField::Satellite, change(Get(record, TransponderField::Satellite)));
  }
}

}  // namespace

Slots SlotRun(int first, int last) {
  Slots slots(static_cast<std::size_t>(std::max(last - first + 1, 0)));
  std::iota(slots.begin(), slots.end(), first);
  return slots;
}

bool IsRun(const Slots& slots) {
  return !slots.empty() && slots.back() - slots.front() + 1 == static_cast<int>(slots.size());
}

bool AreSlots(const State& state, const Slots& slots) {
  const bool rising = std::adjacent_find(slots.begin(), slots.end(), std::greater_equal<>()) == slots.end();
  return rising && !slots.empty() && slots.front() >= 1 && slots.back() <= state.ChannelCount;
}

std::vector<LostFavourite> Rearrange(State& state, const SlotMap& map) {
  const auto before = state.ChannelTable;
  for (int slot = 1; slot <= LastChannelSlot; ++slot) state.Channel(slot) = {};
  for (std::size_t slot = 1; slot < before.size(); ++slot) {
    if (map[slot] != 0 && !before[slot].Empty()) state.Channel(map[slot]) = before[slot];
  }
  return RenumberFavourites(state.FavouritesBlock, map);
}

std::vector<LostFavourite> DeleteSlots(State& state, const Slots& slots) {
  SlotMap map = SameSlots();
  for (const int slot : slots) {
    map[slot] = 0;
    const ChannelRecord& channel = state.Channel(slot);
    if (!channel.Empty()) AddToChannelCount(state, Get(channel, ChannelField::Transponder), -1);
  }
  int next = 1;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    if (map[slot] != 0) map[slot] = next++;
  }
  return Rearrange(state, map);
}

bool IsPosition(const State& state, int position, int count) {
  return position > 0 && position + count <= state.ChannelCount;
}

std::vector<int> PushedOut(const State& state, int position, int count) {
  std::vector<int> slots;
  for (int slot = std::max(position, state.ChannelCount - count + 1); slot <= state.ChannelCount; ++slot) {
    if (!state.Channel(slot).Empty()) slots.push_back(slot);
  }
  return slots;
}

std::vector<LostFavourite> ShiftDown(State& state, int position, int count) {
  for (const int slot : PushedOut(state, position, count))
    AddToChannelCount(state, Get(state.Channel(slot), ChannelField::Transponder), -1);
  SlotMap map = SameSlots();
  for (int slot = position; slot <= state.ChannelCount; ++slot)
    map[slot] = slot + count <= state.ChannelCount ? slot + count : 0;
  return Rearrange(state, map);
}

Base::Result<std::vector<LostFavourite>> MakeRoom(State& state, int position, int count) {
  const int last = LastOccupied(state);
  if (last >= position && last + count > state.ChannelCount) return Base::Error{std::string(InvalidPosition)};
  return ShiftDown(state, position, count);
}

std::vector<LostFavourite> OrdinaPerBouquet(State& state, int start) {
  const int last = LastOccupied(state);
  std::vector<std::uint32_t> keys;
  std::vector<int> places;
  SlotMap map = SameSlots();
  for (int slot = start; slot <= last; ++slot) {
    const std::uint32_t key = SortKey(state, state.Channel(slot));
    map[slot] = 0;
    if (state.Channel(slot).Empty() || key == NoKey) continue;
    keys.push_back(key);
    places.push_back(slot);
  }
  const std::vector<int> sorted = ExchangeSorted(keys, places);

  // What stands in each slot after the sort; the gaps are then closed over it.
  SlotMap order = SameSlots();
  for (std::size_t i = 0; i < places.size(); ++i) order[places[i]] = sorted[i];
  int next = start;
  for (int slot = start; slot <= last; ++slot) {
    const int from = order[slot];
    if (!IsGap(state.Channel(from))) map[from] = next++;
  }
  return Rearrange(state, map);
}

int Azzera(State& state) {
  const int last = LastOccupied(state);
  for (int slot = 1; slot <= last; ++slot) state.Channel(slot) = {};
  for (int slot = 1; slot <= LastTransponderSlot; ++slot) state.Transponder(slot).record = {};
  return last;
}

void InvertiSatelliti(State& state) {
  ChangeSatellites(state, [](std::uint32_t satellite) { return satellite ^ 1U; });
}

void RiportaAB(State& state) {
  ChangeSatellites(state, [](std::uint32_t satellite) { return satellite & 1U; });
}

void CanaliXTransponder(State& state) {
  const auto counted = [&state](std::size_t slot) {
    return static_cast<int>(slot) <= state.TransponderCount;
  };
  for (std::size_t slot = 0; counted(slot); ++slot) {
    Set(state.Transponder(slot).record, TransponderField::ChannelCount, 0);
  }
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    const std::size_t transponder = Get(channel, ChannelField::Transponder);
    if (channel.Empty() || !counted(transponder)) continue;
    TransponderRecord& record = state.Transponder(transponder).record;
    const std::uint32_t count = Get(record, TransponderField::ChannelCount) + 1;
    if (count <= 255) Set(record, TransponderField::ChannelCount, count);
  }
}

int FindName(const State& state, std::string_view text, int from) {
  const std::string wanted = Base::UpperCase(text);
  for (int slot = from; slot <= state.ChannelCount; ++slot) {
    if (Base::UpperCase(state.Channel(slot).Name()).find(wanted) != std::string::npos) return slot;
  }
  return 0;
}

}  // namespace Edit
