// The exchange file of raw records: 30 bytes each, without separators, texts filled up with blanks.
//   "[CANALI] 0999"        then that many channel records, empty ones included
//   "[TRANSPONDERS] 57"    then that many transponder records, 12 bytes and 18 blanks
//   "[PREFERITI] 2488"     then the favourites block in pieces of 30; left out when there is no block
// The files are called texts in dialogs, but are binary.
#pragma once

#include "formats/import_report.h"
#include "model/bouquets.h"

#include <string>

namespace Formats {

Base::Bytes WriteFls(const Routines::State& state);

// Replaces channels, transponders and favourites by those in `file`, as far as it can be read.
ImportReport ReadFls(Routines::State& state, Base::ByteView file, const Routines::BouquetTables& bouquets);

}  // namespace Formats
