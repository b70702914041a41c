// The receiver's config.pre area, which carries eight favourites lists:
//   256 k           list k (0..7): up to 128 channel numbers of two bytes, high byte first, ended by a 0
//   L - 241 + 8 k   name of list k: eight bytes of the code page, filled up with zero bytes
// counted from the start of a block of L bytes. All the rest is the receiver's own and stays as it is.
#pragma once

#include "base/bytes.h"

#include <string>
#include <vector>

namespace Routines {

inline constexpr std::size_t FavouriteLists = 8;
inline constexpr std::size_t FavouriteEntries = 128;
inline constexpr std::size_t FavouriteListSize = 2 * FavouriteEntries;
inline constexpr std::size_t FavouriteListsSize = FavouriteLists * FavouriteListSize;
inline constexpr std::size_t FavouriteNameSize = 8;

// Channel numbers of list 0..7. A block too short for a list has none there.
std::vector<int> FavouriteEntriesOf(Base::ByteView block, std::size_t list);

// Offset of a list's name from the block's start, or the block's size where the block is too short for it.
std::size_t FavouriteNameOffset(std::size_t blockSize, std::size_t list);

// Bytes of the code page up to the first zero byte; empty where the block is too short for it.
std::string FavouriteNameOf(Base::ByteView block, std::size_t list);

}  // namespace Routines
