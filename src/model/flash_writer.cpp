#include "model/flash_writer.h"

#include "base/text.h"
#include "model/favourites.h"
#include "model/flash_loader.h"

#include <algorithm>
#include <memory>

namespace Routines {
namespace {

class Writer {
 public:
  Writer(const State& state, Base::ByteView original, const WritePlan& plan)
      : state_(state), original_(original), plan_(plan) {
    patched_.image.assign(original_.begin(), original_.end());
  }

  PatchedFlash Run() {
    for (const Entry& entry : EntriesOf(original_)) {
      switch (entry.kind) {
        case EntryKind::Channels:
          WriteChannels(entry);
          break;
        case EntryKind::Transponders:
          WriteTransponders(entry);
          break;
        case EntryKind::Support:
          WriteFavourites(entry);
          break;
        case EntryKind::Unknown:
          break;
      }
    }
    return std::move(patched_);
  }

 private:
  void Put(std::size_t at, Base::ByteView bytes) {
    std::copy(bytes.begin(), bytes.end(), patched_.image.begin() + static_cast<std::ptrdiff_t>(at));
  }

  void Clear(std::size_t first, std::size_t end) {
    if (first >= end) return;
    const auto begin = patched_.image.begin();
    std::fill(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(end),
              Base::Byte{0});
  }

  void WriteChannels(const Entry& entry) {
    ++patched_.channelSections;
    // Types 1 and 3 keep a second copy of the list, which lacks its first channel; type 2 spreads one list
    // over all sections.
    if (plan_.type != FlashType::Two && patched_.channelSections > 1) channel_ = 1;
    const Range space = RecordSpaceOf(entry);
    std::size_t at = space.first;
    while (at + ChannelRecord::Size <= space.End()) {
      ++channel_;
      if (channel_ > plan_.maxChannels) break;
      Put(at, state_.Channel(channel_).bytes);
      at += ChannelRecord::Size;
    }
    Clear(at, std::min(space.first + entry.length, space.End()));
  }

  void WriteTransponders(const Entry& entry) {
    const Range space = RecordSpaceOf(entry);
    std::size_t at = space.first;
    for (int slot = 1; slot <= state_.TransponderCount; ++slot) {
      if (at + TransponderRecord::Size > space.End()) break;
      Put(at, state_.Transponder(slot).record.bytes);
      at += TransponderRecord::Size;
    }
  }

  void WriteFavourites(const Entry& entry) {
    if (plan_.type != FlashType::Two || IsBlankFavourites(state_.FavouritesBlock)) return;
    const auto area = WritableFavouritesAreaOf(original_, entry);
    if (!area) return;
    const Base::ByteView block = state_.FavouritesBlock;
    const std::size_t count = std::min(block.size(), area->count);
    const Base::ByteView behind = original_.subspan(area->first + count, area->count - count);
    patched_.favouritesCleared += static_cast<int>(
        std::count_if(behind.begin(), behind.end(), [](Base::Byte byte) { return byte != 0; }));
    Put(area->first, block.first(count));
    Clear(area->first + count, area->End());
    patched_.favouritesWritten = true;
  }

  const State& state_;
  Base::ByteView original_;
  const WritePlan& plan_;
  int channel_ = 0;  // last one written
  PatchedFlash patched_;
};

void CompareChannels(const State& state, const State& reloaded, Unwritten& unwritten) {
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& ours = state.Channel(slot);
    const ChannelRecord& theirs = reloaded.Channel(slot);
    if (ours.Empty()) {
      if (!theirs.Empty()) unwritten.extraChannels.push_back(slot);
    } else if (ours != theirs) {
      unwritten.channels.push_back(slot);
    }
  }
}

// An image may hold more transponders than the list: a write leaves those behind its last one as they are.
void CompareTransponders(const State& state, const State& reloaded, Unwritten& unwritten) {
  for (int slot = 1; slot <= std::max(state.TransponderCount, reloaded.TransponderCount); ++slot) {
    const TransponderRow* ours = TransponderInUse(state, static_cast<std::uint32_t>(slot));
    const TransponderRow* theirs = TransponderInUse(reloaded, static_cast<std::uint32_t>(slot));
    const bool same = ours == nullptr || theirs == nullptr ? ours == theirs : ours->record == theirs->record;
    if (!same) ++unwritten.transponders;
  }
}

void CompareFavourites(const State& state, const State& reloaded, Unwritten& unwritten) {
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    if (FavouriteEntriesOf(state.FavouritesBlock, list) !=
        FavouriteEntriesOf(reloaded.FavouritesBlock, list)) {
      unwritten.favourites = true;
    }
    if (FavouriteNameOf(state.FavouritesBlock, list) != FavouriteNameOf(reloaded.FavouritesBlock, list)) {
      unwritten.favouriteNames = true;
    }
  }
}

}  // namespace

PatchedFlash PatchFlash(const State& state, Base::ByteView original, const WritePlan& plan) {
  return Writer(state, original, plan).Run();
}

bool DiffersOnlyInSections(Base::ByteView original, Base::ByteView patched) {
  if (original.size() != FlashSize || patched.size() != FlashSize) return false;
  Base::Bytes expected(patched.begin(), patched.end());
  const auto takeOriginal = [&](const Range& range) {
    const Base::ByteView bytes = original.subspan(range.first, range.count);
    std::copy(bytes.begin(), bytes.end(), expected.begin() + static_cast<std::ptrdiff_t>(range.first));
  };
  for (const Entry& entry : EntriesOf(original)) {
    if (entry.kind == EntryKind::Channels || entry.kind == EntryKind::Transponders)
      takeOriginal(RecordSpaceOf(entry));
    if (entry.kind != EntryKind::Support) continue;
    if (const auto area = WritableFavouritesAreaOf(original, entry)) takeOriginal(*area);
  }
  return std::equal(expected.begin(), expected.end(), original.begin(), original.end());
}

std::string WriteSummary(const State& state, const PatchedFlash& patched) {
  return std::to_string(patched.channelSections) + " Sezioni TCS per " +
         std::to_string(LastUsedChannel(state)) +
         " Canali effettivi\nSezioni Preferiti: " + (patched.favouritesWritten ? "scritta" : "non scritta");
}

std::string Unwritten::Text() const {
  std::string text;
  const auto add = [&text](std::string_view part) { text.append(text.empty() ? "" : ", ").append(part); };
  const auto count = [&add](auto number, std::string_view one, std::string_view many) {
    if (number > 0) add(Base::Counted(number, one, many));
  };
  count(channels.size(), "canale non scritto", "canali non scritti");
  count(extraChannels.size(), "canale in più nell'immagine", "canali in più nell'immagine");
  count(transponders, "transponder diverso", "transponder diversi");
  if (favourites) add("preferiti non scritti");
  if (favouriteNames && !favourites) add("nomi delle liste persi");
  return text;
}

std::string TextOf(const PatchedFlash& patched, const Unwritten& unwritten) {
  std::string text;
  if (!unwritten.Nothing()) text = ": " + unwritten.Text();
  if (patched.favouritesCleared > 0)
    text += ", " + Base::Counted(patched.favouritesCleared, "byte azzerato", "byte azzerati") +
            " in fondo all'area dei preferiti";
  return text;
}

Unwritten FindUnwritten(const State& state, Base::ByteView written, const WritePlan& plan) {
  const auto reloaded = std::make_unique<State>();
  LoadFlash(*reloaded, written, std::min(state.ChannelCount, plan.maxChannels), 0, {});
  Unwritten unwritten;
  CompareChannels(state, *reloaded, unwritten);
  CompareTransponders(state, *reloaded, unwritten);
  if (!IsBlankFavourites(state.FavouritesBlock)) CompareFavourites(state, *reloaded, unwritten);
  return unwritten;
}

}  // namespace Routines
