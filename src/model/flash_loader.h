// Reading a flash image into the tables, in place of what is loaded or behind it.
#pragma once

#include "model/bouquets.h"
#include "model/flash_image.h"
#include "model/routines.h"

#include <string>
#include <vector>

namespace Routines {

struct LoadReport {
  int channelsRead = 0;           // taken from the image, empty slots not counted
  int channelsInImage = 0;        // held by the image; a section that repeats the first one is not counted
  std::vector<int> stranded;      // slots of loaded channels whose transponder lies past TransponderCount
  int unplacedTransponders = 0;   // of an append, that found no slot
  std::vector<int> linkedToLast;  // slots of their channels, which are on the last transponder now
  bool repeats = false;           // some were taken from a section that repeats the first one
  std::vector<std::string> messages;  // to be shown, in this order
};

// `image` has FlashSize bytes, `capacity` is 0..3996 channels. With `appendStart` 0 everything is replaced;
// else the channels go to the slots behind `appendStart`, their transponders are merged with those that are
// loaded, and the favourites stay. What an image has no room for, or does not have, is no error.
LoadReport LoadFlash(State& state, Base::ByteView image, int capacity, int appendStart,
                     const BouquetTables& bouquets);

// The most channels that `QuantiCanali` offers without running into the copy that some receivers keep of their list.
int CapacityOf(Base::ByteView image);

// Where a second flash begins: one slot behind the last channel stays empty between the two.
inline int AppendStart(const State& state) { return LastUsedChannel(state) + 1; }

// "letti 999 di 3700 canali, 2 canali su transponder oltre il 120", for a list that manages `count` transponders; UTF-8.
std::string TextOf(const LoadReport& report, int count, bool appended);

// "Superato il numero di transponders gestibili …", for a list that manages `count` transponders.
std::string TooManyTransponders(int count);

}  // namespace Routines
