#include "model/cells.h"

#include "base/text.h"
#include "model/symbol_rates.h"

namespace Routines {
namespace {

template <class Record>
std::string Decimal(const Record& record, const Field<Record>& field) {
  return std::to_string(Get(record, field));
}

}  // namespace

std::string CellOf(const ChannelRecord& channel, int column) {
  using namespace ChannelField;
  switch (column) {
    case ChannelColumn::Name:
      return std::string(channel.Name());
    case ChannelColumn::Transponder:
      return Base::ZeroPadded(static_cast<int>(Get(channel, Transponder)), 3);
    case ChannelColumn::Sid:
      return Decimal(channel, Sid);
    case ChannelColumn::Vpid:
      return Decimal(channel, Vpid);
    case ChannelColumn::Apid:
      return Decimal(channel, Apid);
    case ChannelColumn::Aecm:
      return Decimal(channel, Aecm);
    case ChannelColumn::Vecm:
      return Decimal(channel, Vecm);
    case ChannelColumn::Pcr:
      return Decimal(channel, Pcr);
    case ChannelColumn::Flags:
      return Base::HexByte(static_cast<int>(Get(channel, Flags)));
    case ChannelColumn::Active:
      return Get(channel, Active) != 0 ? "S" : "N";
    default:
      return {};
  }
}

std::string CellOf(const TransponderRecord& record, std::string_view rates, int column) {
  using namespace TransponderField;
  switch (column) {
    case TransponderColumn::Frequency:
      return ShowsNoFrequency(record) ? "0" : std::to_string(FrequencyMHz(record));
    case TransponderColumn::Tid:
      return Decimal(record, Tid);
    case TransponderColumn::Nid:
      return Decimal(record, Nid);
    case TransponderColumn::Channels:
      return Decimal(record, ChannelCount);
    case TransponderColumn::SymbolRate:
      return std::string(SymbolRateText(rates, Get(record, SymbolRate)));
    case TransponderColumn::Fec:
      return std::string(FecText(record));
    case TransponderColumn::Polarisation:
      return Get(record, Horizontal) != 0 ? "H" : "V";
    case TransponderColumn::Tone:
      return Get(record, HighBand) != 0 ? "On" : "Off";
    case TransponderColumn::Satellite:
      return SatelliteLabel(record);
    default:
      return {};
  }
}

std::string ChannelCell(const State& state, int slot, int column) {
  const ChannelRecord& channel = state.Channel(slot);
  if (column == ChannelColumn::Number) return Base::ZeroPadded(slot, 4);
  return channel.Empty() ? std::string() : CellOf(channel, column);
}

std::string TransponderCell(const State& state, int slot, int column) {
  const TransponderRow& row = state.Transponder(slot);
  if (column == TransponderColumn::Number) return Base::ZeroPadded(slot, 3);
  if (column == TransponderColumn::Bouquet) return std::string(row.BouquetName());
  return CellOf(row.record, state.SymbolRateTable, column);
}

}  // namespace Routines
