// The SDX table as the other side of a comparison.
#pragma once

#include "formats/sdx_table.h"
#include "model/other_list.h"

namespace Formats {

// The rows by their numbers, and behind them what is known of the list but is no row. `rates` is the symbol-rate table of
// one's own list. What a row does not say is lacking: PIDs that are absent, a rate without a code in `rates`, an automatic
// FEC; whether a channel is active, its access streams and the band of its transponder only a flash says.
Routines::OtherList OtherListOf(const SdxTable& table, const std::string& rates);

}  // namespace Formats
