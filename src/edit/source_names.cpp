#include "edit/source_names.h"

#include "base/text.h"

#include <map>

namespace Edit {

using namespace Routines;

namespace {

bool SameService(const TransponderRecord& transponder, const Formats::SdxRow& row) {
  return static_cast<int>(Get(transponder, TransponderField::Satellite)) == row.satellite &&
         (Get(transponder, TransponderField::Horizontal) != 0) == row.horizontal &&
         WithinThreeMHz(FrequencyMHz(transponder), Base::LeadingNumber(row.frequency));
}

}  // namespace

SourceName NamesOf(const State& state, const Formats::SdxTable& source) {
  if (source.rows.empty()) return {};
  std::multimap<int, const Formats::SdxRow*> bySid;
  for (const Formats::SdxRow& row : source.rows) bySid.emplace(Base::LeadingNumber(row.sid), &row);
  std::map<int, std::string> names;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    const TransponderRow* transponder = TransponderInUse(state, Get(channel, ChannelField::Transponder));
    if (channel.Empty() || transponder == nullptr) continue;
    const auto rows = bySid.equal_range(static_cast<int>(Get(channel, ChannelField::Sid)));
    const auto same = std::find_if(rows.first, rows.second, [&](const auto& row) {
      return SameService(transponder->record, *row.second);
    });
    if (same != rows.second) names.emplace(slot, Base::Trimmed(same->second->name));
  }
  return [names = std::move(names)](int slot) {
    const auto name = names.find(slot);
    return name == names.end() || name->second.empty() ? std::nullopt : std::optional(name->second);
  };
}

}  // namespace Edit
