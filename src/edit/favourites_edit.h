// Changes of the favourites lists that the user makes by hand. Lists are 0..7, places in a list count from 0.
#pragma once

#include "base/result.h"
#include "model/favourites.h"
#include "model/per_slot.h"

namespace Edit {

using Routines::State;

struct AddReport {
  int added = 0;
  int known = 0;  // channels that the list had already
  int empty = 0;  // slots without a channel
  int full = 0;   // channels for which the list had no room
};

enum class Addition { Added, Known, Empty, Full };
// What AddFavourites would make of each channel.
std::vector<Addition> PlanFavourites(const State& state, std::size_t list, const std::vector<int>& slots);

// Puts channels into a list in front of `place`, or at its end where it is shorter. A list has each channel once.
AddReport AddFavourites(State& state, std::size_t list, std::size_t place, const std::vector<int>& slots);

void RemoveFavourites(State& state, std::size_t list, const std::vector<std::size_t>& places);

struct MoveReport {
  std::size_t first = 0;  // place of the first entry moved, where they now are
  AddReport entries;
};

// Moves entries, in their order, in front of `before` of the same list or of another one. What another list has no
// room for stays; what it has already is only taken out of the first one.
MoveReport MoveFavourites(State& state, std::size_t list, const std::vector<std::size_t>& places,
                          std::size_t target, std::size_t before);

enum class FavouriteOrder { ByNumber, ByName };

// Entries that name no channel go to the end.
void SortFavourites(State& state, std::size_t list, FavouriteOrder order);

enum class OrderPlace {
  OwnPlaces,  // those that the channels of the favourites list have among them
  Top         // from 1 on; all others follow in their order, with their gaps
};
// Where every channel goes so that those of a favourites list stand in its order.
Routines::SlotMap MapByFavourites(const State& state, std::size_t list, OrderPlace place);

// `name` is UTF-8. An error says why the name is refused.
Base::Outcome RenameFavourites(State& state, std::size_t list, std::string_view name);

}  // namespace Edit
