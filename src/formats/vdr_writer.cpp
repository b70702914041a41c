#include "formats/vdr_writer.h"

#include "base/code_page.h"
#include "base/text.h"
#include "formats/foreign_fields.h"
#include "model/symbol_rates.h"

#include <algorithm>

namespace Formats {
namespace {

using namespace Routines;

// A colon divides fields and is written as a bar; a semicolon and control characters have no place in a name.
std::string NameText(std::string_view bytes) {
  std::string text(Base::Trimmed(bytes));
  for (char& c : text) {
    if (c == ':') c = '|';
    if (c == ';' || static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return Base::ToUtf8(text);
}

// What stands behind the last comma would be a short name.
std::string FirstField(const ChannelRecord& channel, const TransponderRow& transponder) {
  std::string name = NameText(channel.Name());
  if (name.find(',') != std::string::npos) name += ',';
  const std::string provider = NameText(transponder.BouquetName());
  return provider.empty() || provider == "Nessuno" ? name : name + ";" + provider;
}

std::string Parameters(const TransponderRecord& record) {
  const std::string_view fec = FecText(record);
  std::string text = Get(record, TransponderField::Horizontal) != 0 ? "H" : "V";
  if (fec.size() == 3) text.append("C").append(1, fec[0]).append(1, fec[2]);
  return text + "M2S0";
}

std::string VideoField(const ChannelRecord& channel) {
  const std::uint32_t vpid = Get(channel, ChannelField::Vpid);
  const std::uint32_t pcr = Get(channel, ChannelField::Pcr);
  std::string text = HasStream(vpid) ? std::to_string(vpid) : "0";
  if (HasStream(pcr) && pcr != vpid) text += "+" + std::to_string(pcr);
  return HasStream(vpid) ? text + "=2" : text;
}

std::string Line(const ChannelRecord& channel, const TransponderRow& row, const std::string& source,
                 int rate) {
  const TransponderRecord& record = row.record;
  const std::uint32_t apid = Get(channel, ChannelField::Apid);
  std::string line = FirstField(channel, row);
  const auto add = [&line](const std::string& field) { line += ":" + field; };
  add(std::to_string(FrequencyMHz(record)));
  add(Parameters(record));
  add(source);
  add(std::to_string(rate));
  add(VideoField(channel));
  add(std::to_string(HasStream(apid) ? apid : 0));
  add("0");
  const int system = SystemOfCodifica(static_cast<int>(Get(channel, ChannelField::Flags)));
  add(system == 0 ? "0" : Base::HexByte(system / 256) + Base::HexByte(system % 256));
  add(std::to_string(Get(channel, ChannelField::Sid)));
  add(std::to_string(Get(record, TransponderField::Nid)));
  add(std::to_string(Get(record, TransponderField::Tid)));
  add("0");
  return line + "\n";
}

}  // namespace

VdrText WriteVdrChannels(const State& state, const std::vector<int>& slots,
                         const std::map<int, std::string>& sources) {
  VdrText written;
  for (const int slot : slots) {
    const ChannelRecord& channel = state.Channel(slot);
    if (channel.Empty()) continue;
    const TransponderRow* row = TransponderInUse(state, Get(channel, ChannelField::Transponder));
    const int rate = row == nullptr
                         ? 0
                         : Base::LeadingCount(SymbolRateText(state.SymbolRateTable,
                                                             Get(row->record, TransponderField::SymbolRate)),
                                              99999);
    if (rate == 0) {
      ++written.leftOut;
      continue;
    }
    const int satellite = static_cast<int>(Get(row->record, TransponderField::Satellite));
    const auto source = sources.find(satellite);
    if (source == sources.end()) {
      written.unknown.insert(satellite);
    } else {
      written.text += Line(channel, *row, source->second, rate);
    }
  }
  return written;
}

}  // namespace Formats
