// Changes of the channel and transponder tables as wholes. Slots are channel numbers; the last one that a list can
// use is its channel count. A set of them is always in rising order, each once.
#pragma once

#include "base/result.h"
#include "edit/renumber.h"
#include "model/routines.h"

#include <string_view>
#include <vector>

namespace Edit {

using Routines::State;

using Slots = std::vector<int>;

// All slots from `first` to `last`; none where `last` is smaller.
Slots SlotRun(int first, int last);

// Whether they leave nothing out between their first and their last; not so for none at all.
bool IsRun(const Slots& slots);

// Whether a set is what one may be: slots of the list, in rising order.
bool AreSlots(const State& state, const Slots& slots);

// Puts every channel where the map says and brings the favourites along. No two channels may go to one slot.
std::vector<LostFavourite> Rearrange(State& state, const SlotMap& map);

// Takes the channels of some slots out; those behind them move up, and so do their favourites. Each transponder is told
// one channel less for every channel taken.
std::vector<LostFavourite> DeleteSlots(State& state, const Slots& slots);

// Whether `count` channels can be put in at `position`: the rule is position + count <= channel count.
bool IsPosition(const State& state, int position, int count);

// Moves all channels from `position` on down by `count` slots; those at the list's end, which PushedOut tells
// beforehand, drop off.
std::vector<LostFavourite> ShiftDown(State& state, int position, int count);
std::vector<int> PushedOut(const State& state, int position, int count);

inline constexpr std::string_view InvalidPosition = "Posizione di inserimento invalida";

// Makes `count` empty slots from `position` on by moving all channels there down, and returns the entries on empty slots
// that were pushed out. InvalidPosition, with nothing changed, where that would push a channel past the channel count.
Base::Result<std::vector<LostFavourite>> MakeRoom(State& state, int position, int count);

// Groups the channels from `start` on by the bouquet code of their transponder and, within it, by transponder, and
// closes the gaps. The order of equal ones is that of the plain exchange sort.
std::vector<LostFavourite> OrdinaPerBouquet(State& state, int start);

// Empties channels and transponders; their counts, favourites and bouquet names stay. Returns the last used slot.
int Azzera(State& state);

// Satellites A and B, C and D, ... change places.
void InvertiSatelliti(State& state);

// Every satellite becomes A or B.
void RiportaAB(State& state);

// Counts the channels of each transponder anew; a count stops at 255.
void CanaliXTransponder(State& state);

// The first slot from `from` on whose name has `text` in it, case ignored; 0 when there is none. Both are bytes of
// the code page.
int FindName(const State& state, std::string_view text, int from);

}  // namespace Edit
