// Which channels of two lists are the same one.
#pragma once

#include "model/other_list.h"
#include "model/per_slot.h"

namespace Review {

// The channels of both lists.
struct Pairs {
  Routines::SlotMap there{};  // by slot here
  std::vector<int> here;      // by number there
};

Pairs PairsOf(const Routines::OtherList& here, const Routines::OtherList& there);

// The most channels that are in the same order in both lists: the longest run of rising numbers there. All the others
// are moved, so that one channel put in at the top moves none. Numbers above `last` have no place in an order.
Routines::PerChannel<bool> InSameOrder(const Routines::SlotMap& there, int last);

}  // namespace Review
