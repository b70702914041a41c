#include "image_builder.h"

#include "model/flash_image.h"

#include <algorithm>

namespace Samples {

using namespace Routines;

std::uint32_t Junk::Next() {
  state_ ^= state_ << 13U;
  state_ ^= state_ >> 17U;
  state_ ^= state_ << 5U;
  return state_;
}

ImageBuilder::ImageBuilder(std::uint32_t seed) : junk_(seed), image_(FlashSize) {
  for (Base::Byte& byte : image_) byte = junk_.NextByte();
  for (std::size_t sector = 1; sector <= FlashSize / SectorSize; ++sector) {
    for (std::size_t slot = 0; slot < DirectorySlots; ++slot) {
      SetDirectory(sector, slot, junk_.Below(2) == 0 ? 0 : 65535);
    }
  }
}

void ImageBuilder::SetLowByteFirst(std::size_t at, std::size_t value) {
  image_[at] = static_cast<Base::Byte>(value & 255U);
  image_[at + 1] = static_cast<Base::Byte>(value >> 8U & 255U);
}

ImageBuilder& ImageBuilder::SetDirectory(std::size_t sector, std::size_t slot, std::size_t offset) {
  SetLowByteFirst((sector - 1) * SectorSize + 2 * slot, offset);
  return *this;
}

ImageBuilder& ImageBuilder::SetLength(std::size_t sector, std::size_t offset, std::size_t length) {
  SetLowByteFirst((sector - 1) * SectorSize + offset + 10, length);
  return *this;
}

ImageBuilder& ImageBuilder::Put(std::size_t sector, std::size_t slot, std::size_t offset,
                                std::string_view name, Base::ByteView data) {
  SetDirectory(sector, slot, offset);
  SetLength(sector, offset, data.size());
  Base::Byte* entry = image_.data() + (sector - 1) * SectorSize + offset;
  std::fill_n(entry, 10, Base::Byte{0});
  std::copy_n(name.begin(), std::min<std::size_t>(name.size(), 10), entry);
  const std::size_t room = SectorSize - std::min(offset + EntryHeaderSize, SectorSize);
  std::copy_n(data.begin(), std::min(data.size(), room), entry + EntryHeaderSize);
  return *this;
}

ImageBuilder& ImageBuilder::PutFavourites(std::size_t sector, std::size_t slot, std::size_t offset,
                                          Base::ByteView block, std::size_t before) {
  constexpr std::string_view File = "config.pre";
  Base::Bytes data(before);
  for (Base::Byte& byte : data) byte = junk_.NextByte();
  data.insert(data.end(), File.begin(), File.end());
  while (data.size() < before + 20) data.push_back(junk_.NextByte());
  data.insert(data.end(), block.begin(), block.end());
  Put(sector, slot, offset, "Support", data);
  // The receiver counts this length from the entry's start, and one byte more.
  return SetLength(sector, offset, EntryHeaderSize + data.size() + 1);
}

Base::Bytes ImageFullOf(Base::Byte fill) {
  ImageBuilder image(1);
  const Base::Bytes data(SectorSize - 16 - EntryHeaderSize, fill);
  for (std::size_t sector = 1; sector <= FlashSize / SectorSize; ++sector)
    image.Put(sector, 0, 16, "TCS", data);
  return image.Image();
}

ChannelRecord MakeChannel(std::string_view name, int transponder, int sid, int vpid, int apid, int flags) {
  ChannelRecord channel;
  std::copy_n(name.begin(), std::min(name.size(), ChannelRecord::NameSize), channel.bytes.begin());
  Set(channel, ChannelField::Flags, static_cast<std::uint32_t>(flags));
  Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(transponder));
  Set(channel, ChannelField::Sid, static_cast<std::uint32_t>(sid));
  Set(channel, ChannelField::Vpid, static_cast<std::uint32_t>(vpid));
  Set(channel, ChannelField::Apid, static_cast<std::uint32_t>(apid));
  Set(channel, ChannelField::Aecm, AbsentPid);
  Set(channel, ChannelField::Vecm, AbsentPid);
  Set(channel, ChannelField::Pcr, static_cast<std::uint32_t>(vpid));
  return channel;
}

TransponderRecord MakeTransponder(int frequencyMHz, bool horizontal, int satellite, int symbolRateCode,
                                  int fecCode, int tid, int nid) {
  TransponderRecord transponder;
  Set(transponder, TransponderField::HighBand, frequencyMHz >= 11700 ? 1U : 0U);
  Set(transponder, TransponderField::Horizontal, horizontal ? 1U : 0U);
  Set(transponder, TransponderField::Satellite, static_cast<std::uint32_t>(satellite));
  const int behindLnb = frequencyMHz - LocalOscillator(transponder);
  Set(transponder, TransponderField::Frequency, static_cast<std::uint32_t>(behindLnb) * 1000000U);
  Set(transponder, TransponderField::Tid, static_cast<std::uint32_t>(tid));
  Set(transponder, TransponderField::Nid, static_cast<std::uint32_t>(nid));
  Set(transponder, TransponderField::SymbolRate, static_cast<std::uint32_t>(symbolRateCode));
  Set(transponder, TransponderField::Fec, static_cast<std::uint32_t>(fecCode));
  return transponder;
}

}  // namespace Samples
