#include "model/favourites.h"

#include <algorithm>

namespace Routines {

std::vector<int> FavouriteEntriesOf(Base::ByteView block, std::size_t list) {
  std::vector<int> entries;
  const std::size_t first = list * FavouriteListSize;
  const std::size_t end = std::min(first + FavouriteListSize, block.size());
  for (std::size_t at = first; at + 2 <= end; at += 2) {
    const int channel = block[at] << 8 | block[at + 1];
    if (channel == 0) break;
    entries.push_back(channel);
  }
  return entries;
}

std::size_t FavouriteNameOffset(std::size_t blockSize, std::size_t list) {
  constexpr std::size_t NamesFromEnd = 241;
  return blockSize < NamesFromEnd ? blockSize : blockSize - NamesFromEnd + FavouriteNameSize * list;
}

std::string FavouriteNameOf(Base::ByteView block, std::size_t list) {
  const std::string_view field =
      Base::AsText(block).substr(FavouriteNameOffset(block.size(), list), FavouriteNameSize);
  return std::string(field.substr(0, field.find('\0')));
}

}  // namespace Routines
