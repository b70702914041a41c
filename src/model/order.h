// An order of channels without their data, as a list of another kind gives it.
#pragma once

#include "model/routines.h"

#include <optional>
#include <string>
#include <vector>

namespace Routines {

// What a list does not say of a number.
inline constexpr int NotSaid = -1;

struct OrderEntry {
  int number = 0;    // the channel's place in the list; 0 where the list gives none
  std::string name;  // bytes of the code page; may be empty where there are ids
  std::optional<int> position;
  int nid = NotSaid;
  int tid = NotSaid;
  int sid = NotSaid;

  friend bool operator==(const OrderEntry&, const OrderEntry&) = default;
};

struct Order {
  std::string name;  // of the list, where it has one; bytes of the code page
  std::vector<OrderEntry> entries;
  int unreadable = 0;  // lines that should be channels and are none that a satellite brings

  friend bool operator==(const Order&, const Order&) = default;
};

// A channel of the list as an entry.
OrderEntry OrderEntryOf(const State& state, int slot);

// The order that the list has, by the numbers of its channels.
Order OrderOf(const State& state);
// That of a favourites list, 0 to 7.
Order OrderOfFavourites(const State& state, std::size_t list);

}  // namespace Routines
