#include "model/list_tree.h"

#include "base/text.h"

#include <algorithm>
#include <tuple>

namespace Routines {
namespace {

const TransponderRow& RowOf(const State& state, int transponder) { return state.Transponder(transponder); }

std::uint32_t SatelliteOf(const State& state, int transponder) {
  return Get(RowOf(state, transponder).record, TransponderField::Satellite);
}

// A transponder that a paste has added has blanks there until its bouquet is looked up.
std::string_view BouquetOf(const State& state, int transponder) {
  const std::string_view name = Base::TrimmedRight(RowOf(state, transponder).BouquetName());
  return name.empty() ? "Nessuno" : name;
}

// What the order of transponders goes by, above their number.
auto KeyOf(const State& state, int transponder) {
  return std::tuple(SatelliteOf(state, transponder), RowOf(state, transponder).BouquetCode(),
                    BouquetOf(state, transponder));
}

bool SameGroup(const State& state, ListTree::Kind level, int one, int other) {
  if (level == ListTree::Kind::Transponder) return one == other;
  if (level == ListTree::Kind::Bouquet) return KeyOf(state, one) == KeyOf(state, other);
  return SatelliteOf(state, one) == SatelliteOf(state, other);
}

std::string TransponderText(const State& state, int slot) {
  const TransponderRecord& record = RowOf(state, slot).record;
  return Base::ZeroPadded(slot, 3) + "  " + std::to_string(FrequencyMHz(record)) +
         (Get(record, TransponderField::Horizontal) != 0 ? " H" : " V");
}

template <class Use>
void ForEachChannel(const State& state, Use use) {
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    if (!channel.Empty()) use(slot, channel, Get(channel, ChannelField::Transponder));
  }
}

bool SameThing(const ListTree::Group& one, const ListTree::Group& other) {
  return one.kind == other.kind && one.number == other.number && one.code == other.code &&
         (one.kind != ListTree::Kind::Bouquet || one.text == other.text);
}

}  // namespace

std::string_view ListTree::Channel::Name() const {
  const std::string_view field(name.data(), name.size());
  return Base::TrimmedRight(field.substr(0, field.find('\0')));
}

ListTree::ListTree(const State& state, const std::vector<Satellite>& satellites, Shape shape) : groups_(1) {
  std::array<int, 256> counts{};
  ForEachChannel(state, [&counts](int, const ChannelRecord&, std::uint32_t number) { ++counts[number]; });

  std::vector<int> transponders;
  int missing = 0;
  for (int number = 0; number < static_cast<int>(counts.size()); ++number) {
    const int count = counts[static_cast<std::size_t>(number)];
    if (TransponderInUse(state, static_cast<std::uint32_t>(number)) == nullptr) {
      missing += count;
    } else if (count > 0 || shape == Shape::Transponders) {
      transponders.push_back(number);
    }
  }
  std::stable_sort(transponders.begin(), transponders.end(),
                   [&state](int one, int other) { return KeyOf(state, one) < KeyOf(state, other); });

  AddGroups(state, satellites, Kind::Satellite, transponders);
  // Every number that is no transponder's gets the group behind the satellites.
  std::replace(groupOf_.begin(), groupOf_.end(), 0, static_cast<int>(groups_.size()));
  if (missing > 0) {
    groups_.emplace_back(Kind::Missing).text = "Transponder mancanti";
    ++groups_.front().groups;
  }
  AddGroups(state, satellites, Kind::Bouquet, transponders);
  if (shape == Shape::Transponders) AddGroups(state, satellites, Kind::Transponder, transponders);
  groups_.front().firstGroup = 1;

  for (std::size_t number = 0; number < counts.size(); ++number) {
    if (counts[number] > 0) At(groupOf_[number]).channels += counts[number];
  }
  PlaceChannels(state);
}

// One level of groups: each transponder goes on from the group that it had on the level above.
void ListTree::AddGroups(const State& state, const std::vector<Satellite>& satellites, Kind level,
                         const std::vector<int>& transponders) {
  int last = 0;
  for (const int transponder : transponders) {
    int& group = groupOf_[static_cast<std::size_t>(transponder)];
    if (last == 0 || !SameGroup(state, level, last, transponder)) {
      Group added(level);
      added.parent = group;
      if (level == Kind::Satellite) {
        added.number = static_cast<int>(SatelliteOf(state, transponder));
        added.text = SatelliteText(SatelliteOf(state, transponder), satellites);
      } else if (level == Kind::Bouquet) {
        added.code = std::string(RowOf(state, transponder).BouquetCode());
        added.text = BouquetOf(state, transponder);
      } else {
        added.number = transponder;
        added.text = TransponderText(state, transponder);
      }
      if (At(group).groups++ == 0) At(group).firstGroup = static_cast<int>(groups_.size());
      groups_.push_back(std::move(added));
    }
    group = static_cast<int>(groups_.size()) - 1;
    last = transponder;
  }
}

// The groups without groups know how many channels they have.
void ListTree::PlaceChannels(const State& state) {
  std::vector<int> next(groups_.size());
  int placed = 0;
  for (std::size_t group = 1; group < groups_.size(); ++group) {
    if (groups_[group].groups > 0) continue;
    groups_[group].firstChannel = next[group] = placed;
    placed += groups_[group].channels;
  }
  for (std::size_t group = groups_.size() - 1; group > 0; --group) {
    At(groups_[group].parent).channels += groups_[group].channels;
  }
  channels_.resize(static_cast<std::size_t>(placed));
  ForEachChannel(state, [&](int slot, const ChannelRecord& channel, std::uint32_t number) {
    const int group = groupOf_[number];
    Channel& here = channels_[static_cast<std::size_t>(next[static_cast<std::size_t>(group)]++)];
    std::copy_n(Base::AsText(channel.bytes).begin(), here.name.size(), here.name.begin());
    here.slot = static_cast<std::uint16_t>(slot);
    here.group = static_cast<std::uint16_t>(group);
    here.kind = ChannelRowKind(state, slot);
  });
}

std::span<const ListTree::Channel> ListTree::Channels(int group) const {
  const Group& owner = groups_[static_cast<std::size_t>(group)];
  if (owner.groups > 0) return {};
  return std::span(channels_).subspan(static_cast<std::size_t>(owner.firstChannel),
                                      static_cast<std::size_t>(owner.channels));
}

std::optional<ListTree::Place> ListTree::PlaceOf(int slot) const {
  const auto found = std::find_if(channels_.begin(), channels_.end(),
                                  [slot](const Channel& channel) { return channel.slot == slot; });
  if (found == channels_.end()) return std::nullopt;
  return Place{found->group,
               static_cast<int>(found - channels_.begin()) - groups_[found->group].firstChannel};
}

std::optional<int> ListTree::GroupOf(int transponder) const {
  if (transponder < 0 || transponder >= static_cast<int>(groupOf_.size())) return std::nullopt;
  const int group = groupOf_[static_cast<std::size_t>(transponder)];
  if (group >= static_cast<int>(groups_.size())) return std::nullopt;
  const Group& found = groups_[static_cast<std::size_t>(group)];
  if (found.kind != Kind::Transponder || found.number != transponder) return std::nullopt;
  return group;
}

bool ListTree::SameShape(const ListTree& other) const {
  const auto sameGroup = [](const Group& one, const Group& two) {
    return SameThing(one, two) && one.parent == two.parent && one.groups == two.groups &&
           one.channels == two.channels;
  };
  const auto sameSlot = [](const Channel& one, const Channel& two) { return one.slot == two.slot; };
  return std::equal(groups_.begin(), groups_.end(), other.groups_.begin(), other.groups_.end(), sameGroup) &&
         std::equal(channels_.begin(), channels_.end(), other.channels_.begin(), other.channels_.end(),
                    sameSlot);
}

std::vector<int> ListTree::CounterpartsOf(const ListTree& older) const {
  std::vector<int> counterparts(older.groups_.size(), -1);
  counterparts[0] = 0;
  for (std::size_t i = 1; i < older.groups_.size(); ++i) {
    const Group& group = older.groups_[i];
    const int parent = counterparts[static_cast<std::size_t>(group.parent)];
    if (parent < 0) continue;
    const Group& owner = groups_[static_cast<std::size_t>(parent)];
    for (int child = owner.firstGroup; child < owner.firstGroup + owner.groups; ++child) {
      if (SameThing(groups_[static_cast<std::size_t>(child)], group)) counterparts[i] = child;
    }
  }
  return counterparts;
}

std::string TreeText(const ListTree::Channel& channel) {
  return Base::ZeroPadded(channel.slot, 4) + " " + std::string(channel.Name());
}

std::string TreeText(const ListTree::Group& group) {
  return group.text + " (" + std::to_string(group.channels) + ")";
}

}  // namespace Routines
