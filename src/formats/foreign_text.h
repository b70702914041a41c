// Text files of other programs, whatever their encoding, as lines in the code page.
#pragma once

#include "base/result.h"

#include <string>
#include <string_view>

namespace Formats {

struct ForeignText {
  std::string text;           // lines that end with LF, bytes of the code page
  std::string_view encoding;  // "Windows-1252", "UTF-8" or "UTF-16"
  int lines = 0;
};

// `name` is the file's, for the sentence that refuses an empty file or one that is no text.
Base::Result<ForeignText> DecodeForeign(std::string_view bytes, const std::string& name);

}  // namespace Formats
