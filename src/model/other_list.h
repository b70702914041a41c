// A list that one's own is compared with, whatever it comes from: a receiver's flash, or rows of an exchange format, which
// may say nothing of some fields. It is only read.
#pragma once

#include "model/routines.h"
#include "model/sdx_fields.h"

#include <bitset>
#include <vector>

namespace Routines {

struct OtherChannel {
  ChannelRecord record;  // in a flash with the number of its transponder there
  int transponder = 0;   // its place among the transponders, 0 where it has none
  SdxFields lacking;     // what is not said of it
};

struct OtherList {
  std::vector<OtherChannel> channels = std::vector<OtherChannel>(1);  // by number; number 0 is not used
  int offered = 0;  // channels above this number are known of, but cannot be taken
  std::vector<TransponderRecord> transponders =
      std::vector<TransponderRecord>(1);  // a flash's by their slots
  std::string symbolRates;                // by which the transponders have their codes
  SdxFields lacking;                      // what is said of no channel
  std::bitset<32> satellites;             // on which it knows all channels
  bool byNumber = false;                  // its channels have the numbers that they had in one's own list
  bool flash = false;                     // a receiver's whole list
  Base::Bytes favourites;                 // of a flash

  [[nodiscard]] int Count() const { return static_cast<int>(channels.size()) - 1; }
  [[nodiscard]] const OtherChannel& At(int number) const {
    return channels[static_cast<std::size_t>(number)];
  }
  [[nodiscard]] const TransponderRecord& TransponderOf(const OtherChannel& channel) const {
    return transponders[static_cast<std::size_t>(channel.transponder)];
  }
};

OtherList OtherListOf(const State& flash);

// A channel of a list as it would stand in another one.
OtherChannel OtherChannelOf(const State& state, int slot);

}  // namespace Routines
