// Moving some channels of the list to other slots. No channel goes away, and favourites follow all of them.
#pragma once

#include "edit/list_operations.h"

namespace Edit {

// Gathers channels so that the first of them stands in slot `to`, which is clamped so that all have room; the others
// close up around them, each in its order. Returns where the first one is.
int MoveChannels(State& state, const Slots& slots, int to);

// The slot to move to so that they stand in front of what is in slot `before` now, or behind the list's last slot.
int TargetBefore(const Slots& slots, int before);

// Moves each one up (-1) or down (1), past the channels that stay. Those at the list's end in the way of the others
// hold all of them back: false, with nothing changed.
bool StepChannels(State& state, const Slots& slots, int step);

void SwapChannels(State& state, int one, int other);

// The channels of some slots close up over the empty ones among them, which are the last of them then; no other
// channel moves. Entries on those empty slots are taken out.
std::vector<LostFavourite> CloseGaps(State& state, const Slots& slots);

struct InsertedRows {
  Slots rows;
  std::vector<LostFavourite> lost;  // entries on empty slots that were pushed out
};

// Puts an empty row in front of each run of slots for every slot in it. InvalidPosition, with nothing changed, where
// that would push a channel past the channel count.
Base::Result<InsertedRows> InsertEmpty(State& state, const Slots& slots);

}  // namespace Edit
