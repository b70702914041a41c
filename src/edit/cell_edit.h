// Editing one field by what the user typed or chose for its cell, and the same field of many channels at once.
#pragma once

#include "base/result.h"
#include "edit/list_operations.h"
#include "model/bouquets.h"

#include <array>

namespace Edit {

// Sets the field of a channel that a column of the list shows (see ChannelColumn) to `typed` (UTF-8). An error says why it
// is refused and changes nothing.
Base::Outcome SetCell(const State& state, Routines::ChannelRecord& channel, int column,
                      std::string_view typed);

// Puts a channel into a slot; the counts of its transponder and of the one before follow.
void StoreChannel(State& state, int slot, const Routines::ChannelRecord& channel);

// The same for a slot of the list. An empty slot becomes a channel, named by its number unless the name is typed.
Base::Outcome EditChannel(State& state, int slot, int column, std::string_view typed);

// The same for the transponder list (see TransponderColumn). A free slot becomes a transponder with its frequency.
Base::Outcome EditTransponder(State& state, int slot, int column, std::string_view typed,
                              const Routines::BouquetTables& bouquets);

// A column of all channels in `slots` that are not empty. Returns how many those are.
Base::Result<int> EditChannels(State& state, const Slots& slots, int column, std::string_view typed);

// Codings that receivers know, as they are offered: "24 Seca".
inline constexpr std::array<std::string_view, 6> Codings = {"04 Auto", "24 Seca", "44 Nagra",
                                                            "64 Beta", "84 Ird",  "A4 Via"};

// Texts to choose from; the first word of each is what a cell takes.
std::vector<std::string> TransponderChoices(const State& state);  // used ones: "018 11766 V SAT A Rai"
std::vector<std::string> SymbolRateChoices(const State& state);

}  // namespace Edit
