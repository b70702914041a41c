// Lists that are made of rows instead of a receiver's tables.
#pragma once

#include "cli/program.h"
#include "formats/sdx_table.h"
#include "model/other_list.h"
#include "model/routines.h"

#include <map>
#include <memory>

namespace Cli {

// A list without channels that has room for as many.
std::unique_ptr<Routines::State> EmptyList(const Work& work, int capacity);

// That list with the channels of another one, in its numbers.
std::unique_ptr<Routines::State> Filled(Work& work, std::unique_ptr<Routines::State> list,
                                        const Routines::OtherList& other);

// That list with each row in the slot of its number. Notes the rows that find no place.
std::unique_ptr<Routines::State> Filled(Work& work, std::unique_ptr<Routines::State> list,
                                        const Formats::SdxTable& rows);

// The satellites that are asked for: those of positions in tenths of a degree, and the one of all rows, -1 where there is
// none. Nothing where one makes no sense, which is noted.
struct AskedSatellites {
  std::map<int, int> positions;
  int all = -1;
};
std::optional<AskedSatellites> SatellitesAsked(Work& work);

}  // namespace Cli
