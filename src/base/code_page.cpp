#include "base/code_page.h"

#include <algorithm>
#include <array>

namespace Base {
namespace {

// Characters of the bytes 0x80..0x9F; 0x81, 0x8D, 0x8F, 0x90 and 0x9D are the undefined ones.
constexpr std::array<char16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto* found = std::find(HighControls.begin(), HighControls.end(), character);
  if (found == HighControls.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - HighControls.begin()));
}

// The character at the front of `text`, which it takes off. Two and three bytes reach all that is needed
// here; longer, overlong and broken sequences are no character of the code page.
std::optional<char32_t> TakeCharacter(std::string_view& text) {
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t length = first < 0x80 ? 1U : first >> 5U == 0x06 ? 2U : first >> 4U == 0x0E ? 3U : 0U;
  if (length == 0 || text.size() < length) return std::nullopt;
  char32_t character = length == 1 ? first : first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if (next >> 6U != 0x02) return std::nullopt;
    character = character << 6U | (next & 0x3FU);
  }
  if ((length == 2 && character < 0x80) || (length == 3 && character < 0x800)) return std::nullopt;
  text.remove_prefix(length);
  return character;
}

}  // namespace

char32_t CharacterOf(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? HighControls[byte - 0x80U] : byte;
}

std::string ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) {
    const char32_t c = CharacterOf(static_cast<unsigned char>(byte));
    if (c < 0x80) {
      text += static_cast<char>(c);
    } else if (c < 0x800) {
      text += static_cast<char>(0xC0U | c >> 6U);
      text += static_cast<char>(0x80U | (c & 0x3FU));
    } else {
      text += static_cast<char>(0xE0U | c >> 12U);
      text += static_cast<char>(0x80U | (c >> 6U & 0x3FU));
      text += static_cast<char>(0x80U | (c & 0x3FU));
    }
  }
  return text;
}

std::optional<std::string> FromUtf8(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const auto character = TakeCharacter(text);
    const auto byte = character ? ByteOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

std::string FromUtf8Lossy(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const std::size_t before = text.size();
    const auto character = TakeCharacter(text);
    bytes += (character ? ByteOf(*character) : std::nullopt).value_or('?');
    if (text.size() != before) continue;
    do {
      text.remove_prefix(1);
    } while (!text.empty() && static_cast<unsigned char>(text.front()) >> 6U == 0x02);
  }
  return bytes;
}

std::string FromMarkedUtf8(std::string_view text) {
  constexpr std::string_view Mark = "\xEF\xBB\xBF";
  return text.starts_with(Mark) ? FromUtf8Lossy(text.substr(Mark.size())) : std::string(text);
}

bool IsUtf8(std::string_view text) {
  bool beyondAscii = false;
  while (!text.empty()) {
    beyondAscii = beyondAscii || static_cast<unsigned char>(text.front()) >= 0x80;
    if (TakeCharacter(text)) continue;
    // Four bytes are no character of the code page, but they are UTF-8.
    if (text.size() < 4 || static_cast<unsigned char>(text.front()) >> 3U != 0x1E) return false;
    for (std::size_t i = 1; i < 4; ++i) {
      if (static_cast<unsigned char>(text[i]) >> 6U != 0x02) return false;
    }
    text.remove_prefix(4);
  }
  return beyondAscii;
}

std::string FromUtf16Lossy(std::string_view units, bool highByteFirst) {
  std::string bytes;
  bytes.reserve(units.size() / 2);
  for (std::size_t i = 0; i + 1 < units.size(); i += 2) {
    const auto one = static_cast<unsigned char>(units[i]);
    const auto other = static_cast<unsigned char>(units[i + 1]);
    const char32_t unit = highByteFirst ? one * 256U + other : other * 256U + one;
    // The second half of a pair belongs to the first, which has no byte.
    if (unit < 0xDC00 || unit > 0xDFFF) bytes += ByteOf(unit).value_or('?');
  }
  return bytes;
}

}  // namespace Base
