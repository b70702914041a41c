#include "edit/clipboard.h"

#include "model/cells.h"

namespace Edit {
namespace {

using namespace Routines;

TransponderRecord TransponderOf(const State& state, const ChannelRecord& channel) {
  const std::uint32_t number = Get(channel, ChannelField::Transponder);
  const bool known = !channel.Empty() && number >= 1 && static_cast<int>(number) <= state.TransponderCount;
  return known ? state.TransponderTable[number].record : TransponderRecord{};
}

// Links a channel of another list to its transponder here; false when there is no slot for it.
bool LinkTransponder(State& state, ChannelRecord& channel, const TransponderRecord& transponder,
                     const BouquetTables& bouquets) {
  if (IsFree(transponder)) return true;
  const int slot = FindOrAddTransponder(state, transponder);
  // A slot that was free has no bouquet yet; for one that was found the look-up gives what it has.
  TransponderRow& row = state.TransponderTable[static_cast<std::size_t>(slot)];
  if (slot != 0 && row.record == transponder) NameBouquet(row, bouquets);
  const int linked = slot != 0 ? slot : state.TransponderCount;
  Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(linked));
  return slot != 0;
}

}  // namespace

Clipboard CopyChannels(const State& state, Slots slots) {
  Clipboard clipboard;
  clipboard.listNumber = state.ListNumber;
  for (int slot = slots.first; slot <= slots.last; ++slot) {
    clipboard.channels.push_back(state.ChannelTable[static_cast<std::size_t>(slot)]);
    clipboard.transponders.push_back(TransponderOf(state, clipboard.channels.back()));
  }
  return clipboard;
}

std::vector<LostFavourite> CutChannels(State& state, Slots slots, Clipboard& clipboard) {
  std::vector<LostFavourite> lost = DeleteChannels(state, slots);
  clipboard.cut = lost;
  clipboard.cutNumber = ++state.CutNumber;
  for (LostFavourite& entry : clipboard.cut) entry.slot -= slots.first;
  return lost;
}

Base::Result<PasteReport> Paste(State& state, const Clipboard& clipboard, int position, PasteWay way,
                                const BouquetTables& bouquets) {
  const bool fits = position >= 1 && position + clipboard.Count() - 1 <= state.ChannelCount;
  if (!fits || (way == PasteWay::Move && !MakeRoom(state, position, clipboard.Count()))) {
    return Base::Error{std::string(InvalidPosition)};
  }
  PasteReport report;
  const bool otherList = clipboard.listNumber != state.ListNumber;
  for (std::size_t i = 0; i < clipboard.channels.size(); ++i) {
    ChannelRecord channel = clipboard.channels[i];
    if (otherList && !LinkTransponder(state, channel, clipboard.transponders[i], bouquets))
      ++report.withoutTransponder;
    state.ChannelTable[static_cast<std::size_t>(position) + i] = channel;
  }
  if (!otherList && clipboard.cutNumber == state.CutNumber) {
    for (const LostFavourite& entry : clipboard.cut) {
      if (InsertFavourite(state.FavouritesBlock, entry.list, entry.place, position + entry.slot))
        ++report.favouritesBack;
    }
  }
  CanaliXTransponder(state);
  return report;
}

std::string TabSeparated(const State& state, Slots slots) {
  constexpr int Columns = 11;
  std::string text;
  for (int slot = slots.first; slot <= slots.last; ++slot) {
    for (int column = 0; column < Columns; ++column) {
      std::string cell = ChannelCell(state, slot, column);
      // A control byte of a name would begin another cell or line.
      std::replace_if(
          cell.begin(), cell.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
      text += cell + (column + 1 < Columns ? "\t" : "\r\n");
    }
  }
  return text;
}

}  // namespace Edit
