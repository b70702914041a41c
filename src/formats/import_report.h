// What came of an import. One that stops keeps what it had read.
#pragma once

#include "base/result.h"

namespace Formats {

// What the text format does to channels' coding bytes: of those with letters it takes back one alone, and that of a
// channel that is not active is left out.
struct CodingChanges {
  int inactive = 0;  // channels that are no longer active
  int codings = 0;   // other changes

  // "36 canali diventano non attivi, 41 codifiche cambiate"; empty where nothing changes.
  [[nodiscard]] std::string Text() const;
};

struct ImportReport {
  Base::Outcome whole = Base::Done{};  // whether the whole file was read, or what to say
  bool changed = false;                // whether anything was read into the tables
  bool transpondersRead = false;       // the transponder table is the file's
  bool listRead = false;  // all channels and transponders are in, so that there is a list to work on
  int channelsRead = 0;   // by an import of a whole list
  int unknownRates = 0;   // transponders whose symbol rate has no code
  CodingChanges codings;  // beside what the file's lines say
};

}  // namespace Formats
