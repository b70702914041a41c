#include "model/row_kind.h"

#include "model/symbol_rates.h"

namespace Routines {
namespace {

// A transponder that no receiver could tune to: outside the band, or without a symbol rate.
bool Doubtful(const State& state, const TransponderRecord& record) {
  const int frequency = FrequencyMHz(record);
  const std::string_view rate =
      SymbolRateText(state.SymbolRateTable, Get(record, TransponderField::SymbolRate));
  return frequency < 10700 || frequency > 12750 || rate.find_first_of("0123456789") == std::string_view::npos;
}

}  // namespace

RowKind RowKindOf(const ChannelRecord& channel) {
  const ChannelKind kind = KindOf(channel);
  if (kind == ChannelKind::Empty) return RowKind::EmptySlot;
  if (Get(channel, ChannelField::Active) == 0) return RowKind::Inactive;
  if (kind == ChannelKind::Tv) return RowKind::Tv;
  return kind == ChannelKind::Radio ? RowKind::Radio : RowKind::Service;
}

RowKind ChannelRowKind(const State& state, int slot) { return RowKindOf(state.Channel(slot)); }

RowKind TransponderRowKind(const State& state, int slot) {
  const TransponderRecord& record = state.Transponder(slot).record;
  if (IsFree(record)) return RowKind::FreeTransponder;
  return Doubtful(state, record) ? RowKind::DoubtfulTransponder : RowKind::Transponder;
}

std::string_view RowKindText(RowKind kind) {
  switch (kind) {
    case RowKind::Tv:
      return "TV";
    case RowKind::Radio:
      return "Radio";
    case RowKind::Service:
      return "Servizio";
    case RowKind::Inactive:
      return "Non attivo";
    case RowKind::EmptySlot:
      return "Posto vuoto";
    case RowKind::DoubtfulTransponder:
      return "Fuori banda o senza SR";
    case RowKind::FreeTransponder:
      return "Posto libero";
    case RowKind::Transponder:
      break;
  }
  return {};
}

}  // namespace Routines
