// The program's own text format: a whole list, one record a line in fixed columns, to be edited by hand and loaded
// again. Three sections, lines ended by CR LF, bytes of the code page:
//   [CANALI] 0999          a line for every used slot            [END CANALI] 0999
//   [TRANSPONDERS] 0120    a line for every transponder in use   [END TRANSPONDERS] 0120
//   [PREFERITI]            "00| Name" and a line for each entry, eight times       [END PREFERITI]
#pragma once

#include "formats/import_report.h"
#include "model/bouquets.h"

#include <string>
#include <string_view>

namespace Formats {

std::string WriteText(const Routines::State& state);

// What of the list such a text would not give back when it is read.
CodingChanges CodingsLostAsText(const Routines::State& state);

// Replaces the list by the one in `text`, as far as it can be read. `fileName` stands in messages. The state's
// symbol-rate table gives the rates their codes.
ImportReport ReadText(Routines::State& state, std::string_view text, const std::string& fileName,
                      const Routines::BouquetTables& bouquets);

}  // namespace Formats
