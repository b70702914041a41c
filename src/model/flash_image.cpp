#include "model/flash_image.h"

#include <algorithm>
#include <string_view>

namespace Routines {
namespace {

EntryKind KindNamed(std::string_view name) {
  if (name.starts_with("TCS")) return EntryKind::Channels;
  if (name.starts_with("TPT")) return EntryKind::Transponders;
  return name.starts_with("Support") ? EntryKind::Support : EntryKind::Unknown;
}

void AddEntriesOf(Base::ByteView image, std::size_t sector, std::vector<Entry>& entries) {
  const Base::ByteView bytes = image.subspan(sector * SectorSize, SectorSize);
  std::vector<std::size_t> offsets;
  for (std::size_t slot = 0; slot < DirectorySlots; ++slot) {
    const std::size_t offset = Base::LowByteFirst16(bytes, 2 * slot);
    if (offset != 0 && offset != 65535) offsets.push_back(offset);
  }
  for (const std::size_t offset : offsets) {
    if (offset + EntryHeaderSize > SectorSize) continue;
    std::size_t limit = SectorSize;
    for (const std::size_t other : offsets) {
      if (other > offset) limit = std::min(limit, other);
    }
    const std::string_view name = Base::AsText(bytes.subspan(offset, 10));
    entries.push_back({KindNamed(name), sector, offset, Base::LowByteFirst16(bytes, offset + 10), limit});
  }
}

}  // namespace

std::vector<Entry> EntriesOf(Base::ByteView image) {
  std::vector<Entry> entries;
  for (std::size_t sector = 0; sector < FlashSize / SectorSize; ++sector)
    AddEntriesOf(image, sector, entries);
  return entries;
}

Range DataOf(const Entry& entry) {
  const std::size_t data = entry.offset + EntryHeaderSize;
  return {entry.sector * SectorSize + data, std::min(entry.length, SectorSize - data)};
}

Range RecordSpaceOf(const Entry& entry) {
  const std::size_t data = entry.offset + EntryHeaderSize;
  return {entry.sector * SectorSize + data, entry.limit > data ? entry.limit - data : 0};
}

std::optional<Range> FavouritesAreaOf(Base::ByteView image, const Entry& entry) {
  const std::string_view sector = Base::AsText(image.subspan(entry.sector * SectorSize, SectorSize));
  const std::size_t name = sector.find("config.pre", entry.offset);
  if (name == std::string_view::npos) return std::nullopt;
  // The receiver's own arithmetic: L counts from the entry's start here, and one byte less than it leaves is
  // taken.
  const std::size_t start = name + 20;
  const std::size_t end =
      std::min(entry.offset + entry.length - std::min<std::size_t>(entry.length, 1), SectorSize);
  if (start >= end) return std::nullopt;
  return Range{entry.sector * SectorSize + start, end - start};
}

std::optional<Range> WritableFavouritesAreaOf(Base::ByteView image, const Entry& entry) {
  auto area = FavouritesAreaOf(image, entry);
  if (!area) return std::nullopt;
  const Range allowed = RecordSpaceOf(entry);
  if (area->first < allowed.first || area->first >= allowed.End()) return std::nullopt;
  area->count = std::min(area->End(), allowed.End()) - area->first;
  return area;
}

}  // namespace Routines
