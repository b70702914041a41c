// The demo flash: a receiver of the 3996-channel kind with several hundred channels.
#pragma once

#include "base/bytes.h"

#include <string_view>

namespace Samples {

// `symbolRates` is a symbol-rate table that has every rate of the demo transponders.
Base::Bytes DemoFlash(std::string_view symbolRates);

}  // namespace Samples
