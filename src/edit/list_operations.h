// Changes of the channel and transponder tables as wholes. Slots are channel numbers; the last one that a list can
// use is its channel count.
#pragma once

#include "base/result.h"
#include "edit/renumber.h"
#include "model/routines.h"

#include <string_view>
#include <vector>

namespace Edit {

using Routines::State;

// A run of channel slots, both ends included.
struct Slots {
  int first = 0;
  int last = 0;

  [[nodiscard]] int Count() const { return last - first + 1; }
};

// Puts every channel where the map says and brings the favourites along. No two channels may go to one slot.
std::vector<LostFavourite> Rearrange(State& state, const SlotMap& map);

// Takes the channels of a run out, or those of some slots, none twice; those behind them move up, and so do their
// favourites. Each transponder is told one channel less for every channel taken.
std::vector<LostFavourite> DeleteChannels(State& state, Slots slots);
std::vector<LostFavourite> DeleteSlots(State& state, const std::vector<int>& slots);

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

// Moves a run so that it begins at slot `to`; the channels between close up. `to` is clamped so that it fits.
void MoveChannels(State& state, Slots slots, int to);

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

// Every slot whose name has `text` in it, case ignored, or whose SID or transponder number it is.
std::vector<int> MatchingSlots(const State& state, std::string_view text);

}  // namespace Edit
