#include "formats/list_import.h"

#include <memory>

namespace Formats {

using Routines::State;

ImportReport ImportList(State& state, const std::string& symbolRates, const ListReader& read) {
  auto alone = std::make_unique<State>(state);
  alone->ChannelTable = {};
  alone->TransponderTable = {};
  alone->TransponderCount = 0;
  alone->FavouritesBlock.assign(Routines::NormalFavouritesSize, 0);
  alone->SymbolRateTable = symbolRates;
  ImportReport report = read(*alone);
  report.channelsRead = UsedChannels(*alone, Routines::LastChannelSlot);
  if (!report.changed) return report;

  if (report.listRead) {
    state = *alone;
    state.Loaded = true;
  } else {
    if (report.transpondersRead) state.SymbolRateTable = symbolRates;
    static_cast<void>(read(state));
  }
  state.MaxChannels = state.ChannelCount = std::max(state.ChannelCount, LastUsedChannel(state));
  return report;
}

}  // namespace Formats
