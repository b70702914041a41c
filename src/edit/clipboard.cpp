#include "edit/clipboard.h"

#include "base/text.h"
#include "model/cells.h"
#include "model/symbol_rates.h"

namespace Edit {
namespace {

using namespace Routines;

TransponderRecord TransponderOf(const State& state, const ChannelRecord& channel) {
  const TransponderRow* known = TransponderInUse(state, Get(channel, ChannelField::Transponder));
  return channel.Empty() || known == nullptr ? TransponderRecord{} : known->record;
}

// Links a channel to its transponder where that is another slot than the channel says: in another list, or where the
// slot has been cleared since. False when there is no slot for it.
bool LinkTransponder(State& state, ChannelRecord& channel, const Clipboard& clipboard,
                     TransponderRecord transponder, const BouquetTables& bouquets) {
  if (IsFree(transponder)) return true;
  // A byte has room for one number more than the table.
  const std::uint32_t number = Get(channel, ChannelField::Transponder);
  const bool isSlot = number <= LastTransponderSlot && !IsFree(state.Transponder(number).record);
  if (clipboard.listNumber == state.ListNumber && isSlot) return true;
  const auto code = RecodedRate(clipboard.symbolRates, state.SymbolRateTable,
                                Get(transponder, TransponderField::SymbolRate));
  Set(transponder, TransponderField::SymbolRate, static_cast<std::uint32_t>(code));
  const TransponderSlot found = FindOrAddTransponder(state, transponder);
  if (found.added) NameBouquet(state.Transponder(found.slot), bouquets);
  const int linked = found.slot != 0 ? found.slot : state.TransponderCount;
  Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(linked));
  return found.slot != 0;
}

}  // namespace

Clipboard CopyChannels(const State& state, const Slots& slots) {
  Clipboard clipboard;
  clipboard.listNumber = state.ListNumber;
  clipboard.symbolRates = state.SymbolRateTable;
  for (const int slot : slots) {
    clipboard.channels.push_back(state.Channel(slot));
    clipboard.transponders.push_back(TransponderOf(state, clipboard.channels.back()));
  }
  return clipboard;
}

std::vector<LostFavourite> CutChannels(State& state, const Slots& slots, Clipboard& clipboard) {
  std::vector<LostFavourite> lost = DeleteSlots(state, slots);
  clipboard.wasCut = true;
  clipboard.cut = lost;
  if (!lost.empty()) clipboard.cutNumber = ++state.CutNumber;
  for (LostFavourite& entry : clipboard.cut) {
    const auto at = std::lower_bound(slots.begin(), slots.end(), entry.slot);
    entry.slot = static_cast<int>(at - slots.begin());
  }
  return lost;
}

Base::Result<PasteReport> Paste(State& state, const Clipboard& clipboard, int position, PasteWay way,
                                const BouquetTables& bouquets) {
  PasteReport report;
  if (position < 1 || position + clipboard.Count() - 1 > state.ChannelCount)
    return Base::Error{std::string(InvalidPosition)};
  if (way == PasteWay::Move) {
    auto lost = MakeRoom(state, position, clipboard.Count());
    if (!lost) return lost.error();
    report.lost = std::move(*lost);
  }
  for (std::size_t i = 0; i < clipboard.channels.size(); ++i) {
    ChannelRecord channel = clipboard.channels[i];
    if (!LinkTransponder(state, channel, clipboard, clipboard.transponders[i], bouquets))
      ++report.withoutTransponder;
    state.Channel(static_cast<std::size_t>(position) + i) = channel;
  }
  if (clipboard.listNumber == state.ListNumber && clipboard.cutNumber == state.CutNumber) {
    for (const LostFavourite& entry : clipboard.cut) {
      const bool back =
          InsertFavourite(state.FavouritesBlock, entry.list, entry.place, position + entry.slot);
      ++(back ? report.favouritesBack : report.favouritesFull);
    }
  }
  CanaliXTransponder(state);
  return report;
}

std::string TabSeparated(const State& state, const Slots& slots) {
  constexpr int Columns = 11;
  std::string text;
  for (const int slot : slots) {
    for (int column = 0; column < Columns; ++column) {
      std::string cell(Base::TrimmedRight(ChannelCell(state, slot, column)));
      // A control byte of a name would begin another cell or line.
      std::replace_if(
          cell.begin(), cell.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
      text += cell + (column + 1 < Columns ? "\t" : "\r\n");
    }
  }
  return text;
}

}  // namespace Edit
