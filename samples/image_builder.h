// Builds flash images as a receiver makes them: sections where they are put, and junk in every byte that has
// no known meaning.
#pragma once

#include "base/bytes.h"
#include "model/channel.h"
#include "model/transponder.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace Samples {

// A small generator of its own, so that an image is the same on every machine.
class Junk {
 public:
  explicit Junk(std::uint32_t seed) : state_(seed * 2654435761U | 1U) {}

  std::uint32_t Next();
  Base::Byte NextByte() { return static_cast<Base::Byte>(Next() >> 24U); }
  // 0 <= result < `bound`, which is above 0.
  std::size_t Below(std::size_t bound) { return Next() % bound; }

 private:
  std::uint32_t state_;
};

class ImageBuilder {
 public:
  // Every byte is junk and no directory has an entry.
  explicit ImageBuilder(std::uint32_t seed);

  // Puts an entry with its data; `sector` is 1..8, `slot` 0..7, `offset` counts from the sector's start. Data
  // past the sector's end are left out, as the length field says them all the same.
  ImageBuilder& Put(std::size_t sector, std::size_t slot, std::size_t offset, std::string_view name,
                    Base::ByteView data);

  template <class Record>
  ImageBuilder& PutRecords(std::size_t sector, std::size_t slot, std::size_t offset, std::string_view name,
                           const std::vector<Record>& records) {
    Base::Bytes data;
    for (const Record& record : records) data.insert(data.end(), record.bytes.begin(), record.bytes.end());
    return Put(sector, slot, offset, name, data);
  }

  // Puts a Support entry whose config.pre, `before` bytes behind the header, holds `block`.
  ImageBuilder& PutFavourites(std::size_t sector, std::size_t slot, std::size_t offset, Base::ByteView block,
                              std::size_t before);

  // Sets one directory offset or one entry's length field without regard to what lies there.
  ImageBuilder& SetDirectory(std::size_t sector, std::size_t slot, std::size_t offset);
  ImageBuilder& SetLength(std::size_t sector, std::size_t offset, std::size_t length);

  [[nodiscard]] const Base::Bytes& Image() const { return image_; }

 private:
  void SetLowByteFirst(std::size_t at, std::size_t value);

  Junk junk_;
  Base::Bytes image_;
};

// A list section in each sector, with `fill` in all of its bytes: two such images differ only where a save may write.
Base::Bytes ImageFullOf(Base::Byte fill);

// `name` is bytes of the code page, cut to 16 and filled up with zero bytes.
Routines::ChannelRecord MakeChannel(std::string_view name, int transponder, int sid, int vpid, int apid,
                                    int flags = 0x04);

Routines::TransponderRecord MakeTransponder(int frequencyMHz, bool horizontal, int satellite,
                                            int symbolRateCode, int fecCode, int tid = 0, int nid = 0);

}  // namespace Samples
