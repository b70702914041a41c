// Channels that are in the list more than once.
#pragma once

#include "model/per_slot.h"

#include <vector>

namespace Review {

// What makes two channels the same.
struct DuplicateRules {
  bool service = true;  // satellite, TID, NID and SID
  bool streams = true;  // transponder, SID, VPID and APID; 0 and 65535 are both no stream
  bool name = false;    // whatever its case; padding blanks do not count
  // The name without HD, SD and +1: to look at them side by side, as no channel can go for it.
  bool bareName = false;
};

// Groups of two or more slots, in the order of their first ones, the slots of each in ascending order. A channel is in
// one group at most: groups of different rules that share a channel are one. Empty slots and channels whose transponder
// is missing are in none.
std::vector<std::vector<int>> FindDuplicates(const Routines::State& state, const DuplicateRules& rules);

// The slots of the groups that can go: each is the same as an earlier one of its group that stays. Of two
// that only a third one joins both stay when that one goes.
std::vector<int> Surplus(const Routines::State& state, const DuplicateRules& rules,
                         const std::vector<std::vector<int>>& groups);

// By what the channel of a group that is to stay is known.
enum class KeepBy {
  Active,
  Favourite,  // it is in some favourites list
  Free        // its coding names none
};
// 1 for each channel that has it, else 0.
Routines::PerChannel<int> KeepRanks(const Routines::State& state, KeepBy by);

// The slots of the groups that can go so that those of the highest rank stay: each has a lower one and is the same as one
// that stays. A group in which all have rank 0 keeps all.
std::vector<int> SurplusByRank(const Routines::State& state, const DuplicateRules& rules,
                               const std::vector<std::vector<int>>& groups,
                               const Routines::PerChannel<int>& ranks);

}  // namespace Review
