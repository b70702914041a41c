#include "edit/changed_rows.h"

#include "base/bytes.h"

#include <string_view>
#include <unordered_map>

namespace Edit {
namespace {

using Routines::LastChannelSlot;

// The slots of a part of the list whose channel a part of another one does not have, or not as often.
std::vector<int> OnlyIn(const State& state, Slots part, const State& other, Slots otherPart) {
  std::unordered_map<std::string_view, int> there;
  for (int slot = otherPart.first; slot <= otherPart.last; ++slot)
    ++there[Base::AsText(other.Channel(slot).bytes)];
  std::vector<int> slots;
  for (int slot = part.first; slot <= part.last; ++slot) {
    const auto& channel = state.Channel(slot);
    if (!channel.Empty() && there[Base::AsText(channel.bytes)]-- <= 0) slots.push_back(slot);
  }
  return slots;
}

}  // namespace

// Only what lies between a common beginning and a common end is looked at: of channels that a list has more than once it
// is the right one that came back.
std::vector<int> ChannelsToShow(const State& before, const State& after) {
  int first = 1;
  while (first <= LastChannelSlot && before.Channel(first) == after.Channel(first)) ++first;
  if (first > LastChannelSlot) return {};
  Slots was{first, Routines::LastUsedChannel(before)};
  Slots is{first, Routines::LastUsedChannel(after)};
  while (was.Count() > 0 && is.Count() > 0 && before.Channel(was.last) == after.Channel(is.last)) {
    --was.last;
    --is.last;
  }
  std::vector<int> slots = OnlyIn(after, is, before, was);
  if (!slots.empty()) return slots;
  if (was.last != is.last || !OnlyIn(before, was, after, is).empty()) return {first};
  for (int slot = is.first; slot <= is.last; ++slot)
    if (before.Channel(slot) != after.Channel(slot)) slots.push_back(slot);
  return slots;
}

std::vector<int> TranspondersToShow(const State& before, const State& after) {
  std::vector<int> slots;
  for (int slot = 1; slot <= Routines::LastTransponderSlot; ++slot)
    if (before.Transponder(slot) != after.Transponder(slot)) slots.push_back(slot);
  return slots;
}

Slots FirstRun(const std::vector<int>& slots) {
  if (slots.empty()) return {1, 0};
  Slots run{slots[0], slots[0]};
  for (const int slot : slots)
    if (slot == run.last + 1) run.last = slot;
  return run;
}

}  // namespace Edit
