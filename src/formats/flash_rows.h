// The channels of a second flash as rows of the SDX table, from where they are carried over one by one.
#pragma once

#include "base/bytes.h"
#include "formats/sdx_table.h"
#include "model/bouquets.h"

namespace Formats {

// `image` has FlashSize bytes; all its channels are read, a receiver's second copy of its list left out. `symbolRates`
// is the table that gives the codes of its transponders their rates. Channels are dropped for NoTransponder where the image
// does not say where they are received.
SdxTable ReadFlashRows(Base::ByteView image, std::string_view symbolRates,
                       const Routines::BouquetTables& bouquets);

}  // namespace Formats
