#include "base/text.h"

#include <algorithm>

namespace Base {

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) lines.push_back(TakeLine(text));
  return lines;
}

std::string ZeroPadded(int value, int width) {
  std::string digits = std::to_string(value);
  const auto size = static_cast<std::size_t>(width);
  if (digits.size() < size) digits.insert(0, size - digits.size(), '0');
  return digits;
}

std::string HexByte(int value) {
  return {HexDigits[static_cast<std::size_t>(value >> 4 & 15)],
          HexDigits[static_cast<std::size_t>(value & 15)]};
}

}  // namespace Base
