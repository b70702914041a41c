// The channel list for spreadsheets, read back after somebody has worked on it in one. What the spreadsheet did to it is
// undone: other separators and encodings, quotation marks, decimal marks and zeros lost in front. A row with a cell that
// cannot be read is left out and told.
#pragma once

#include "base/result.h"
#include "model/other_list.h"

#include <string_view>

namespace Formats {

struct CsvChannels {
  // The rows by their numbers ("Prog."), those without one behind them. What has no column is lacking.
  Routines::OtherList list;
  // "riga 12, VPID: «abc»", UTF-8, for each row left out. Its channel stands in the list as it was; where a row does not say
  // which it is, no channel counts as gone.
  std::vector<std::string> faults;
};

// `text` is lines of the code page; a title of the file's first line names each column, in any order. `state` is one's own
// list: its symbol rates have the codes, and the number of a transponder is one of its own. An error where the file has no
// such titles.
Base::Result<CsvChannels> ReadChannelsCsv(std::string_view text, const Routines::State& state);

}  // namespace Formats
