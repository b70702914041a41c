// The lists that are measured: as large as the receiver's tables, with names, bouquets and favourites.
#pragma once

#include "model/bouquets.h"

#include <memory>
#include <string>

namespace Bench {

inline constexpr int Channels = Routines::LastChannelSlot;
inline constexpr int Transponders = Routines::LastTransponderSlot;

// A flash image with `channels` channels on 254 transponders, and eight full favourites lists.
Base::Bytes Image(int channels = Channels);

// The program's own default bouquets.
const Routines::BouquetTables& Bouquets();

// What such an image loads as.
std::unique_ptr<Routines::State> List(int channels = Channels);

// A SatcoDX list; `taken` of its lines are services that the default options take.
std::string SatcodxText(int lines, int taken);

}  // namespace Bench
