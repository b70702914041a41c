#include "review/duplicates.h"

#include "base/names.h"
#include "base/text.h"
#include "model/favourites.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace Review {
namespace {

using namespace Routines;

// Which slots belong together, as a forest in which every slot knows one that is nearer to its group's first slot.
class Groups {
 public:
  Groups() { std::iota(parents_.values.begin(), parents_.values.end(), 0); }

  void Join(int one, int other) {
    const auto [low, high] = std::minmax({First(one), First(other)});
    parents_[high] = low;
  }

  int First(int slot) {
    while (parents_[slot] != slot) slot = parents_[slot] = parents_[parents_[slot]];
    return slot;
  }

 private:
  PerChannel<int> parents_;
};

// SID 0 names no service. Where TID and NID are both 0 they name no transponder, and its number stands in for them.
std::optional<std::uint64_t> ServiceKey(const TransponderRecord& transponder, const ChannelRecord& channel) {
  const std::uint64_t sid = Get(channel, ChannelField::Sid);
  if (sid == 0) return std::nullopt;
  const std::uint64_t network =
      Get(transponder, TransponderField::Tid) << 16U | Get(transponder, TransponderField::Nid);
  const std::uint64_t number = network == 0 ? Get(channel, ChannelField::Transponder) : 0;
  const std::uint64_t satellite = Get(transponder, TransponderField::Satellite);
  return number << 56U | satellite << 48U | network << 16U | sid;
}

std::uint64_t StreamOf(std::uint32_t pid) { return pid == AbsentPid ? 0 : pid; }

// Without a SID and any stream there is nothing that two channels could have in common.
std::optional<std::uint64_t> StreamsKey(const ChannelRecord& channel) {
  const std::uint64_t sid = Get(channel, ChannelField::Sid);
  const std::uint64_t vpid = StreamOf(Get(channel, ChannelField::Vpid));
  const std::uint64_t apid = StreamOf(Get(channel, ChannelField::Apid));
  if (sid == 0 && KindOf(channel) == ChannelKind::Service) return std::nullopt;
  const std::uint64_t number = Get(channel, ChannelField::Transponder);
  return number << 48U | sid << 32U | vpid << 16U | apid;
}

// What a channel is known by under the rules.
struct Keys {
  std::optional<std::uint64_t> service;
  std::optional<std::uint64_t> streams;
  std::optional<std::string> name;
};

const TransponderRow* TransponderOf(const State& state, int slot) {
  const ChannelRecord& channel = state.Channel(slot);
  return channel.Empty() ? nullptr : TransponderInUse(state, Get(channel, ChannelField::Transponder));
}

Keys KeysOf(const State& state, int slot, const DuplicateRules& rules) {
  Keys keys;
  const ChannelRecord& channel = state.Channel(slot);
  const TransponderRow* transponder = TransponderOf(state, slot);
  if (transponder == nullptr) return keys;
  if (rules.service) keys.service = ServiceKey(transponder->record, channel);
  if (rules.streams) keys.streams = StreamsKey(channel);
  if (!rules.name) return keys;
  std::string name = Base::UpperCase(Base::Trimmed(channel.Name()));
  if (!name.empty()) keys.name = std::move(name);
  return keys;
}

// "RAI 1 HD", "Rai 1" and "Rai 1 +1" are one; a name of nothing else stays as it is.
std::string BareName(std::string_view name) {
  const std::string folded = Base::Folded(Base::Trimmed(name));
  std::string bare;
  for (std::string_view rest = folded; !rest.empty();) {
    std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    if (word.ends_with("+1")) word.remove_suffix(2);
    if (word.empty() || word == "hd" || word == "sd") continue;
    bare.append(bare.empty() ? "" : " ").append(word);
  }
  return bare.empty() ? folded : bare;
}

// The keys of the channels of a group that stay.
class KeptKeys {
 public:
  [[nodiscard]] bool HasAnyOf(const Keys& keys) const {
    return (keys.service && services_.contains(*keys.service)) ||
           (keys.streams && streams_.contains(*keys.streams)) || (keys.name && names_.contains(*keys.name));
  }
  void Add(const Keys& keys) {
    if (keys.service) services_.insert(*keys.service);
    if (keys.streams) streams_.insert(*keys.streams);
    if (keys.name) names_.insert(*keys.name);
  }

 private:
  std::set<std::uint64_t> services_;
  std::set<std::uint64_t> streams_;
  std::set<std::string> names_;
};

template <class Key>
using Keyed = std::vector<std::pair<Key, int>>;

// Joins the slots whose keys are equal: each with the first one that has its key, which a table with room for twice as many
// finds again.
template <class Key>
void JoinEqual(Groups& groups, const Keyed<Key>& keys) {
  constexpr std::size_t Spread = 0x9E3779B97F4A7C15U;
  std::vector<std::uint32_t> places(std::bit_ceil(2 * keys.size() + 2));  // in `keys`, from 1; 0 for none
  const auto shift =
      static_cast<unsigned>(std::numeric_limits<std::size_t>::digits - std::countr_zero(places.size()));
  std::uint32_t place = 0;
  for (const auto& [key, slot] : keys) {
    ++place;
    std::size_t at = (std::hash<Key>()(key) * Spread) >> shift;
    while (places[at] != 0 && keys[places[at] - 1].first != key) at = (at + 1) % places.size();
    if (places[at] == 0) {
      places[at] = place;
    } else {
      groups.Join(keys[places[at] - 1].second, slot);
    }
  }
}

}  // namespace

std::vector<std::vector<int>> FindDuplicates(const State& state, const DuplicateRules& rules) {
  Keyed<std::uint64_t> services;
  Keyed<std::uint64_t> streams;
  Keyed<std::string> names;
  Keyed<std::string> bareNames;
  services.reserve(static_cast<std::size_t>(state.ChannelCount));
  streams.reserve(static_cast<std::size_t>(state.ChannelCount));
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const Keys keys = KeysOf(state, slot, rules);
    if (keys.service) services.push_back({*keys.service, slot});
    if (keys.streams) streams.push_back({*keys.streams, slot});
    if (keys.name) names.push_back({*keys.name, slot});
    if (!rules.bareName || TransponderOf(state, slot) == nullptr) continue;
    if (std::string name = BareName(state.Channel(slot).Name()); !name.empty())
      bareNames.push_back({std::move(name), slot});
  }
  Groups groups;
  JoinEqual(groups, services);
  JoinEqual(groups, streams);
  JoinEqual(groups, names);
  JoinEqual(groups, bareNames);

  // Most slots are alone and in no group.
  std::map<int, std::vector<int>> members;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const int first = groups.First(slot);
    if (first == slot) continue;
    std::vector<int>& group = members[first];
    if (group.empty()) group.push_back(first);
    group.push_back(slot);
  }
  std::vector<std::vector<int>> found;
  for (auto& [first, group] : members) found.push_back(std::move(group));
  return found;
}

std::vector<int> Surplus(const State& state, const DuplicateRules& rules,
                         const std::vector<std::vector<int>>& groups) {
  std::vector<int> surplus;
  for (const auto& group : groups) {
    KeptKeys kept;
    for (const int slot : group) {
      const Keys keys = KeysOf(state, slot, rules);
      if (kept.HasAnyOf(keys)) {
        surplus.push_back(slot);
      } else {
        kept.Add(keys);
      }
    }
  }
  return surplus;
}

PerChannel<int> KeepRanks(const State& state, KeepBy by) {
  PerChannel<int> ranks;
  for (std::size_t list = 0; by == KeepBy::Favourite && list < FavouriteLists; ++list)
    for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list))
      if (slot >= 1 && slot <= LastChannelSlot) ranks[slot] = 1;
  const std::uint32_t activeBit = ChannelField::Active.Mask();
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const std::uint32_t flags = Get(state.Channel(slot), ChannelField::Flags);
    if (by == KeepBy::Active) ranks[slot] = (flags & activeBit) != 0 ? 1 : 0;
    if (by == KeepBy::Free) ranks[slot] = (flags & ~activeBit) == 0 ? 1 : 0;
  }
  return ranks;
}

std::vector<int> SurplusByRank(const State& state, const DuplicateRules& rules,
                               const std::vector<std::vector<int>>& groups, const PerChannel<int>& ranks) {
  std::vector<int> surplus;
  for (const auto& group : groups) {
    int best = 1;
    for (const int slot : group) best = std::max(best, ranks[slot]);
    KeptKeys kept;
    for (const int slot : group)
      if (ranks[slot] == best) kept.Add(KeysOf(state, slot, rules));
    for (const int slot : group)
      if (ranks[slot] != best && kept.HasAnyOf(KeysOf(state, slot, rules))) surplus.push_back(slot);
  }
  return surplus;
}

}  // namespace Review
