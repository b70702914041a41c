#include "edit/regroup.h"

#include "edit/list_operations.h"

namespace Edit {

using namespace Routines;

Regrouped Regroup(State& state, int start) {
  std::vector<int> television;
  std::vector<int> radio;
  std::vector<int> services;
  SlotMap map = SameSlots();
  const int last = LastOccupied(state);
  for (int slot = start; slot <= last; ++slot) {
    map[static_cast<std::size_t>(slot)] = 0;
    const ChannelRecord& channel = state.Channel(slot);
    const ChannelKind kind = KindOf(channel);
    if (kind == ChannelKind::Empty) continue;
    const bool service = kind == ChannelKind::Service || Get(channel, ChannelField::Sid) == 0;
    (service ? services : kind == ChannelKind::Radio ? radio : television).push_back(slot);
  }
  int next = start;
  for (const auto* kind : {&television, &radio, &services}) {
    for (const int slot : *kind) map[static_cast<std::size_t>(slot)] = next++;
  }
  return {static_cast<int>(television.size()), static_cast<int>(radio.size()),
          static_cast<int>(services.size()), Rearrange(state, map)};
}

}  // namespace Edit
