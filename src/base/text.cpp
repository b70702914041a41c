#include "base/text.h"

#include <algorithm>

namespace Base {

std::string_view TrimmedLeft(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

std::string_view TrimmedRight(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trimmed(std::string_view text) { return TrimmedRight(TrimmedLeft(text)); }

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  if (line.ends_with('\r')) line.remove_suffix(1);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) lines.push_back(TakeLine(text));
  return lines;
}

std::string_view LeadingDigits(std::string_view text) {
  text = TrimmedLeft(text);
  return text.substr(0, text.find_first_not_of("0123456789"));
}

int LeadingNumber(std::string_view text) {
  int value = 0;
  for (const char c : LeadingDigits(text)) {
    value = value * 10 + (c - '0');
    if (value > 65535) return 0;
  }
  return value;
}

int LeadingCount(std::string_view text, int most) {
  int value = 0;
  for (const char c : LeadingDigits(text)) {
    value = value * 10 + (c - '0');
    if (value > most) return most;
  }
  return value;
}

std::string ZeroPadded(int value, int width) {
  std::string digits = std::to_string(value);
  const auto size = static_cast<std::size_t>(width);
  if (digits.size() < size) digits.insert(0, size - digits.size(), '0');
  return digits;
}

std::string HexByte(int value) {
  constexpr std::string_view Digits = "0123456789ABCDEF";
  return {Digits[static_cast<std::size_t>(value >> 4 & 15)], Digits[static_cast<std::size_t>(value & 15)]};
}

}  // namespace Base
