// Windows-1252, the code page of the receiver's records and of every file beside the program, to and from
// UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Base {

// Total: each of the 256 bytes has a character of its own; the five that the code page leaves undefined stand
// for the control characters of the same number, so that every byte survives the way there and back.
char32_t CharacterOf(unsigned char byte);
std::string ToUtf8(std::string_view bytes);

// The bytes of a UTF-8 text; nothing when a character is not in the code page or the text is not UTF-8.
std::optional<std::string> FromUtf8(std::string_view text);

// The same with one question mark for each character that has no byte, so that columns stay columns.
std::string FromUtf8Lossy(std::string_view text);

// A text as it stands, or what follows its UTF-8 byte-order mark as FromUtf8Lossy makes it.
std::string FromMarkedUtf8(std::string_view text);

// Whether a text has characters beyond ASCII and all of them are well-formed UTF-8.
bool IsUtf8(std::string_view text);

// The same for UTF-16 units without a byte-order mark; a lone byte at the end is left out.
std::string FromUtf16Lossy(std::string_view units, bool highByteFirst);

}  // namespace Base
