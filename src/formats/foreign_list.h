// Channel lists of other programs as rows of the SDX table.
#pragma once

#include "formats/foreign_layout.h"
#include "formats/sdx_table.h"

#include <limits>

namespace Formats {

// Why a line gave no row.
enum class Drop { NoName, NoFrequency, BadFrequency, BadPolarisation, BadNumber };

struct ForeignList {
  SdxTable table;                // lines read: blank ones and the header do not count
  std::array<int, 5> dropped{};  // lines by reason, in the order of Drop

  // "senza nome 3, numero non valido 1"; empty when nothing was dropped.
  [[nodiscard]] std::string DropsText() const;
};

// `text` is lines of the code page. A column that the layout lacks leaves vertical polarisation, no symbol rate, automatic
// FEC and absent numbers. Ends with the 4001st line that would be a row, or after `mostLines` lines.
ForeignList ReadForeign(std::string_view text, const ForeignLayout& layout, int satellite,
                        int mostLines = std::numeric_limits<int>::max());

}  // namespace Formats
