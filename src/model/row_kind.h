// What kind a row of the two lists is: what its colour says, and the words for those who do not see it.
#pragma once

#include "model/routines.h"

#include <string_view>

namespace Routines {

enum class RowKind {
  Tv,
  Radio,
  Service,
  Inactive,
  EmptySlot,
  Transponder,
  DoubtfulTransponder,
  FreeTransponder
};

// Of slots of the two tables. A channel that is not active is nothing but that, whatever streams it has.
RowKind ChannelRowKind(const State& state, int slot);
RowKind RowKindOf(const ChannelRecord& channel);
RowKind TransponderRowKind(const State& state, int slot);

// "Servizio", UTF-8; empty for an ordinary transponder.
std::string_view RowKindText(RowKind kind);

}  // namespace Routines
