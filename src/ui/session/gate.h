// What has to be there for a command. Each condition is tested, and its refusal worded, in one place.
#pragma once

#include <array>

namespace Ui {

struct Session;

// While what the command is enabled.
enum class Enabled {
  Always,
  WithList,        // a list is loaded
  WithoutFls,      // the list does not come from a file of raw records
  WhenSdxMayShow,  // likewise, or the pane has been shown since
  WhileSdxShown,   // the list on the right is
  WithFavourites,  // the receiver chosen, or the list imported, has favourites
  WithUndo,
  WithRedo
};

// What a command that is chosen refuses without.
enum class Need {
  Nothing,
  List,
  ListToClear,
  OpenedFlash,
  Capacity,
  CapacityToExport,
  Settings,
  AnyView,
  ChannelView,
  ChannelRows,
  Places,     // between the rows, none of them hidden, and in the order of the list
  ListOrder,  // in that alone
  ChannelsForSdx,
  ChannelsForDownload,
  ChannelsForSdxImport
};

struct Gate {
  constexpr Gate() = default;
  constexpr Gate(Need first, Need second = Need::Nothing) : needs{first, second} {}
  constexpr Gate(Enabled while_, Need first = Need::Nothing, Need second = Need::Nothing)
      : enabled(while_), needs{first, second} {}

  Enabled enabled = Enabled::Always;
  std::array<Need, 2> needs = {};  // in the order in which they are asked for
};

// Whether the condition holds now.
bool Holds(const Session& session, Enabled condition);

// Why a command is disabled now that was enabled before; empty where it is not, or where that is plain to see.
const char* WhyDisabled(const Session& session, Enabled condition);

// Whether it is there; where it is not the user is told so.
bool Meets(Session& session, Need need);
bool Meets(Session& session, const Gate& gate);

}  // namespace Ui
