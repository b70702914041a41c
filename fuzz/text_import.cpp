// Importing a list from the text format, and carrying it out and in again.
#include "base/code_page.h"
#include "formats/text_format.h"
#include "fuzz_support.h"
#include "model/favourites.h"

#include <algorithm>

using namespace Fuzz;
using namespace Routines;

namespace {

// Single precision may take 1 MHz off a frequency, and "Auto" the tone, each time a list goes round.
constexpr int MostRounds = 6;

// Reads into an empty list; whether there is a list then.
bool Read(State& state, std::string_view text) {
  static const auto empty = EmptyList();
  state = *empty;
  const Formats::ImportReport report = Formats::ReadText(state, text, "lista.txt", Bouquets());
  CheckList(state);
  Require(state.MaxChannels == state.ChannelCount, "an import's count is the list's");
  Require(!report.listRead || (report.changed && report.transpondersRead),
          "a list read has changed the tables");
  Require(report.listRead || !report.whole, "an import that stops says so");
  return report.listRead;
}

bool Carried(const ChannelRecord& channel) {
  return std::any_of(channel.bytes.begin(), channel.bytes.begin() + ChannelRecord::NameSize,
                     [](Base::Byte byte) { return byte != 0; });
}

// What the first round keeps: the numbers, every name without a byte that could not stand in a line, and favourites.
void CheckFirstRound(const State& one, const State& other) {
  for (int slot = 1; slot <= one.ChannelCount; ++slot) {
    const ChannelRecord& before = one.Channel(slot);
    const ChannelRecord& after = other.Channel(slot);
    if (!Carried(before)) continue;
    const auto numbers = before.bytes.begin() + 17;
    Require(std::equal(numbers, before.bytes.end(), after.bytes.begin() + 17), "a channel's numbers survive");
    const std::string_view name = Base::AsText(before.bytes).substr(0, ChannelRecord::NameSize);
    const bool usual = name.find_first_of(std::string_view("\0\r\n[", 4)) == std::string_view::npos;
    Require(!usual || Base::AsText(after.bytes).starts_with(name), "an ordinary name survives");
  }
  for (int number = 1; number <= one.TransponderCount; ++number) {
    const TransponderRecord& before = one.Transponder(number).record;
    const TransponderRecord& after = other.Transponder(number).record;
    const auto numbers = before.bytes.begin() + 4;
    Require(IsFree(before) || std::equal(numbers, numbers + 5, after.bytes.begin() + 4),
            "a transponder's numbers survive");
  }
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    auto entries = FavouriteEntriesOf(one.FavouritesBlock, list);
    std::erase_if(entries, [](int slot) { return slot > LastChannelSlot; });
    Require(entries == FavouriteEntriesOf(other.FavouritesBlock, list), "favourites survive");
  }
}

// What a list is made of when it has been carried out and in once. Slots past the channel count are not carried.
void CheckSameList(const State& one, const State& other) {
  Require(one.ChannelCount == other.ChannelCount && one.TransponderCount == other.TransponderCount,
          "counts survive a round");
  Require(std::equal(one.ChannelTable.begin() + 1, one.ChannelTable.end(), other.ChannelTable.begin() + 1),
          "channels survive a second round");
  Require(SameFavourites(one, other), "favourites survive a second round");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = Base::AsText({data, size});
  constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
  std::string converted;
  if (text.starts_with(ByteOrderMark)) {
    converted = Base::FromUtf8Lossy(text.substr(ByteOrderMark.size()));
    text = converted;
  }
  const std::string_view some = text.substr(0, 256);
  Require(Base::FromUtf8(Base::ToUtf8(some)) == some, "every byte has a character of its own");

  static const auto before = EmptyList();
  static const auto after = EmptyList();
  if (!Read(*before, text)) return 0;
  std::string exported = Formats::WriteText(*before);
  Require(Read(*after, exported), "an exported list can be imported");
  CheckFirstRound(*before, *after);
  *before = *after;
  for (int round = 1; round <= MostRounds; ++round) {
    std::string again = Formats::WriteText(*before);
    Require(Read(*after, again), "an exported list can be imported again");
    CheckSameList(*before, *after);
    if (again == exported) return 0;
    exported = std::move(again);
    *before = *after;
  }
  Require(false, "a list that goes round settles");
  return 0;
}
