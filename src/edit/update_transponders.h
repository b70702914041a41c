// Bringing the transponders of the list up to date by what a check against a list of today has found.
#pragma once

#include "model/bouquets.h"
#include "review/transponder_check.h"

namespace Edit {

struct TransponderReport {
  int added = 0;
  int changed = 0;
  int removed = 0;
  int joined = 0;       // doubled ones whose channels are on the other one now
  int noSlot = 0;       // missing ones without a free slot
  int unknownRate = 0;  // left alone: the symbol-rate table does not have their rate
  int inUse = 0;        // not removed: channels are on them

  [[nodiscard]] int Done() const { return added + changed + removed + joined; }
};

// `chosen` are some of the findings of the state. Missing ones go on `satellite` (0 for A) into free slots, named by their
// bouquet and without channels; changed ones get rate and FEC; those that are listed no more leave their slot free, and so do
// doubled ones, whose channels go to the first. Slots that become free are taken by missing ones in the same go.
TransponderReport UpdateTransponders(Routines::State& state,
                                     const std::vector<Review::TransponderFinding>& chosen, int satellite,
                                     const Routines::BouquetTables& bouquets);

// The slots of the channels on a transponder; none for 0, which is none.
std::vector<int> ChannelsOn(const Routines::State& state, int transponder);

}  // namespace Edit
