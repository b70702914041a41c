// Channel lists of other programs as rows of the SDX table.
#pragma once

#include "formats/foreign_layout.h"
#include "formats/sdx_table.h"

#include <limits>

namespace Formats {

// `text` is lines of the code page. A column that the layout lacks leaves vertical polarisation, no symbol rate, automatic
// FEC and absent numbers. Blank lines and the header do not count. Ends with the 4001st line that would be a row, or after
// `mostLines` lines.
SdxTable ReadForeign(std::string_view text, const ForeignLayout& layout, int satellite,
                     int mostLines = std::numeric_limits<int>::max());

}  // namespace Formats
