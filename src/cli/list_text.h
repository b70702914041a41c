// A list in the forms that it can be written in.
#pragma once

#include "cli/json.h"
#include "cli/program.h"
#include "model/routines.h"

#include <optional>
#include <string>
#include <vector>

namespace Cli {

// The channels that the words of the option find, or all where there are none; nothing where they make no sense, which is
// noted.
std::optional<std::vector<int>> FilteredSlots(Work& work, const Routines::State& state);

// The channels of some slots. Notes what the form leaves out; nothing where it lacks what it needs.
std::optional<std::string> ListText(Work& work, const Routines::State& state, const std::vector<int>& slots,
                                    ListForm form);

Json ChannelsJson(const Routines::State& state, const std::vector<int>& slots);

}  // namespace Cli
