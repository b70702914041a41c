// The transponders that the list has on a satellite beside those that a list of today says are there.
#pragma once

#include "model/listed_transponder.h"
#include "model/routines.h"

#include <optional>
#include <vector>

namespace Review {

using Routines::ListedTransponder;
using Routines::State;

enum class TransponderMark : std::uint8_t {
  Missing,  // only the other list has it
  Changed,  // it has another symbol rate or FEC there
  Gone,     // it is not listed any more
  Doubled   // the list has it twice
};
inline constexpr std::size_t TransponderMarks = 4;

struct TransponderFinding {
  TransponderMark mark = TransponderMark::Missing;
  int slot = 0;              // of the list's transponder; 0 for a missing one
  int first = 0;             // of the one that a doubled one is the same as
  ListedTransponder listed;  // of a missing or a changed one

  friend bool operator==(const TransponderFinding&, const TransponderFinding&) = default;
};

// Transponders are the same within 3 MHz (exclusive) in the same polarisation; of several that are listed so near, the
// nearest counts. Those listed in circular polarisation, or outside the bands that a record can hold, are nobody's. Rates
// that are not 10 kBd apart are one, and what either side does not say, or leaves to the receiver, is no difference.
// Transponders of DVB-S2 are known, but missing only where `withDvbS2`. `satellite` is 0 for A. By kind and frequency.
std::vector<TransponderFinding> CheckTransponders(const State& state,
                                                  const std::vector<ListedTransponder>& listed, int satellite,
                                                  bool withDvbS2);

// MHz, to the nearest.
int MegahertzOf(const ListedTransponder& listed);
// The code of a listed FEC: 5 where the receiver has none for it and finds it by itself, nothing where it is not said.
std::optional<std::uint32_t> FecCodeOf(const ListedTransponder& listed);
// Whether a rate of the symbol-rate table ("27500", perhaps filled up with backslashes) is the listed one.
bool IsRate(std::string_view rate, const ListedTransponder& listed);

}  // namespace Review
