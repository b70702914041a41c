// The lists that are measured: as large as the receiver's tables, with names, bouquets and favourites.
#pragma once

#include "model/bouquets.h"

#include <memory>
#include <string>

namespace Bench {

inline constexpr int Channels = Routines::LastChannelSlot;
inline constexpr int Transponders = Routines::LastTransponderSlot;

// A flash image that is full: 3996 channels on 254 transponders, eight favourites lists.
Base::Bytes Image();

// The program's own default bouquets.
const Routines::BouquetTables& Bouquets();

// What such an image loads as.
std::unique_ptr<Routines::State> List();

// A SatcoDX list of 100,000 lines, 4000 of them services that the default options take.
std::string SatcodxText();

// A channels.conf of 100,000 lines as a scan of four satellites leaves it, ten services a transponder. Of those of 13.0E four in a hundred
// are in DVB-S and free, six encrypted; all others are in DVB-S2.
std::string ChannelsConf();

// A lamedb 4 of services in DVB-S at 13.0E, twenty a transponder, with all their PIDs.
inline constexpr int LamedbServices = 20000;
std::string LamedbText();

}  // namespace Bench
