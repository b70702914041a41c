// What a user looks for once a step has been taken back or done again.
#pragma once

#include "edit/list_operations.h"

namespace Edit {

// The slots of the channels that `before` did not have or that were different there; where none is, as after a deletion
// done again, the first slot that changed; where channels have only changed places, all slots that did.
Slots ChannelsToShow(const State& before, const State& after);

// The slots of the transponders that are others than before.
Slots TranspondersToShow(const State& before, const State& after);

}  // namespace Edit
