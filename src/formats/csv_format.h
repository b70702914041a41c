// Lists for spreadsheets: one row a line, fields divided by semicolons as an Italian spreadsheet expects them, lines
// ended by CR LF, UTF-8 with a byte-order mark. A field that a spreadsheet would take for a formula
// or a date is written so that it stays a text.
#pragma once

#include "model/routines.h"

#include <string>
#include <string_view>
#include <vector>

namespace Formats {

// The channels in some slots of the list, each with the transponder it is on; empty slots are left out.
std::string WriteChannelsCsv(const Routines::State& state, const std::vector<int>& slots);

// The transponders in some slots; free ones are left out.
std::string WriteTranspondersCsv(const Routines::State& state, const std::vector<int>& slots);

// Whether a spreadsheet would take the text, which begins with no blank, for a formula or a date.
bool NeedsApostrophe(std::string_view text);

}  // namespace Formats
