// What came of an import. One that stops keeps what it had read.
#pragma once

#include <string>

namespace Formats {

struct ImportReport {
  std::string error;              // sentence to show; empty when the whole file was read
  bool changed = false;           // whether anything was read into the tables
  bool transpondersRead = false;  // the transponder table is the file's
  bool listRead = false;          // all channels and transponders are in, so that there is a list to work on
  int unknownRates = 0;           // transponders whose symbol rate has no code
};

}  // namespace Formats
