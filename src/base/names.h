// Names as the user types them and as records keep them.
#pragma once

#include "base/result.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace Base {

// The bytes of a typed name (UTF-8), without blanks at its end. An error says why it is refused: more than `most`
// bytes, a character that the receiver's code page lacks, a control character.
Base::Result<std::string> NameBytes(std::string_view typed, std::size_t most);

// Upper and lower case in the code page, accented letters included.
std::string UpperCase(std::string_view bytes);
std::string LowerCase(std::string_view bytes);

// A text as a search compares it, in ASCII as far as the code page lets it: lower case, letters without their accents,
// "ss" for a sharp s, two letters for a ligature.
std::string Folded(std::string_view bytes);

}  // namespace Base
