// Sorting channels by what a person would sort them by. What comes of it is known before anything changes.
#pragma once

#include "edit/renumber.h"
#include "model/routines.h"

#include <string>
#include <vector>

namespace Edit {

enum class SortKey {
  Name,  // as a person sorts: case and accents do not count, "Rai 2" comes before "Rai 10"
  Kind,  // TV, radio, services
  Satellite,
  Bouquet,  // by name; those without one last
  Frequency,
  Sid,
  Coding,
  HdFirst,          // by the name, as no record tells
  FavouritesFirst,  // those in any favourites list
  ActiveFirst
};

struct SortOrder {
  std::vector<SortKey> keys;  // the first counts most; channels that are equal by all keep their order
  int multiple = 0;           // each group, equal by the first key, begins at a multiple of it; 0 for no gaps
};

struct SortPlan {
  SlotMap map;
  int moved = 0;    // channels that change place
  int gaps = 0;     // empty places before the last sorted channel
  int groups = 0;   // of channels that are equal by the first key
  int without = 0;  // channels that find no place; the plan can be followed only where there are none
};

// How the channels in `slots`, which rise, would be put into the same slots.
SortPlan PlanSort(const Routines::State& state, const std::vector<int>& slots, const SortOrder& order);

// "7 canali cambiano posto, 2 gruppi, 3 posti vuoti fra i canali", or why it cannot be followed; UTF-8.
std::string TextOf(const SortPlan& plan);

// Follows a plan of this state; favourites go along, entries on empty places among them are taken out.
std::vector<LostFavourite> SortChannels(Routines::State& state, const SortPlan& plan);

}  // namespace Edit
