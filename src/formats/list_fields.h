// What the readers of channel lists share: fields, numbers, positions and names.
#pragma once

#include "base/text.h"
#include "formats/listed_service.h"

#include <algorithm>
#include <array>

namespace Formats {

// Takes the field at the front off `rest`, with the separator behind it.
inline std::string_view TakeField(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return field;
}

// A number that is not there is NotSaid.
using Base::TakeNumber;
static_assert(NotSaid == -1);

// What each character is worth as a hexadecimal digit; 16 for those that are none.
inline constexpr auto HexValues = [] {
  constexpr std::string_view Digits = "0123456789abcdef";
  std::array<std::uint8_t, 256> values{};
  values.fill(Digits.size());
  for (std::size_t digit = 0; digit < Digits.size(); ++digit) {
    const auto character = static_cast<unsigned char>(Digits[digit]);
    values[character] = static_cast<std::uint8_t>(digit);
    if (digit > 9) values[character & ~0x20U] = static_cast<std::uint8_t>(digit);
  }
  return values;
}();

// Takes the hexadecimal digits; nothing where there are none or more than eight.
inline std::optional<std::uint32_t> TakeHex(std::string_view& rest) {
  constexpr std::size_t MostDigits = 8;
  std::uint32_t value = 0;
  const char* at = rest.data();
  const char* const end = at + rest.size();
  for (; at != end; ++at) {
    const unsigned digit = HexValues[static_cast<unsigned char>(*at)];
    if (digit > 0xF) break;
    value = value << 4U | digit;
  }
  const auto digits = static_cast<std::size_t>(at - rest.data());
  rest.remove_prefix(digits);
  return digits == 0 || digits > MostDigits ? std::nullopt : std::optional(value);
}

// Takes what is left of a field, with the separator behind it: whether nothing was.
inline bool TakeEnd(std::string_view& rest, char separator) {
  if (rest.empty()) return true;
  if (rest.front() != separator) return TakeField(rest, separator).empty();
  rest.remove_prefix(1);
  return true;
}

// The value of a field of decimal digits alone, or hexadecimal ones; nothing where it is none or above `most`.
std::optional<int> WholeNumber(std::string_view field, int most);
std::optional<std::uint32_t> HexNumber(std::string_view field, std::uint32_t most);

// Takes a PID: 0 for an absent one, NotSaid where there are no digits, and `valid` false where it is too large.
inline int TakePid(std::string_view& rest, bool& valid) {
  constexpr int Absent = 8191;
  const int pid = TakeNumber(rest, Absent);
  valid = valid && pid <= Absent;
  return pid >= Absent ? 0 : pid;
}

// Takes a field that is an id of 16 bits, or empty: NotSaid, and `valid` false where it is something else.
inline int TakeId(std::string_view& rest, char separator, bool& valid) {
  const int id = TakeNumber(rest, 65535);
  valid = TakeEnd(rest, separator) && valid && id <= 65535;
  return id > 65535 ? NotSaid : id;
}

// MHz (or kHz, where the number is too large for MHz) in kHz; NotSaid where it is no frequency.
int KilohertzIn(std::string_view field);

// "19.2E" or "5W" as tenths of a degree, west below 0; nothing where it is none.
std::optional<int> PositionIn(std::string_view text);
// Tenths of a degree counted eastwards, as numbers up to 3599 give them.
constexpr int PositionOf(int eastwards) { return eastwards > 1800 ? eastwards - 3600 : eastwards; }
// "19.2E"
std::string PositionText(int position);

// Of a letter, small or large.
constexpr Polarisation PolarisationOf(char letter) {
  switch (letter | 0x20) {
    case 'h':
      return Polarisation::Horizontal;
    case 'v':
      return Polarisation::Vertical;
    case 'l':
      return Polarisation::Left;
    case 'r':
      return Polarisation::Right;
    default:
      return Polarisation::Unknown;
  }
}
// By its first letter.
Polarisation PolarisationIn(std::string_view text);
// "3/4" for 34; empty for what is no pair of digits.
Base::ShortText<4> FecOfDigits(int digits);

// The type of a service that its list gives none; 0 where it has no PIDs either.
inline char TypeByPids(const ListedService& service) {
  return service.vpid > 0 ? 'T' : service.apid > 0 ? 'R' : '\0';
}

// Puts a name or a provider into `to`: UTF-8 becomes the code page, control characters blanks, blanks at the ends go.
void TakeName(std::string& to, std::string_view bytes);

// The lines that a file is known by: the first 50 that hold something and do not begin with a character of `skipped`.
// Whether more than half of them pass, and at least one does.
bool MostLines(std::string_view text, std::string_view skipped, bool (*passes)(std::string_view line));

}  // namespace Formats
