// One value for each slot of the channel or transponder table, asked for by slot number. Slot 0 is not used.
#pragma once

#include "model/routines.h"

#include <algorithm>
#include <array>
#include <concepts>

namespace Routines {

template <class T, int LastSlot>
struct PerSlot {
  std::array<T, static_cast<std::size_t>(LastSlot) + 1> values{};

  // The slot must be one of 0..LastSlot.
  T& operator[](std::integral auto slot) { return values[static_cast<std::size_t>(slot)]; }
  const T& operator[](std::integral auto slot) const { return values[static_cast<std::size_t>(slot)]; }

  // In how many slots this value stands, slot 0 included.
  [[nodiscard]] int Count(const T& value) const {
    return static_cast<int>(std::count(values.begin(), values.end(), value));
  }

  friend bool operator==(const PerSlot&, const PerSlot&) = default;
};

template <class T>
using PerChannel = PerSlot<T, LastChannelSlot>;
template <class T>
using PerTransponder = PerSlot<T, LastTransponderSlot>;

// For each slot the one its channel goes to, or has in another list; 0 where it goes away, or is not there.
using SlotMap = PerChannel<int>;

}  // namespace Routines
