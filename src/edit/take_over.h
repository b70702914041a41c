// Taking over what another list has, channel by channel or its order as a whole. The other list is only read.
#pragma once

#include "edit/renumber.h"
#include "model/bouquets.h"
#include "review/compare.h"

#include <string>

namespace Edit {

using Review::Comparison;
using Review::Difference;
using Routines::OtherList;
using Routines::State;

// Where channels go that one's own list does not have yet.
enum class NewPlace {
  Behind,  // the last channel, and into the empty slots from the front on when there is no more room
  Holes,   // the empty slots from the front on
  Bouquet  // behind the last channel of their bouquet; behind the last one of all where that has none
};

struct TakeOverReport {
  int added = 0;
  int deleted = 0;
  int changed = 0;  // channels that have data of the other's now
  int moved = 0;
  int updated = 0;        // transponders that have the other's data now, for all their channels
  int favourites = 0;     // lists that have the other's name and entries now
  int noRoom = 0;         // channels that were not added: the list is full
  int noTransponder = 0;  // channels left alone: no slot is free for their transponder
  std::vector<LostFavourite> lost;
};

// "2 canali aggiunti in fondo, 1 eliminato, 1 non aggiunto: la lista è piena", without the lost favourites; UTF-8.
std::string TextOf(const TakeOverReport& report, NewPlace place);

// `chosen` are some of the differences between `state` and `other`, each with the marks that are to be taken over and no
// others. Channels only there are put in place; channels only here are deleted; a renamed one gets the name, one of other
// streams these, a retuned one the transponder, a modified one the rest; moved ones go behind the channel that they follow
// there. What the other list does not say stays. A transponder gets the other's data with a retuned or modified channel, and
// with a new one where no other channel is on it. A favourites list gets the entries whose channels are here. Counts of the
// transponders are brought up to date.
TakeOverReport TakeOver(State& state, const OtherList& other, const Comparison& comparison,
                        const std::vector<Difference>& chosen, const Routines::BouquetTables& bouquets,
                        NewPlace place = NewPlace::Behind);

// Gives the channels of both lists the numbers that they have in the other one, as far as this list reaches. The others
// come behind its last channel in their present order, and into the empty slots from the front on when that is full.
// Returns how many channels have another number now.
int TakeOrder(State& state, const OtherList& other, const Comparison& comparison);

}  // namespace Edit
