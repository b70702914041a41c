#include "model/order.h"

#include "base/text.h"
#include "model/favourites.h"

namespace Routines {

OrderEntry OrderEntryOf(const State& state, int slot) {
  const ChannelRecord& channel = state.Channel(slot);
  OrderEntry entry;
  entry.number = slot;
  entry.name = Base::TrimmedRight(channel.Name());
  entry.sid = static_cast<int>(Get(channel, ChannelField::Sid));
  if (const TransponderRow* row = TransponderInUse(state, Get(channel, ChannelField::Transponder))) {
    entry.nid = static_cast<int>(Get(row->record, TransponderField::Nid));
    entry.tid = static_cast<int>(Get(row->record, TransponderField::Tid));
  }
  return entry;
}

Order OrderOf(const State& state) {
  Order order;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    if (!state.Channel(slot).Empty()) order.entries.push_back(OrderEntryOf(state, slot));
  }
  return order;
}

Order OrderOfFavourites(const State& state, std::size_t list) {
  Order order;
  for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list)) {
    if (slot > state.ChannelCount || state.Channel(slot).Empty()) continue;
    order.entries.push_back(OrderEntryOf(state, slot));
    order.entries.back().number = 0;
  }
  return order;
}

}  // namespace Routines
