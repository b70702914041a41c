#include "hostile_flash.h"

#include "demo_flash.h"
#include "image_builder.h"

#include <algorithm>
#include <cstring>

namespace Fuzz {
namespace {

using namespace Routines;

// Keeps an input of nothing but fills from taking all the time.
constexpr int MostSteps = 48;

Base::Bytes TwoCopies() {
  std::vector<ChannelRecord> channels;
  for (int i = 1; i <= 300; ++i)
    channels.push_back(Samples::MakeChannel("Rete " + std::to_string(i), 1 + i % 40, i, i % 3 * 500, 200));
  std::vector<TransponderRecord> transponders;
  for (int i = 0; i < 40; ++i)
    transponders.push_back(Samples::MakeTransponder(10720 + 47 * i, i % 2 == 0, i % 2, 1, i % 6));
  Samples::ImageBuilder builder(7);
  builder.PutRecords(1, 0, 16, "TCS", channels).PutRecords(1, 2, 9100, "TPT", transponders);
  channels.erase(channels.begin());
  builder.PutRecords(3, 5, 4000, "TCS", channels);
  builder.PutFavourites(3, 6, 4000 + EntryHeaderSize + 299 * 30, Base::Bytes(NormalFavouritesSize, 0), 90);
  return builder.Image();
}

std::size_t WordAt(Base::ByteView sector, std::size_t at) {
  return static_cast<std::size_t>(sector[at] + 256 * sector[at + 1]);
}

bool Named(Base::ByteView sector, std::size_t entry, std::string_view name) {
  return std::memcmp(sector.data() + entry, name.data(), name.size()) == 0;
}

// One sector of an image, walked for its layout.
class SectorWalk {
 public:
  SectorWalk(Base::ByteView image, std::size_t number, Layout& layout)
      : sector_(image.subspan(number * SectorSize, SectorSize)),
        start_(number * SectorSize),
        layout_(layout) {
    for (std::size_t slot = 0; slot < DirectorySlots; ++slot) {
      const std::size_t offset = WordAt(sector_, 2 * slot);
      if (offset == 0 || offset == 0xFFFF) continue;
      if (std::find(offsets_.begin(), offsets_.end(), offset) != offsets_.end()) layout_.plain = false;
      offsets_.push_back(offset);
    }
  }

  void Run() {
    for (const std::size_t entry : offsets_) {
      if (entry + EntryHeaderSize > SectorSize) continue;
      std::size_t limit = SectorSize;
      for (const std::size_t other : offsets_)
        if (other > entry && other < limit) limit = other;
      const std::size_t length = WordAt(sector_, entry + 10);
      if (Named(sector_, entry, "TCS")) {
        TakeRecords(entry, length, limit, layout_.channels);
        if ((limit - entry - EntryHeaderSize) / ChannelRecord::Size != length / ChannelRecord::Size)
          layout_.plain = false;
      } else if (Named(sector_, entry, "TPT")) {
        TakeRecords(entry, length, limit, layout_.transponders);
        const std::size_t data = std::min(length, SectorSize - entry - EntryHeaderSize);
        layout_.transponderCount =
            static_cast<int>(std::min<std::size_t>(data / TransponderRecord::Size, 254));
      } else if (Named(sector_, entry, "Support")) {
        TakeFavourites(entry, length, limit);
      }
    }
  }

 private:
  void TakeRecords(std::size_t entry, std::size_t length, std::size_t limit, std::vector<Range>& rooms) {
    const std::size_t data = entry + EntryHeaderSize;
    if (data + length > limit) layout_.plain = false;
    if (data >= limit) return;
    rooms.push_back({start_ + data, limit - data});
    layout_.mayChange.push_back(rooms.back());
  }

  void TakeFavourites(std::size_t entry, std::size_t length, std::size_t limit) {
    const std::size_t name = Base::AsText(sector_).find("config.pre", entry);
    if (name == std::string_view::npos) return;
    const std::size_t first = name + 20;
    const std::size_t end = std::min(entry + length, SectorSize + 1) - (length == 0 ? 0 : 1);
    if (name >= limit || first < entry + EntryHeaderSize || end > limit) layout_.plain = false;
    if (first >= end || first >= SectorSize) return;
    layout_.favouritesSize = std::min(end, SectorSize) - first;
    if (first < entry + EntryHeaderSize || first >= limit) return;
    layout_.favourites.push_back({start_ + first, std::min(end, limit) - first});
    layout_.mayChange.push_back(layout_.favourites.back());
  }

  Base::ByteView sector_;
  std::size_t start_;
  Layout& layout_;
  std::vector<std::size_t> offsets_;
};

void Merge(std::vector<Range>& ranges) {
  std::sort(ranges.begin(), ranges.end(),
            [](const Range& one, const Range& other) { return one.first < other.first; });
  std::vector<Range> merged;
  for (const Range& range : ranges) {
    if (merged.empty() || range.first > merged.back().End()) {
      merged.push_back(range);
    } else {
      merged.back().count = std::max(merged.back().End(), range.End()) - merged.back().first;
    }
  }
  ranges = merged;
}

}  // namespace

std::string StepBytes(Step step, std::size_t sector, std::size_t slot, std::size_t operand,
                      std::string_view bytes) {
  std::string text;
  const auto add = [&text](std::size_t byte) { text += static_cast<char>(byte & 255U); };
  add(static_cast<std::size_t>(step) << 6U | sector << 3U | slot);
  add(operand);
  if (step != Step::Fill) add(operand >> 8U);
  if (step == Step::Put || step == Step::Fill) {
    add(bytes.size());
    text += bytes;
  }
  return text;
}

HostileFlash::HostileFlash()
    : beginnings_{Samples::ImageBuilder(3).Image(), Samples::DemoFlash(SymbolRates()), TwoCopies()},
      image_(beginnings_[0]) {}

Base::ByteView HostileFlash::Make(Input& input) {
  const std::size_t wanted = input.Byte() % beginnings_.size();
  for (std::size_t sector = 0; sector < touched_.size(); ++sector) {
    if (wanted == beginning_ && !touched_[sector]) continue;
    std::memcpy(image_.data() + sector * SectorSize, beginnings_[wanted].data() + sector * SectorSize,
                SectorSize);
  }
  beginning_ = wanted;
  touched_.fill(false);
  for (int steps = 0; steps < MostSteps && !input.AtEnd(); ++steps) Take(input);
  return image_;
}

void HostileFlash::Take(Input& input) {
  const std::size_t code = input.Byte();
  const std::size_t sector = code >> 3U & 7U;
  const std::size_t slot = code & 7U;
  const std::size_t entry = WordAt(Base::ByteView(image_).subspan(sector * SectorSize, SectorSize), 2 * slot);
  switch (static_cast<Step>(code >> 6U)) {
    case Step::Directory:
      Put(sector, 2 * slot, input.Run(2));
      break;
    case Step::Length:
      Put(sector, entry + 10, input.Run(2));
      break;
    case Step::Put: {
      const std::size_t behind = input.Word();
      Put(sector, entry + behind, input.Run(input.Byte()));
      break;
    }
    case Step::Fill: {
      Put(sector, entry, Base::AsBytes(EntryNames[input.Byte() % EntryNames.size()]));
      const Base::ByteView pattern = input.Run(input.Byte());
      const std::size_t data = entry + EntryHeaderSize;
      if (pattern.empty() || data > SectorSize) break;
      const std::size_t length =
          image_[sector * SectorSize + entry + 10] + 256U * image_[sector * SectorSize + entry + 11];
      const std::size_t end = std::min(data + length, SectorSize);
      for (std::size_t at = data; at < end; at += pattern.size())
        Put(sector, at, pattern.first(std::min(pattern.size(), end - at)));
      break;
    }
  }
}

void HostileFlash::Put(std::size_t sector, std::size_t at, Base::ByteView bytes) {
  if (at >= SectorSize || bytes.empty()) return;
  std::memcpy(image_.data() + sector * SectorSize + at, bytes.data(),
              std::min(bytes.size(), SectorSize - at));
  touched_[sector] = true;
}

Layout LayoutOf(Base::ByteView image) {
  Layout layout;
  for (std::size_t sector = 0; sector < FlashSize / SectorSize; ++sector)
    SectorWalk(image, sector, layout).Run();
  Merge(layout.mayChange);
  return layout;
}

bool DifferOnlyIn(const std::vector<Range>& mayChange, Base::ByteView one, Base::ByteView other) {
  std::size_t at = 0;
  const auto same = [&](std::size_t end) {
    return std::memcmp(one.data() + at, other.data() + at, end - at) == 0;
  };
  for (const Range& range : mayChange) {
    if (!same(range.first)) return false;
    at = range.End();
  }
  return same(one.size());
}

}  // namespace Fuzz
