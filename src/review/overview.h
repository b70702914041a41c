// What the list holds: counts by kind, satellite, bouquet and coding, places used and free, and what looks wrong. Every
// line knows the rows that it counts.
#pragma once

#include "model/bouquets.h"
#include "model/row_kind.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Review {

enum class OverviewSection { Kind, Satellite, Bouquet, Coding, Transponders, Places, Checks };

// The text of the line among the checks with every copy of each channel that is there twice.
inline constexpr const char* DuplicatesText = "Canali doppi";

struct OverviewLine {
  OverviewSection section;
  std::string text;                       // UTF-8; no other line of the section has the same
  bool transponders = false;              // its slots are transponders, not channels
  int of = 0;                             // how many slots are the whole that its share is of
  std::optional<Routines::RowKind> kind;  // of all its rows, where the line is about their kind
  bool wrong = false;                     // its rows should be looked at
  std::vector<int> slots;                 // ascending
};

// The lines of all sections, in the order of the sections. Channels count from slot 1 to the channel count, where they
// are not empty; those whose transponder is missing or free have a line of their own by satellite and bouquet.
std::vector<OverviewLine> Overview(const Routines::State& state,
                                   const std::vector<Routines::Satellite>& satellites);

// The slots of one line; none where there is no such line.
std::vector<int> OverviewSlots(const Routines::State& state,
                               const std::vector<Routines::Satellite>& satellites, OverviewSection section,
                               const std::string& text);

// "Da controllare"
std::string_view TitleOf(OverviewSection section);
// "3 canali"
std::string CountedRows(const OverviewLine& line);

}  // namespace Review
