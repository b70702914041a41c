#include "formats/source_names.h"

#include "base/text.h"

#include <map>

namespace Formats {

using namespace Routines;

namespace {

bool SameService(const TransponderRecord& transponder, const SdxRow& row) {
  return static_cast<int>(Get(transponder, TransponderField::Satellite)) == row.satellite &&
         (Get(transponder, TransponderField::Horizontal) != 0) == row.horizontal &&
         WithinThreeMHz(FrequencyMHz(transponder), Base::LeadingNumber(row.frequency));
}

}  // namespace

std::map<int, std::string> NamesFrom(const SdxTable& source, const State& state) {
  std::multimap<int, const SdxRow*> bySid;
  for (const SdxRow& row : source.rows) bySid.emplace(Base::LeadingNumber(row.sid), &row);
  std::map<int, std::string> names;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    const TransponderRow* transponder = TransponderInUse(state, Get(channel, ChannelField::Transponder));
    if (channel.Empty() || transponder == nullptr) continue;
    const auto rows = bySid.equal_range(static_cast<int>(Get(channel, ChannelField::Sid)));
    const auto same = std::find_if(rows.first, rows.second, [&](const auto& row) {
      return SameService(transponder->record, *row.second);
    });
    if (same == rows.second) continue;
    if (const std::string_view name = Base::Trimmed(same->second->name); !name.empty())
      names.emplace(slot, name);
  }
  return names;
}

}  // namespace Formats
