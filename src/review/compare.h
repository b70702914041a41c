// What is different between one's own list and another one that is only read. Channels are known by their service, never
// by their name.
#pragma once

#include "model/other_list.h"
#include "model/per_slot.h"

#include <bitset>
#include <string_view>
#include <vector>

namespace Review {

using Routines::OtherList;
using Routines::SlotMap;
using Routines::State;

// What can be different about a channel. One that is in both lists may have several marks.
enum class Mark {
  OnlyHere,
  OnlyThere,
  Moved,  // comes in another order among the channels of both lists, whatever its number
  Renamed,
  Retuned,    // another transponder, other data of it
  Pids,       // other streams
  Modified,   // coding, active or not, access streams, TID and NID of its transponder
  Favourites  // a favourites list with another name or other channels
};
inline constexpr std::size_t Marks = 8;
using MarkSet = std::bitset<Marks>;

struct Difference {
  int here = 0;   // slot in one's own list, 0 where it is not in it
  int there = 0;  // number in the other list, 0 where it is not in it
  MarkSet marks = {};
  std::size_t favourites = 0;  // of a favourites list: which of them, from 0
  bool byName = false;         // known by nothing but its name, which only an order is

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
  // By number, one's own where there are two; favourites lists behind all channels.
  std::vector<Difference> differences;
  SlotMap there{};                   // number in the other list of each channel, 0 where it is not in it
  Routines::PerChannel<bool> fixed;  // channels of both lists that are not moved

  // What is no difference of a single channel. Only a flash has the first three and transponders of its own.
  int shifted = 0;   // channels with another number that are not moved
  int relinked = 0;  // channels whose transponder is the same one in another slot
  int alike =
      0;  // channels that differ only in bytes without effect: padding of names, 0 or 65535 for no stream
  int elsewhere = 0;  // channels that the other list says nothing of, as it does not know their satellites
  TransponderDifferences transponders;

  [[nodiscard]] bool Nothing() const {
    return differences.empty() && shifted == 0 && relinked == 0 && alike == 0 &&
           transponders == TransponderDifferences{};
  }
};

// Pairs the channels of both lists by satellite, NID, TID and SID; those left over by frequency, polarisation and SID, and
// those of which the other list does not say the NID by satellite, TID and SID. A service that a list has more than once is
// paired in the order of the list, equal ones first. What the other list does not say of a channel is equal to anything.
Comparison Compare(const State& here, const OtherList& there);

// "Rinominato", UTF-8; empty for a channel that is in one list only, which has other words for each kind of list.
std::string_view TextOf(Mark mark);

// What is different, as from here to there: "VPID 512 → 513, Sport → Sport HD". Where the channel is in one list only,
// what service it is. UTF-8. Of the marks that the difference has; others are passed over.
std::string DetailsOf(const State& here, const OtherList& there, const Difference& difference);

// What is no difference of a single channel, in one line of UTF-8; empty where there is none. `onlyThere`
// is "solo nell'altra" or what fits.
std::string OtherDifferences(const Comparison& comparison, std::string_view onlyThere);

// The channels that a favourites list of the other list names, by their slots here; those that are not here are left out.
std::vector<int> FavouritesHere(const Comparison& comparison, const OtherList& there, std::size_t list);

}  // namespace Review
