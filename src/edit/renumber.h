// Moving channels to other slots. Every command that does so says where each slot's channel went and leaves the
// favourites to the one routine here.
#pragma once

#include "model/per_slot.h"

#include <string>
#include <vector>

namespace Edit {

using Routines::SlotMap;

// Every channel stays where it is.
SlotMap SameSlots();

// A favourites entry that was taken out.
struct LostFavourite {
  std::size_t list = 0;
  std::size_t place = 0;  // in the list as it was
  int slot = 0;           // that it named

  friend bool operator==(const LostFavourite&, const LostFavourite&) = default;
};

// Every entry goes on naming the same channel; one whose channel went away is taken out, so that each list stays
// dense and ends at its first 0. Numbers past the table stay as they are. Returns what was taken out.
std::vector<LostFavourite> RenumberFavourites(Base::Bytes& block, const SlotMap& map);

// Puts an entry into a list at a place, or at its end when it is shorter; false when the list is full.
bool InsertFavourite(Base::Bytes& block, std::size_t list, std::size_t place, int slot);

// "tolti 3 preferiti (Cinema 2, Sport 1)", UTF-8; empty when nothing was.
std::string LostFavouritesText(const Base::Bytes& block, const std::vector<LostFavourite>& lost);

}  // namespace Edit
