// What is different between one's own list and another one that is only read. Channels are known by their service, never
// by their name.
#pragma once

#include "model/per_slot.h"

#include <bitset>
#include <vector>

namespace Review {

using Routines::SlotMap;
using Routines::State;

// What can be different about a channel. One that is in both lists may have several marks.
enum class Mark {
  OnlyHere,
  OnlyThere,
  Moved,  // comes in another order among the channels of both lists, whatever its number
  Renamed,
  Retuned,   // another transponder, other data of it, other streams
  Modified,  // coding, active or not, access streams, TID and NID of its transponder
};
inline constexpr std::size_t Marks = 6;

struct Difference {
  int here = 0;   // slot in one's own list, 0 where it is not in it
  int there = 0;  // slot in the other list, 0 where it is not in it
  std::bitset<Marks> marks;

  [[nodiscard]] bool Has(Mark mark) const { return marks[static_cast<std::size_t>(mark)]; }
  void Add(Mark mark) { marks.set(static_cast<std::size_t>(mark)); }
};

struct TransponderDifferences {
  int onlyHere = 0;
  int onlyThere = 0;
  int changed = 0;
  int renumbered = 0;  // in another slot
  int recounted = 0;   // with another count of channels, and nothing else

  friend bool operator==(const TransponderDifferences&, const TransponderDifferences&) = default;
};

struct Comparison {
  std::vector<Difference> differences;  // by number, one's own where there are two
  SlotMap there{};                      // slot in the other list of each channel, 0 where it is not in it
  Routines::PerChannel<bool> fixed;     // channels of both lists that are not moved

  // What is no difference of a single channel.
  int shifted = 0;   // channels with another number that are not moved
  int relinked = 0;  // channels whose transponder is the same one in another slot
  int alike =
      0;  // channels that differ only in bytes without effect: padding of names, 0 or 65535 for no stream
  TransponderDifferences transponders;
  std::vector<std::size_t> favourites;  // lists with another name or other channels

  [[nodiscard]] bool Nothing() const {
    return differences.empty() && shifted == 0 && relinked == 0 && alike == 0 &&
           transponders == TransponderDifferences{} && favourites.empty();
  }
};

// Pairs the channels of both lists by satellite, NID, TID and SID; those left over by frequency, polarisation and SID.
// A service that a list has more than once is paired in the order of the list, equal ones first.
Comparison Compare(const State& here, const State& there);

// What is different, as from here to there: "VPID 512 → 513, Sport → Sport HD". Where the channel is in one list only,
// what service it is. UTF-8.
std::string DetailsOf(const State& here, const State& there, const Difference& difference);

// What is no difference of a single channel, in one line of UTF-8; empty where there is none. `onlyThere`
// is "solo nell'altra" or what fits.
std::string OtherDifferences(const State& here, const Comparison& comparison, std::string_view onlyThere);

// Whether the channel's number is that of a transponder of the list.
bool HasTransponder(const State& state, const Routines::ChannelRecord& channel);

}  // namespace Review
