#include "model/cells.h"

#include "base/text.h"
#include "model/symbol_rates.h"

namespace Routines {
namespace {

template <class Record>
std::string Decimal(const Record& record, const Field<Record>& field) {
  return std::to_string(Get(record, field));
}

// A transponder that no receiver could tune to: outside the band, or without a symbol rate.
bool Doubtful(const State& state, const TransponderRecord& record) {
  const int frequency = FrequencyMHz(record);
  const std::string_view rate =
      SymbolRateText(state.SymbolRateTable, Get(record, TransponderField::SymbolRate));
  return frequency < 10700 || frequency > 12750 || rate.find_first_of("0123456789") == std::string_view::npos;
}

constexpr int FrequencyColumn = 1;

}  // namespace

std::string ChannelCell(const State& state, int slot, int column) {
  using namespace ChannelField;
  const ChannelRecord& channel = state.ChannelTable[static_cast<std::size_t>(slot)];
  if (column == 0) return Base::ZeroPadded(slot, 4);
  if (channel.Empty()) return {};
  switch (column) {
    case 1:
      return std::string(channel.Name());
    case 2:
      return Base::ZeroPadded(static_cast<int>(Get(channel, Transponder)), 3);
    case 3:
      return Decimal(channel, Sid);
    case 4:
      return Decimal(channel, Vpid);
    case 5:
      return Decimal(channel, Apid);
    case 6:
      return Decimal(channel, Aecm);
    case 7:
      return Decimal(channel, Vecm);
    case 8:
      return Decimal(channel, Pcr);
    case 9:
      return Base::HexByte(static_cast<int>(Get(channel, Flags)));
    case 10:
      return Get(channel, Active) != 0 ? "S" : "N";
    default:
      return {};
  }
}

Colour ChannelColour(const State& state, int slot) {
  const ChannelRecord& channel = state.ChannelTable[static_cast<std::size_t>(slot)];
  const ChannelKind kind = KindOf(channel);
  if (kind == ChannelKind::Empty) return Colours::EmptySlot;
  if (Get(channel, ChannelField::Active) == 0) return Colours::Inactive;
  if (kind == ChannelKind::Tv) return Colours::Tv;
  return kind == ChannelKind::Radio ? Colours::Radio : Colours::Service;
}

std::string TransponderCell(const State& state, int slot, int column) {
  using namespace TransponderField;
  const TransponderRow& row = state.TransponderTable[static_cast<std::size_t>(slot)];
  const TransponderRecord& record = row.record;
  switch (column) {
    case 0:
      return Base::ZeroPadded(slot, 3);
    case FrequencyColumn:
      return record.bytes[0] == 0 ? "0" : std::to_string(FrequencyMHz(record));
    case 2:
      return Decimal(record, Tid);
    case 3:
      return Decimal(record, Nid);
    case 4:
      return Decimal(record, ChannelCount);
    case 5:
      return std::string(SymbolRateText(state.SymbolRateTable, Get(record, SymbolRate)));
    case 6:
      return std::string(FecText(record));
    case 7:
      return Get(record, Horizontal) != 0 ? "H" : "V";
    case 8:
      return Get(record, HighBand) != 0 ? "On" : "Off";
    case 9:
      return SatelliteLabel(record);
    case 10:
      return std::string(row.BouquetName());
    default:
      return {};
  }
}

Colour TransponderColour(const State& state, int slot, int column) {
  const TransponderRecord& record = state.TransponderTable[static_cast<std::size_t>(slot)].record;
  if (column == FrequencyColumn && record.bytes[0] == 0) return Colours::NoFrequency;
  if (!IsFree(record) && Doubtful(state, record)) return Colours::DoubtfulTransponder;
  return Colours::Transponder;
}

}  // namespace Routines
