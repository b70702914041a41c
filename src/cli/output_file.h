// What commands write: images with the window's guard, read-back and copies, and files of other kinds.
#pragma once

#include "cli/program.h"
#include "model/routines.h"

#include <string>
#include <vector>

namespace Cli {

// Whether a command that writes an image says where to, as far as that can be known before it starts. `image` is what it
// writes in place.
bool KnowsOutput(Work& work, const std::string& image);

// What came of a command before its image is written.
struct Made {
  std::vector<std::string> done;  // lines of UTF-8
  bool whole = true;              // all that was asked for could be done
};

// Patches the list into a copy of the image that `path` holds, writes that, and tells of it.
void WriteImage(Work& work, const Routines::State& state, const std::string& path, Base::ByteView original,
                const Made& made);

// Writes a file that is no image.
bool WriteFile(Work& work, const std::string& path, Base::ByteView bytes);

}  // namespace Cli
