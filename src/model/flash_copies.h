// The copies of what a save takes the place of: NAME.bak, NAME.bak2, NAME.bak3 …
#pragma once

#include "base/bytes.h"
#include "base/result.h"

#include <string>

namespace Routines {

// Keeps `bytes`, which the file at `target` holds, in `folder`: as NAME.bak or, where there is one, under a number above
// all others. A copy that holds them already counts as made now. Returns the copy's name.
Base::Result<std::string> KeepCopy(const std::string& folder, const std::string& target,
                                   Base::ByteView bytes);

// NAME.bak, as a rule the image as the receiver gave it, stays for good, and of the others the 20 newest. Files of an
// image's size alone are removed. Returns how many were.
int RemoveOldCopies(const std::string& folder, const std::string& target);

}  // namespace Routines
