// The receiver's config.pre area, which carries eight favourites lists:
//   256 k           list k (0..7): up to 128 channel numbers of two bytes, high byte first, ended by a 0
//   L - 241 + 8 k   name of list k: eight bytes of the code page, filled up with zero bytes
// counted from the start of a block of L bytes. All the rest is the receiver's own and stays as it is.
#pragma once

#include "base/bytes.h"

#include <string>
#include <string_view>
#include <vector>

namespace Routines {

inline constexpr std::size_t FavouriteLists = 8;
inline constexpr std::size_t FavouriteEntries = 128;
inline constexpr std::size_t FavouriteListSize = 2 * FavouriteEntries;
inline constexpr std::size_t FavouriteListsSize = FavouriteLists * FavouriteListSize;
inline constexpr std::size_t FavouriteNameSize = 8;

// Whether a block carries nothing: it is empty, or nothing but zero bytes and blanks. Such a one is never written.
bool IsBlankFavourites(Base::ByteView block);

// How many entries the block has room for in list 0..7: 128, or fewer where it is too short.
std::size_t FavouriteRoom(Base::ByteView block, std::size_t list);

// Channel numbers of list 0..7. A block too short for a list has none there.
std::vector<int> FavouriteEntriesOf(Base::ByteView block, std::size_t list);

// Writes a list's entries over the old ones, with zeros where there were more of them; what lies behind both stays as
// it is. Entries past the room are left out.
void SetFavouriteEntries(Base::Bytes& block, std::size_t list, std::vector<int> entries);

// Offset of a list's name from the block's start, or the block's size where the block is too short for it.
std::size_t FavouriteNameOffset(std::size_t blockSize, std::size_t list);

// Bytes of the code page up to the first zero byte; empty where the block is too short for it.
std::string FavouriteNameOf(Base::ByteView block, std::size_t list);

// The name to show, or "lista 3" where there is none; UTF-8.
std::string FavouritesTitle(Base::ByteView block, std::size_t list);

// `name` is at most eight bytes of the code page. False where the block is so short that it
// has no place, or one among the entries.
bool SetFavouriteName(Base::Bytes& block, std::size_t list, std::string_view name);

}  // namespace Routines
