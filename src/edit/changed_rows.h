// What a user looks for once a step has been taken back or done again.
#pragma once

#include "edit/list_operations.h"

#include <vector>

namespace Edit {

// The slots of the channels that `before` did not have or that were different there; where none is, as after a deletion
// done again, the first slot that changed; where channels have only changed places, all slots that did.
std::vector<int> ChannelsToShow(const State& before, const State& after);

// The slots of the transponders that are others than before.
std::vector<int> TranspondersToShow(const State& before, const State& after);

// The first of some rising slots and those that follow it without a gap; none of none.
Slots FirstRun(const std::vector<int>& slots);

}  // namespace Edit
