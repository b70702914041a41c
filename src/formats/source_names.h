// The names that the list on the right has for channels of this one.
#pragma once

#include "formats/sdx_table.h"
#include "model/routines.h"

#include <map>
#include <string>

namespace Formats {

// By slot, bytes of the code page. A channel and a row are the same where SID, satellite, polarisation and, within 3 MHz,
// frequency are; of several rows the first counts.
std::map<int, std::string> NamesFrom(const SdxTable& source, const Routines::State& state);

}  // namespace Formats
