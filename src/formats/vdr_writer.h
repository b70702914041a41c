// The list as channels.conf of a video disk recorder (see vdr_channels.h), for a computer that takes over from a receiver.
#pragma once

#include "model/routines.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace Formats {

struct VdrText {
  std::string text;       // UTF-8, lines end with LF
  std::set<int> unknown;  // satellites (0 is A) that have no source; their channels are left out
  int leftOut = 0;  // channels that cannot be tuned to: their transponder is missing or has no symbol rate
};

// The channels of some slots, each with its transponder. `sources` are those of the satellites: "S13.0E".
VdrText WriteVdrChannels(const Routines::State& state, const std::vector<int>& slots,
                         const std::map<int, std::string>& sources);

}  // namespace Formats
