// What the command line asks of the operating system: system_posix.cpp and system_windows.cpp are the same functions for two
// of them. Texts and paths are UTF-8; codes are errno values, 0 where nothing went wrong.
#pragma once

#include "base/file.h"
#include "support/program_folder.h"

#include <string>
#include <string_view>
#include <vector>

namespace Cli {

enum class Stream { Out, Errors };

// What was typed behind the program's name.
std::vector<std::string> Arguments(int argc, char** argv);

// All of the standard input, up to what any list may be.
Base::Result<Base::Bytes> ReadInput();

// EPIPE where nobody reads any more, which is no failure.
int WriteTo(Stream stream, std::string_view text);

// As the window finds them.
Support::ProgramPlaces ProgramPlaces();

}  // namespace Cli
