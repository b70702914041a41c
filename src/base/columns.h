// Fixed columns of text lines, counted from 1. A line may end anywhere: what lies past its end is empty.
#pragma once

#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Base {

struct Column {
  std::size_t first;
  std::size_t width;
};

// A column that runs to the end of its line.
inline constexpr std::size_t ToLineEnd = std::string_view::npos;

inline std::string_view Cut(std::string_view line, const Column& column) {
  return line.substr(std::min(column.first - 1, line.size()), column.width);
}

// Puts `text` into its column of a line that has room for it, cut or filled up with blanks to the width.
inline void Put(char* line, const Column& column, std::string_view text) {
  char* const field = line + column.first - 1;
  text = text.substr(0, column.width);
  std::fill(std::copy(text.begin(), text.end(), field), field + column.width, ' ');
}

// "00", "01" and so on up to "99".
inline constexpr auto DigitPairs = [] {
  std::array<char, 200> digits{};
  for (std::size_t at = 0; at < digits.size(); ++at) {
    digits[at] = static_cast<char>('0' + (at % 2 == 0 ? at / 20 : at / 2 % 10));
  }
  return digits;
}();

// Does so with the last digits of a number, zeros in front.
inline void PutNumber(char* line, const Column& column, std::uint32_t value) {
  char* const field = line + column.first - 1;
  std::size_t left = column.width;
  for (; left > 1; left -= 2, value /= 100)
    std::copy_n(DigitPairs.begin() + value % 100 * 2, 2, field + left - 2);
  if (left > 0) *field = static_cast<char>('0' + value % 10);
}

// Puts a byte into a column of two places, in upper-case hexadecimal digits.
inline void PutHexByte(char* line, const Column& column, std::uint32_t value) {
  line[column.first - 1] = HexDigits[value >> 4U & 15U];
  line[column.first] = HexDigits[value & 15U];
}

// The value of the digits at the front of a column of at most nine places, blanks before them left out; 0 where there
// are none.
inline std::uint32_t ColumnNumber(std::string_view column) {
  return static_cast<std::uint32_t>(LeadingCount(column, 999999999));
}

// The line grows as far as it must.
inline void Put(std::string& line, const Column& column, std::string_view text) {
  const std::size_t width = column.width == ToLineEnd ? text.size() : column.width;
  if (line.size() < column.first - 1 + width) line.resize(column.first - 1 + width, ' ');
  Put(line.data(), {column.first, width}, text);
}

}  // namespace Base
