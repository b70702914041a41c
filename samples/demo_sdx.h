// A demo list in the SatcoDX layout: the demo's own services of its first satellite and some that are new.
#pragma once

#include <string>

namespace Samples {

// Bytes of the code page, lines ended with CR LF.
std::string DemoSdx();

}  // namespace Samples
