// Taking over what another list has, channel by channel or its order as a whole. The other list is only read.
#pragma once

#include "edit/renumber.h"
#include "model/bouquets.h"
#include "review/compare.h"

namespace Edit {

using Review::Comparison;
using Review::Difference;
using Routines::State;

struct TakeOverReport {
  int added = 0;
  int deleted = 0;
  int changed = 0;  // channels that have the other's name and data now
  int moved = 0;
  int updated = 0;        // transponders that have the other's data now, for all their channels
  int noRoom = 0;         // channels that were not added: the list is full
  int noTransponder = 0;  // channels left alone: no slot is free for their transponder
  std::vector<LostFavourite> lost;
};

// `chosen` are some of the differences between `state` and `other`. Channels only there go behind the last one, and into
// the empty slots from the front on when that is full; channels only here are deleted; changed ones become the other's
// channel; moved ones go behind the channel that they follow there. A transponder gets the other's data with a changed
// channel, and with a new one where no other channel is on it. Counts of the transponders are brought up to date.
TakeOverReport TakeOver(State& state, const State& other, const Comparison& comparison,
                        const std::vector<Difference>& chosen, const Routines::BouquetTables& bouquets);

// Gives the channels of both lists the numbers that they have in the other one, as far as this list reaches. The others
// come behind its last channel in their present order, and into the empty slots from the front on when that is full.
// Returns how many channels have another number now.
int TakeOrder(State& state, const State& other, const Comparison& comparison);

}  // namespace Edit
