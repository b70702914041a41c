// The layout of a receiver's flash image, for its reader and its writer alike.
//   image    524,288 bytes: 8 sectors of 65,536
//   sector   begins with a directory of 8 entry offsets of two bytes, low byte first; 0 and 65535 are none
//   entry    at its offset: name (10 bytes), data length L (2 bytes, low byte first), 24 bytes that only
//            the receiver understands, then L bytes of data
// Nothing an image says is trusted: offsets and lengths are clamped to the sector.
#pragma once

#include "base/bytes.h"

#include <optional>
#include <vector>

namespace Routines {

inline constexpr std::size_t FlashSize = 524288;
inline constexpr std::size_t SectorSize = 65536;
inline constexpr std::size_t DirectorySlots = 8;
inline constexpr std::size_t EntryHeaderSize = 36;

enum class EntryKind { Channels, Transponders, Support, Unknown };

// A run of bytes, from the image's start.
struct Range {
  std::size_t first = 0;
  std::size_t count = 0;

  [[nodiscard]] std::size_t End() const { return first + count; }
};

struct Entry {
  EntryKind kind = EntryKind::Unknown;
  std::size_t sector = 0;  // 0..7
  std::size_t offset = 0;  // from the sector's start
  std::size_t length = 0;  // L as the entry says it
  std::size_t limit =
      0;  // from the sector's start: the nearest other directory offset behind this one, else its end
};

// Every entry that has room for its header, sector by sector and in directory order. `image` has FlashSize
// bytes.
std::vector<Entry> EntriesOf(Base::ByteView image);

// The entry's data as it says them, up to the end of the sector.
Range DataOf(const Entry& entry);

// Where records may be written: from the start of the data up to the entry's limit.
Range RecordSpaceOf(const Entry& entry);

// The contents of "config.pre" in a Support entry; nothing where there are none.
std::optional<Range> FavouritesAreaOf(Base::ByteView image, const Entry& entry);

// The part of that area that may be written: no byte of the entry's header and none of another entry.
std::optional<Range> WritableFavouritesAreaOf(Base::ByteView image, const Entry& entry);

}  // namespace Routines
