#include "edit/renumber.h"

#include "base/code_page.h"
#include "model/favourites.h"

#include <numeric>

namespace Edit {
namespace {

using Routines::FavouriteEntriesOf;
using Routines::FavouriteLists;

// Writes a list's entries over the old ones, with zeros where there were more of them.
void WriteEntries(Base::Bytes& block, std::size_t list, const std::vector<int>& entries, std::size_t before) {
  std::size_t at = list * Routines::FavouriteListSize;
  for (std::size_t i = 0; i < std::max(entries.size(), before); ++i, at += 2) {
    const int slot = i < entries.size() ? entries[i] : 0;
    block[at] = static_cast<Base::Byte>(slot >> 8);
    block[at + 1] = static_cast<Base::Byte>(slot & 255);
  }
}

}  // namespace

SlotMap SameSlots() {
  SlotMap map{};
  std::iota(map.begin(), map.end(), 0);
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
    if (after != before) WriteEntries(block, list, after, before.size());
  }
  return lost;
}

bool InsertFavourite(Base::Bytes& block, std::size_t list, std::size_t place, int slot) {
  std::vector<int> entries = FavouriteEntriesOf(block, list);
  const std::size_t room = std::min(block.size() - std::min(block.size(), list * Routines::FavouriteListSize),
                                    Routines::FavouriteListSize) /
                           2;
  if (entries.size() >= room) return false;
  const std::size_t before = entries.size();
  entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(std::min(place, before)), slot);
  // The entry behind the new end was the 0 that ended the list; what follows must begin with another one.
  if (entries.size() < room) entries.push_back(0);
  WriteEntries(block, list, entries, before);
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
    const std::string name = Base::ToUtf8(Routines::FavouriteNameOf(block, list));
    lists += (name.empty() ? "lista " + std::to_string(list + 1) : name) + " " + std::to_string(counts[list]);
  }
  return (lost.size() == 1 ? "tolto 1 preferito ("
                           : "tolti " + std::to_string(lost.size()) + " preferiti (") +
         lists + ")";
}

}  // namespace Edit
