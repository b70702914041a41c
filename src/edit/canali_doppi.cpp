#include "edit/canali_doppi.h"

#include "base/text.h"
#include "edit/names.h"

#include <numeric>
#include <optional>
#include <string>
#include <utility>

namespace Edit {
namespace {

using namespace Routines;

std::size_t At(int slot) { return static_cast<std::size_t>(slot); }

// Which slots belong together, as a forest in which every slot knows one that is nearer to its group's first slot.
class Groups {
 public:
  Groups() : parents_(LastChannelSlot + 1) { std::iota(parents_.begin(), parents_.end(), 0); }

  void Join(int one, int other) {
    const auto [low, high] = std::minmax({First(one), First(other)});
    parents_[At(high)] = low;
  }

  int First(int slot) {
    while (parents_[At(slot)] != slot) slot = parents_[At(slot)] = parents_[At(parents_[At(slot)])];
    return slot;
  }

 private:
  std::vector<int> parents_;
};

const TransponderRecord* TransponderOf(const State& state, const ChannelRecord& channel) {
  const std::uint32_t number = Get(channel, ChannelField::Transponder);
  if (number < 1 || static_cast<int>(number) > state.TransponderCount) return nullptr;
  const TransponderRecord& record = state.TransponderTable[number].record;
  return IsFree(record) ? nullptr : &record;
}

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

// Without a SID and any stream there is nothing that two channels could have in common.
std::optional<std::uint64_t> StreamsKey(const ChannelRecord& channel) {
  const std::uint64_t sid = Get(channel, ChannelField::Sid);
  const std::uint64_t vpid = Get(channel, ChannelField::Vpid);
  const std::uint64_t apid = Get(channel, ChannelField::Apid);
  if (sid == 0 && KindOf(channel) == ChannelKind::Service) return std::nullopt;
  const std::uint64_t number = Get(channel, ChannelField::Transponder);
  return number << 48U | sid << 32U | vpid << 16U | apid;
}

template <class Key>
using Keyed = std::vector<std::pair<Key, int>>;

// Joins the slots whose keys are equal.
template <class Key>
void JoinEqual(Groups& groups, Keyed<Key> keys) {
  std::sort(keys.begin(), keys.end());
  for (std::size_t i = 1; i < keys.size(); ++i) {
    if (keys[i].first == keys[i - 1].first) groups.Join(keys[i - 1].second, keys[i].second);
  }
}

}  // namespace

std::vector<std::vector<int>> CanaliDoppi(const State& state, const DuplicateRules& rules) {
  Keyed<std::uint64_t> services;
  Keyed<std::uint64_t> streams;
  Keyed<std::string> names;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.ChannelTable[At(slot)];
    const TransponderRecord* transponder = channel.Empty() ? nullptr : TransponderOf(state, channel);
    if (transponder == nullptr) continue;
    const auto service = ServiceKey(*transponder, channel);
    if (rules.service && service) services.push_back({*service, slot});
    const auto stream = StreamsKey(channel);
    if (rules.streams && stream) streams.push_back({*stream, slot});
    if (!rules.name) continue;
    const std::string name = UpperCase(Base::Trimmed(channel.Name()));
    if (!name.empty()) names.push_back({name, slot});
  }
  Groups groups;
  JoinEqual(groups, std::move(services));
  JoinEqual(groups, std::move(streams));
  JoinEqual(groups, std::move(names));

  std::vector<std::vector<int>> members(At(state.ChannelCount + 1));
  for (int slot = 1; slot <= state.ChannelCount; ++slot) members[At(groups.First(slot))].push_back(slot);
  std::erase_if(members, [](const std::vector<int>& group) { return group.size() < 2; });
  return members;
}

}  // namespace Edit
