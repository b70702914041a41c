#include "formats/flash_rows.h"

#include "base/text.h"
#include "model/flash_loader.h"
#include "model/symbol_rates.h"

#include <memory>

namespace Formats {
namespace {

using namespace Routines;

char TypeOf(const ChannelRecord& channel) {
  const ChannelKind kind = KindOf(channel);
  return kind == ChannelKind::Tv ? 'T' : kind == ChannelKind::Radio ? 'R' : 'S';
}

SdxRow RowOf(const ChannelRecord& channel, const TransponderRow& transponder, std::string_view symbolRates) {
  constexpr std::string_view FecDigits = "12357";
  const auto number = [&channel](const Field<ChannelRecord>& field) {
    return std::to_string(Get(channel, field));
  };
  const TransponderRecord& record = transponder.record;
  const std::uint32_t fec = Get(record, TransponderField::Fec);
  SdxRow row;
  row.name = channel.Name();
  row.type = TypeOf(channel);
  row.satellite = static_cast<int>(Get(record, TransponderField::Satellite));
  row.frequency = Base::ZeroPadded(FrequencyMHz(record), 6);
  row.highBand = Get(record, TransponderField::HighBand) != 0;
  row.horizontal = Get(record, TransponderField::Horizontal) != 0;
  row.symbolRate = SymbolRateText(symbolRates, Get(record, TransponderField::SymbolRate));
  if (fec < FecDigits.size()) row.fec = FecDigits.substr(fec, 1);
  row.vpid = number(ChannelField::Vpid);
  row.apid = number(ChannelField::Apid);
  row.pcr = number(ChannelField::Pcr);
  row.sid = number(ChannelField::Sid);
  row.aecm = number(ChannelField::Aecm);
  row.vecm = number(ChannelField::Vecm);
  row.nid = std::to_string(Get(record, TransponderField::Nid));
  row.tid = Base::ZeroPadded(static_cast<int>(Get(record, TransponderField::Tid)), 5);
  row.codifica = static_cast<int>(Get(channel, ChannelField::Flags));
  row.bouquet = Base::TrimmedRight(transponder.BouquetName());
  row.transponder = record;
  return row;
}

}  // namespace

SdxTable ReadFlashRows(Base::ByteView image, std::string_view symbolRates, const BouquetTables& bouquets) {
  const auto state = std::make_unique<State>();
  const LoadReport report = LoadFlash(*state, image, LastChannelSlot, 0, bouquets);
  SdxTable table;
  // What is read past the channels that count is the second copy.
  for (int slot = 1; slot <= state->ChannelCount && table.lines < report.channelsInImage; ++slot) {
    const ChannelRecord& channel = state->Channel(slot);
    if (channel.Empty()) continue;
    ++table.lines;
    const TransponderRow* transponder = TransponderInUse(*state, Get(channel, ChannelField::Transponder));
    if (transponder == nullptr) {
      table.dropped.Add(Drop::NoTransponder);
      continue;
    }
    table.rows.push_back(RowOf(channel, *transponder, symbolRates));
  }
  return table;
}

}  // namespace Formats
