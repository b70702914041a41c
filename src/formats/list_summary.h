// What a list of today has in it, for the questions that are asked before its services become rows.
#pragma once

#include "formats/listed_service.h"
#include "model/routines.h"

#include <map>

namespace Formats {

struct ListSummary {
  int services = 0;              // that a satellite brings
  int withoutPosition = 0;       // of these
  std::map<int, int> positions;  // services by position, in tenths of a degree
  std::map<int, int> codings;    // services by the receiver's coding byte
  // Each once by position, frequency and polarisation, in the order of their first services.
  std::vector<ListedTransponder> transponders;
};

ListSummary SummaryOf(ServiceReader& reader);

// The satellite of the loaded list (0 is A) that each position seems to be: most of its transponders are the position's, or
// most of the position's, if there are some, are the satellite's; and neither has more in common with another. A position that
// is none of the list's has no entry.
std::map<int, int> ProposedSatellites(const Routines::State& state,
                                      const std::vector<ListedTransponder>& transponders);

// Whether a satellite of the loaded list looks like another one than that of the transponders: it has some, and no more than
// half of them, nor of these, are both.
bool LooksLikeAnother(const Routines::State& state, const std::vector<ListedTransponder>& transponders,
                      int satellite);

}  // namespace Formats
