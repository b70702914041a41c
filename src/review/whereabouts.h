// Where a channel stands: on which transponder, in which favourites lists, and where else it is in the list.
#pragma once

#include "model/routines.h"

#include <string>
#include <vector>

namespace Review {

// "11766 V SAT A, SR 27500, FEC 3/4, bouquet Rai", or that it is missing; UTF-8.
std::string TransponderText(const Routines::State& state, int transponder);

// "0012 RAI 1: 11766 V SAT A, SR 27500, FEC 3/4, bouquet Rai; preferiti Cinema, Sport; doppi 45, 300"; UTF-8. An empty slot
// is "0012 posto vuoto". `doubles` are the groups of channels that are there more than once.
std::string Whereabouts(const Routines::State& state, int slot, const std::vector<std::vector<int>>& doubles);

}  // namespace Review
