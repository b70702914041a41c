#include "edit/changed_rows.h"

#include "base/bytes.h"

#include <string_view>
#include <unordered_map>

namespace Edit {
namespace {

using Routines::LastChannelSlot;

// A run of slots, both ends included; none where the last is smaller.
struct Part {
  int first = 0;
  int last = 0;
};

// The slots of a part of the list whose channel a part of another one does not have, or not as often.
Slots OnlyIn(const State& state, Part part, const State& other, Part otherPart) {
  std::unordered_map<std::string_view, int> there;
  for (int slot = otherPart.first; slot <= otherPart.last; ++slot)
    ++there[Base::AsText(other.Channel(slot).bytes)];
  Slots slots;
  for (int slot = part.first; slot <= part.last; ++slot) {
    const auto& channel = state.Channel(slot);
    if (!channel.Empty() && there[Base::AsText(channel.bytes)]-- <= 0) slots.push_back(slot);
  }
  return slots;
}

}  // namespace

// Only what lies between a common beginning and a common end is looked at: of channels that a list has more than once it
// is the right one that came back.
Slots ChannelsToShow(const State& before, const State& after) {
  int first = 1;
  while (first <= LastChannelSlot && before.Channel(first) == after.Channel(first)) ++first;
  if (first > LastChannelSlot) return {};
  Part was{first, Routines::LastUsedChannel(before)};
  Part is{first, Routines::LastUsedChannel(after)};
  while (was.last >= was.first && is.last >= is.first && before.Channel(was.last) == after.Channel(is.last)) {
    --was.last;
    --is.last;
  }
  Slots slots = OnlyIn(after, is, before, was);
  if (!slots.empty()) return slots;
  if (was.last != is.last || !OnlyIn(before, was, after, is).empty()) return {first};
  for (int slot = is.first; slot <= is.last; ++slot)
    if (before.Channel(slot) != after.Channel(slot)) slots.push_back(slot);
  return slots;
}

Slots TranspondersToShow(const State& before, const State& after) {
  Slots slots;
  for (int slot = 1; slot <= Routines::LastTransponderSlot; ++slot)
    if (before.Transponder(slot) != after.Transponder(slot)) slots.push_back(slot);
  return slots;
}

}  // namespace Edit
