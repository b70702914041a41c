#include "edit/renumber.h"

#include "base/text.h"
#include "model/favourites.h"

#include <numeric>

namespace Edit {
namespace {

using Routines::FavouriteEntriesOf;
using Routines::FavouriteLists;
using Routines::SetFavouriteEntries;

}  // namespace

SlotMap SameSlots() {
  SlotMap map{};
  std::iota(map.values.begin(), map.values.end(), 0);
  return map;
}

std::vector<LostFavourite> RenumberFavourites(Base::Bytes& block, const SlotMap& map) {
  std::vector<LostFavourite> lost;
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    const std::vector<int> before = FavouriteEntriesOf(block, list);
    std::vector<int> after;
    for (std::size_t place = 0; place < before.size(); ++place) {
      const int slot = before[place];
      const int moved = slot <= Routines::LastChannelSlot ? map[static_cast<std::size_t>(slot)] : slot;
      if (moved == 0) {
        lost.push_back({list, place, slot});
      } else {
        after.push_back(moved);
      }
    }
    if (after != before) SetFavouriteEntries(block, list, std::move(after));
  }
  return lost;
}

bool InsertFavourite(Base::Bytes& block, std::size_t list, std::size_t place, int slot) {
  std::vector<int> entries = FavouriteEntriesOf(block, list);
  if (entries.size() >= Routines::FavouriteRoom(block, list)) return false;
  entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(std::min(place, entries.size())), slot);
  SetFavouriteEntries(block, list, std::move(entries));
  return true;
}

std::string LostFavouritesText(const Base::Bytes& block, const std::vector<LostFavourite>& lost) {
  if (lost.empty()) return {};
  std::array<int, FavouriteLists> counts{};
  for (const LostFavourite& entry : lost) ++counts[entry.list];
  std::string lists;
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    if (counts[list] == 0) continue;
    if (!lists.empty()) lists += ", ";
    lists += Routines::FavouritesTitle(block, list) + " " + std::to_string(counts[list]);
  }
  return (lost.size() == 1 ? "tolto " : "tolti ") + Base::Counted(lost.size(), "preferito", "preferiti") +
         " (" + lists + ")";
}

}  // namespace Edit
