#include "model/other_list.h"

namespace Routines {

OtherChannel OtherChannelOf(const State& state, int slot) {
  const ChannelRecord& record = state.Channel(slot);
  const std::uint32_t transponder = Get(record, ChannelField::Transponder);
  return {record, TransponderInUse(state, transponder) == nullptr ? 0 : static_cast<int>(transponder), {}};
}

OtherList OtherListOf(const State& flash) {
  OtherList list;
  for (int slot = 1; slot <= flash.ChannelCount; ++slot) list.channels.push_back(OtherChannelOf(flash, slot));
  for (int slot = 1; slot <= flash.TransponderCount; ++slot)
    list.transponders.push_back(flash.Transponder(slot).record);
  list.offered = list.Count();
  list.symbolRates = flash.SymbolRateTable;
  list.satellites.set();
  list.flash = true;
  list.favourites = flash.FavouritesBlock;
  return list;
}

}  // namespace Routines
