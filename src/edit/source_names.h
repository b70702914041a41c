// The names that the list on the right has for channels of this one.
#pragma once

#include "edit/rename.h"
#include "formats/sdx_table.h"

namespace Edit {

// A channel and a row are the same where SID, satellite, polarisation and, within 3 MHz, frequency are; of several rows
// the first counts. The tables are read here and now and not kept. Nothing for an empty table.
SourceName NamesOf(const Routines::State& state, const Formats::SdxTable& source);

}  // namespace Edit
