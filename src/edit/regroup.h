// Television in front, radio and services behind.
#pragma once

#include "edit/renumber.h"

namespace Edit {

struct Regrouped {
  int television = 0;
  int radio = 0;
  int services = 0;
  std::vector<LostFavourite> lost;  // entries on empty slots that were closed
};

// From `start` on, television channels come first, then radio channels, then services, each in the order they had; the
// gaps between them are closed. A channel without a SID is a service like one without any stream.
Regrouped Regroup(Routines::State& state, int start);

}  // namespace Edit
