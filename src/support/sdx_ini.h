// SDX.INI, the addresses of lists that can be downloaded: one a line.
#pragma once

#include "base/result.h"

#include <string>
#include <string_view>
#include <vector>

namespace Support {

// The lines of a file's text.
std::vector<std::string> AddressesOf(std::string_view text);

// Those of SDX.INI of the program's folder, as bytes of the code page; an error with the sentence to show where the file is
// not there, or cannot be read.
Base::Result<std::vector<std::string>> LoadAddresses(const std::string& folder);

}  // namespace Support
