#include "formats/source_names.h"

#include "base/text.h"

#include <algorithm>
#include <map>
#include <set>

namespace Formats {

using namespace Routines;

namespace {

bool SameService(const TransponderRecord& transponder, const SdxRow& row) {
  return static_cast<int>(Get(transponder, TransponderField::Satellite)) == row.satellite &&
         (Get(transponder, TransponderField::Horizontal) != 0) == row.horizontal &&
         WithinThreeMHz(FrequencyMHz(transponder), Base::LeadingNumber(row.frequency));
}

// Calls `take` with each channel and every row that is its service.
template <class Take>
void ForEachRow(const SdxTable& source, const State& state, const Take& take) {
  std::multimap<int, const SdxRow*> bySid;
  for (const SdxRow& row : source.rows) bySid.emplace(Base::LeadingNumber(row.sid), &row);
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    const TransponderRow* transponder = TransponderInUse(state, Get(channel, ChannelField::Transponder));
    if (channel.Empty() || transponder == nullptr) continue;
    const auto rows = bySid.equal_range(static_cast<int>(Get(channel, ChannelField::Sid)));
    for (auto row = rows.first; row != rows.second; ++row)
      if (SameService(transponder->record, *row->second)) take(slot, channel, *row->second);
  }
}

std::uint32_t StreamOf(std::uint32_t pid) { return HasStream(pid) ? pid : 0; }

// A row says "65535" where there is no stream.
bool SameStreams(const ChannelRecord& channel, const SdxRow& row) {
  const auto same = [&](const Field<ChannelRecord>& field, std::string_view text) {
    return StreamOf(Get(channel, field)) == StreamOf(static_cast<std::uint32_t>(Base::LeadingNumber(text)));
  };
  return same(ChannelField::Vpid, row.vpid) && same(ChannelField::Apid, row.apid);
}

}  // namespace

std::map<int, std::string> NamesFrom(const SdxTable& source, const State& state) {
  std::map<int, std::string> names;
  std::set<int> seen;
  ForEachRow(source, state, [&](int slot, const ChannelRecord&, const SdxRow& row) {
    const std::string_view name = Base::Trimmed(row.name);
    if (seen.insert(slot).second && !name.empty()) names.emplace(slot, name);
  });
  return names;
}

PerChannel<int> RanksBySource(const SdxTable& source, const State& state) {
  PerChannel<int> ranks;
  ForEachRow(source, state, [&](int slot, const ChannelRecord& channel, const SdxRow& row) {
    ranks[slot] = std::max(ranks[slot], SameStreams(channel, row) ? 2 : 1);
  });
  return ranks;
}

}  // namespace Formats
