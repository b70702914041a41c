// Importing a whole list in the place of what is loaded, by whichever reader its format has.
#pragma once

#include "formats/import_report.h"
#include "model/routines.h"

#include <functional>
#include <string>

namespace Formats {

using ListReader = std::function<ImportReport(Routines::State&)>;

// A list whose channels and transponders were all read has the tables to itself; of one that breaks off before, they
// keep what `read` leaves among what they had. Either way the channel count reaches every channel that is in the table:
// one that no view shows would be written into a receiver all the same. `symbolRates` is the table that the
// transponders' rates are read with.
ImportReport ImportList(Routines::State& state, const std::string& symbolRates, const ListReader& read);

// "importati 7 canali, 1 transponder con SR che SR.INI non ha", of a list that was read; UTF-8.
std::string TextOf(const ImportReport& report);

}  // namespace Formats
