// The few text habits that every plain file of the program shares. Texts here are bytes of the code page.
#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Base {

// Blanks only: tabs and other white space belong to the text.
inline std::string_view TrimmedLeft(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}
inline std::string_view TrimmedRight(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}
inline std::string_view Trimmed(std::string_view text) { return TrimmedRight(TrimmedLeft(text)); }

// Takes the line at the front off `text`, with its end: CR LF or LF alone.
inline std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  if (line.ends_with('\r')) line.remove_suffix(1);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

// Lines without their ends, CR LF or LF alone; what follows the last line end is a line only if it is not
// empty.
std::vector<std::string_view> Lines(std::string_view text);

// The decimal digits at the front, blanks before them left out.
inline std::string_view LeadingDigits(std::string_view text) {
  text = TrimmedLeft(text);
  std::size_t digits = 0;
  while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') ++digits;
  return text.substr(0, digits);
}

// What each character is worth as a decimal digit; 16 for those that are none.
inline constexpr auto DigitValues = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(16);
  for (std::uint8_t digit = 0; digit < 10; ++digit) values['0' + digit] = digit;
  return values;
}();

// Takes the decimal digits at the front off `text`: their value, `most` + 1 where it is larger than `most`, -1 where there
// are none.
inline int TakeNumber(std::string_view& text, int most) {
  constexpr std::size_t MostDigits = 18;  // that the value has room for
  std::size_t digits = 0;
  std::uint64_t value = 0;
  for (; digits < text.size(); ++digits) {
    const auto digit = static_cast<unsigned>(text[digits] - '0');
    if (digit > 9) break;
    value = value * 10 + digit;
  }
  text.remove_prefix(digits);
  if (digits == 0) return -1;
  return digits > MostDigits || value > static_cast<unsigned>(most) ? most + 1 : static_cast<int>(value);
}

// The value of the leading digits, blanks before them left out: 0 where there are none, `most` where it is larger.
inline int LeadingCount(std::string_view text, int most) {
  text = TrimmedLeft(text);
  return std::clamp(TakeNumber(text, most), 0, most);
}

// A value above 65535 is 0, as it fits no field.
inline int LeadingNumber(std::string_view text) {
  const int value = LeadingCount(text, 65536);
  return value > 65535 ? 0 : value;
}

// `value` (0 or more) in decimal, with zeros in front up to `width` digits.
std::string ZeroPadded(int value, int width);

// "1 canale", "7 canali": a count and what it counts, in the word that fits it.
std::string Counted(std::integral auto count, std::string_view one, std::string_view more) {
  return std::to_string(count).append(" ").append(count == 1 ? one : more);
}

inline constexpr std::string_view HexDigits = "0123456789ABCDEF";

// Two upper-case hexadecimal digits of a byte.
std::string HexByte(int value);

}  // namespace Base
