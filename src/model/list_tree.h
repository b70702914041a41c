// The list as a tree: satellites, their bouquets, in one of its two shapes also their transponders, and the channels.
// It keeps what it shows, so that the tree of a changed list can be compared with the one before.
#pragma once

#include "model/bouquets.h"
#include "model/row_kind.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Routines {

class ListTree {
 public:
  enum class Shape { Bouquets, Transponders };  // what channels stand under
  enum class Kind { Root, Satellite, Bouquet, Transponder, Missing };

  // Satellites by number, bouquets by code and name, transponders by number. What is under one group stands together:
  // in Groups(), or, under a group without groups, in Channels().
  struct Group {
    explicit Group(Kind is = Kind::Root) : kind(is) {}

    Kind kind;
    int number = 0;    // of a satellite or a transponder
    std::string code;  // of a bouquet
    std::string text;  // bytes of the code page
    int parent = 0;    // here and below: places in Groups(), where the root is 0
    int firstGroup = 0;
    int groups = 0;
    int firstChannel = 0;  // place in Channels()
    int channels = 0;      // its own and those of its groups

    friend bool operator==(const Group&, const Group&) = default;
  };

  struct Channel {
    std::array<char, ChannelRecord::NameSize> name{};
    std::uint16_t slot = 0;
    std::uint16_t group = 0;
    RowKind kind = RowKind::EmptySlot;  // of its row in the channel list

    [[nodiscard]] std::string_view Name() const;
    friend bool operator==(const Channel&, const Channel&) = default;
  };

  // Where a channel stands: at `row`, from 0, of a group.
  struct Place {
    int group;
    int row;
  };

  ListTree() : groups_(1) {}
  // A channel whose transponder is missing or free stands in a group of its own behind the satellites. Bouquets
  // without channels are in the shape with transponders only.
  ListTree(const State& state, const std::vector<Satellite>& satellites, Shape shape);

  [[nodiscard]] const std::vector<Group>& Groups() const { return groups_; }
  // The channels that stand right under a group.
  [[nodiscard]] std::span<const Channel> Channels(int group) const;
  [[nodiscard]] std::optional<Place> PlaceOf(int slot) const;
  // The group of a transponder, in the shape that has such groups; nothing for a free one.
  [[nodiscard]] std::optional<int> GroupOf(int transponder) const;

  // Whether every group and every channel number stands where it does in another tree.
  [[nodiscard]] bool SameShape(const ListTree& other) const;
  // For each group of an older tree the one here that stands for the same, -1 where there is none.
  [[nodiscard]] std::vector<int> CounterpartsOf(const ListTree& older) const;

 private:
  [[nodiscard]] Group& At(int group) { return groups_[static_cast<std::size_t>(group)]; }
  void AddGroups(const State& state, const std::vector<Satellite>& satellites, Kind level,
                 const std::vector<int>& transponders);
  void PlaceChannels(const State& state);

  std::vector<Group> groups_;
  std::vector<Channel> channels_;
  std::array<int, 256> groupOf_{};  // by a channel's transponder number, the group it stands in
};

// "0012 Name" and "018  11766 V (9)", bytes of the code page.
std::string TreeText(const ListTree::Channel& channel);
std::string TreeText(const ListTree::Group& group);

}  // namespace Routines
