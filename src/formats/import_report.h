// What came of an import. One that stops keeps what it had read.
#pragma once

#include "base/result.h"

namespace Formats {

struct ImportReport {
  Base::Outcome whole = Base::Done{};  // whether the whole file was read, or what to say
  bool changed = false;                // whether anything was read into the tables
  bool transpondersRead = false;       // the transponder table is the file's
  bool listRead = false;  // all channels and transponders are in, so that there is a list to work on
  int channelsRead = 0;   // by an import of a whole list
  int unknownRates = 0;   // transponders whose symbol rate has no code
};

}  // namespace Formats
