// SDX.INI, the addresses of lists that can be downloaded: one a line.
#pragma once

#include "base/result.h"

#include <string>
#include <vector>

namespace Support {

// The lines of SDX.INI of the program's folder, as bytes of the code page; an error with the sentence to show where
// the file is not there.
Base::Result<std::vector<std::string>> ReadSdxIni(const std::string& programFolder);

}  // namespace Support
