// Results for programs.
#pragma once

#include "cli/console.h"

#include <nlohmann/json.hpp>

namespace Cli {

// Members keep their order.
using Json = nlohmann::ordered_json;

// A file's name need not be UTF-8; what is none is shown as such.
inline void Print(Console& console, const Json& value) {
  console.out += value.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace Cli
