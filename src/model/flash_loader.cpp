#include "model/flash_loader.h"

#include "base/text.h"
#include "model/write_settings.h"

#include <cstring>
#include <memory>

namespace Routines {
namespace {

template <class Record>
std::vector<Record> RecordsAt(Base::ByteView image, const Entry& entry) {
  const Range data = DataOf(entry);
  std::vector<Record> records(data.count / Record::Size);
  if (!records.empty()) std::memcpy(records.data(), image.data() + data.first, records.size() * Record::Size);
  return records;
}

int UsedIn(const std::vector<ChannelRecord>& records) {
  return static_cast<int>(
      std::count_if(records.begin(), records.end(), [](const ChannelRecord& r) { return !r.Empty(); }));
}

// Receivers with two copies of their list begin the second one at its first or its second channel.
bool Repeats(const std::vector<ChannelRecord>& section, const std::vector<ChannelRecord>& first) {
  for (const std::size_t skipped : {0U, 1U}) {
    if (section.size() < 2 || first.size() <= skipped) continue;
    const std::size_t count = std::min(section.size(), first.size() - skipped);
    if (std::equal(section.begin(), section.begin() + static_cast<std::ptrdiff_t>(count),
                   first.begin() + static_cast<std::ptrdiff_t>(skipped))) {
      return true;
    }
  }
  return false;
}

class Loader {
 public:
  Loader(State& state, Base::ByteView image, int appendStart, const BouquetTables& bouquets)
      : state_(state), image_(image), bouquets_(bouquets), appendStart_(appendStart), slot_(appendStart) {}

  LoadReport Run() {
    for (const Entry& entry : EntriesOf(image_)) {
      switch (entry.kind) {
        case EntryKind::Channels:
          TakeChannels(RecordsAt<ChannelRecord>(image_, entry));
          break;
        case EntryKind::Transponders:
          TakeTransponders(RecordsAt<TransponderRecord>(image_, entry));
          break;
        case EntryKind::Support:
          TakeFavourites(entry);
          break;
        case EntryKind::Unknown:
          break;
      }
    }
    if (Appending()) RenumberTransponders();
    FindStranded();
    return report_;
  }

 private:
  [[nodiscard]] bool Appending() const { return appendStart_ > 0; }

  void TakeChannels(std::vector<ChannelRecord> records) {
    const bool repeats = channelSections_ > 0 && Repeats(records, firstSection_);
    if (!repeats) report_.channelsInImage += UsedIn(records);
    ++channelSections_;
    if (channelSections_ == 1 || slot_ < state_.MaxChannels) {
      report_.repeats = report_.repeats || repeats;
      for (const ChannelRecord& record : records) {
        if (slot_ >= state_.MaxChannels) break;
        ++slot_;
        // An empty record keeps its slot, so that channel numbers are the receiver's.
        state_.Channel(slot_) = record.Empty() ? ChannelRecord{} : record;
        if (!record.Empty()) ++report_.channelsRead;
      }
    }
    if (channelSections_ == 1) firstSection_ = std::move(records);
  }

  void TakeTransponders(const std::vector<TransponderRecord>& records) {
    state_.TransponderCount = static_cast<int>(std::min<std::size_t>(records.size(), LastTransponderSlot));
    for (int number = 1; number <= state_.TransponderCount; ++number) {
      const TransponderRecord& record = records[static_cast<std::size_t>(number - 1)];
      if (Appending()) {
        Merge(number, record);
      } else {
        state_.Transponder(number).record = record;
      }
    }
    NameBouquets(state_, bouquets_);
  }

  // Finds or makes the slot of the second flash's transponder `number`.
  void Merge(int number, const TransponderRecord& record) {
    if (IsFree(record)) return;
    int slot = FindOrAddTransponder(state_, record).slot;
    if (slot == 0) {
      slot = state_.TransponderCount;
      unplaced_[static_cast<std::size_t>(number)] = true;
      ++report_.unplacedTransponders;
      report_.messages.push_back(TooManyTransponders(slot));
    }
    mapping_[static_cast<std::size_t>(number)] = slot;
  }

  void TakeFavourites(const Entry& entry) {
    if (Appending()) return;
    const auto area = FavouritesAreaOf(image_, entry);
    if (!area) return;
    const Base::ByteView bytes = image_.subspan(area->first, area->count);
    state_.FavouritesBlock.assign(bytes.begin(), bytes.end());
  }

  void RenumberTransponders() {
    const int last = LastUsedChannel(state_);
    for (int i = appendStart_ + 1; i <= last; ++i) {
      ChannelRecord& channel = state_.Channel(i);
      const std::size_t number = Get(channel, ChannelField::Transponder);
      if (number >= mapping_.size() || mapping_[number] == 0) continue;
      Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(mapping_[number]));
      if (unplaced_[number]) report_.linkedToLast.push_back(i);
    }
  }

  void FindStranded() {
    const auto past = static_cast<std::uint32_t>(state_.TransponderCount);
    for (int slot = 1; slot <= LastChannelSlot; ++slot) {
      const ChannelRecord& channel = state_.Channel(slot);
      if (!channel.Empty() && Get(channel, ChannelField::Transponder) > past)
        report_.stranded.push_back(slot);
    }
  }

  State& state_;
  Base::ByteView image_;
  const BouquetTables& bouquets_;
  int appendStart_;
  int slot_;  // last one filled
  int channelSections_ = 0;
  std::vector<ChannelRecord> firstSection_;
  std::array<int, LastTransponderSlot + 1>
      mapping_{};  // second flash's number -> slot, 0 where there is none
  std::array<bool, LastTransponderSlot + 1> unplaced_{};  // and that slot is not its own
  LoadReport report_;
};

}  // namespace

LoadReport LoadFlash(State& state, Base::ByteView image, int capacity, int appendStart,
                     const BouquetTables& bouquets) {
  if (appendStart == 0) {
    state.ChannelTable = {};
    state.TransponderTable = {};
    state.TransponderCount = 0;
    state.FavouritesBlock.assign(NormalFavouritesSize, 0);
    state.FromFls = false;
    state.MaxChannels = capacity;
  } else {
    state.MaxChannels = std::min(state.ChannelCount + capacity, LastChannelSlot);
  }
  state.ChannelCount = state.MaxChannels;
  state.Loaded = true;
  return Loader(state, image, appendStart, bouquets).Run();
}

int CapacityOf(Base::ByteView image) {
  const auto state = std::make_unique<State>();
  int capacity = 0;
  for (const CapacityOption& option : QuantiCanali) {
    if (capacity == 0 || !LoadFlash(*state, image, option.channels, 0, {}).repeats)
      capacity = option.channels;
  }
  return capacity;
}

std::string TextOf(const LoadReport& report, int count, bool appended) {
  const bool part = report.channelsInImage > report.channelsRead;
  std::string text = appended ? "accodat" : "lett";
  text += report.channelsRead == 1 && !part ? "o " : "i ";
  text +=
      part ? std::to_string(report.channelsRead) + " di " + std::to_string(report.channelsInImage) + " canali"
           : Base::Counted(report.channelsRead, "canale", "canali");
  if (report.unplacedTransponders > 0) {
    text += ", " + std::to_string(report.unplacedTransponders) + " transponder senza posto: " +
            Base::Counted(report.linkedToLast.size(), "canale collegato", "canali collegati") +
            " al transponder " + std::to_string(count);
  }
  if (!report.stranded.empty()) {
    text += ", " + Base::Counted(report.stranded.size(), "canale", "canali") + " su transponder oltre il " +
            std::to_string(count);
  }
  return text;
}

std::string TooManyTransponders(int count) {
  const std::string number = std::to_string(count);
  return "Superato il numero di transponders gestibili " + number +
         "\ncollego i canali restanti sul transponder " + number;
}

}  // namespace Routines
