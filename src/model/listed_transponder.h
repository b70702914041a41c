// A transponder as lists of today describe it, whatever their layout.
#pragma once

#include "base/short_text.h"
#include "model/order.h"

#include <cstdint>
#include <optional>

namespace Routines {

enum class Polarisation : std::uint8_t { Unknown, Horizontal, Vertical, Left, Right };
// Other is no satellite: cable, terrestrial, a stream.
enum class Delivery : std::uint8_t { DvbS, DvbS2, Other };
enum class Modulation : std::uint8_t { Unknown, Qpsk, Other };

struct ListedTransponder {
  std::optional<int> position;  // tenths of a degree, west below 0; nothing where the file does not say
  int frequency = NotSaid;      // kHz
  int symbolRate = NotSaid;     // Bd
  int nid = NotSaid;
  int tid = NotSaid;
  Base::ShortText<4> fec;  // "3/4"; empty where it is automatic or not said
  Polarisation polarisation = Polarisation::Unknown;
  Delivery delivery = Delivery::DvbS;
  Modulation modulation = Modulation::Unknown;

  friend bool operator==(const ListedTransponder&, const ListedTransponder&) = default;
};

}  // namespace Routines
