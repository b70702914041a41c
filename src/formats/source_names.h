// What the list on the right has of the channels of this one. A channel and a row are the same where SID, satellite,
// polarisation and, within 3 MHz, frequency are.
#pragma once

#include "formats/sdx_table.h"
#include "model/per_slot.h"

#include <map>
#include <string>

namespace Formats {

// By slot, bytes of the code page; of several rows the first counts.
std::map<int, std::string> NamesFrom(const SdxTable& source, const Routines::State& state);

// How much of each channel is as the source has it: 0 where it has no such service, 1 where it has, 2 with the same VPID and
// APID.
Routines::PerChannel<int> RanksBySource(const SdxTable& source, const Routines::State& state);

}  // namespace Formats
