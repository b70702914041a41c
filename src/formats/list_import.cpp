#include "formats/list_import.h"

#include "base/text.h"

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

std::string TextOf(const ImportReport& report) {
  std::string text = report.channelsRead == 1 ? "importato " : "importati ";
  text += Base::Counted(report.channelsRead, "canale", "canali");
  if (report.unknownRates > 0)
    text += ", " + std::to_string(report.unknownRates) + " transponder con SR che SR.INI non ha";
  if (const std::string codings = report.codings.Text(); !codings.empty()) text += ", " + codings;
  return text;
}

}  // namespace Formats
