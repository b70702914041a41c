#include "model/favourites.h"

#include "base/code_page.h"

#include <algorithm>

namespace Routines {

bool IsBlankFavourites(Base::ByteView block) {
  return std::all_of(block.begin(), block.end(), [](Base::Byte byte) { return byte == 0 || byte == ' '; });
}

std::size_t FavouriteRoom(Base::ByteView block, std::size_t list) {
  const std::size_t first = std::min(block.size(), list * FavouriteListSize);
  return std::min(block.size() - first, FavouriteListSize) / 2;
}

std::vector<int> FavouriteEntriesOf(Base::ByteView block, std::size_t list) {
  std::vector<int> entries;
  const std::size_t first = list * FavouriteListSize;
  const std::size_t end = first + 2 * FavouriteRoom(block, list);
  for (std::size_t at = first; at < end; at += 2) {
    const int channel = block[at] << 8 | block[at + 1];
    if (channel == 0) break;
    entries.push_back(channel);
  }
  return entries;
}

void SetFavouriteEntries(Base::Bytes& block, std::size_t list, std::vector<int> entries) {
  const std::size_t room = FavouriteRoom(block, list);
  const std::size_t before = FavouriteEntriesOf(block, list).size();
  // The entry behind the old end was the 0 that ended the list; what follows must begin with another one.
  if (entries.size() > before) entries.push_back(0);
  entries.resize(std::min(std::max(entries.size(), before), room), 0);
  std::size_t at = list * FavouriteListSize;
  for (const int slot : entries) {
    block[at++] = static_cast<Base::Byte>(slot >> 8);
    block[at++] = static_cast<Base::Byte>(slot & 255);
  }
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

std::string FavouritesTitle(Base::ByteView block, std::size_t list) {
  const std::string name = FavouriteNameOf(block, list);
  const bool blank = name.find_first_not_of(' ') == std::string::npos;
  return blank ? "lista " + std::to_string(list + 1) : Base::ToUtf8(name);
}

bool SetFavouriteName(Base::Bytes& block, std::size_t list, std::string_view name) {
  const std::size_t at = FavouriteNameOffset(block.size(), list);
  const bool place = at >= FavouriteListsSize && at + FavouriteNameSize <= block.size();
  if (!place || name.size() > FavouriteNameSize) return false;
  const auto end = std::copy(name.begin(), name.end(), block.begin() + static_cast<std::ptrdiff_t>(at));
  std::fill(end, block.begin() + static_cast<std::ptrdiff_t>(at + FavouriteNameSize), Base::Byte{0});
  return true;
}

}  // namespace Routines
