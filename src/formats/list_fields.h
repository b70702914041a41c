// What the readers of channel lists share: fields, numbers, positions and names.
#pragma once

#include "formats/listed_service.h"

#include <algorithm>

namespace Formats {

// Takes the field at the front off `rest`, with the separator behind it.
inline std::string_view TakeField(std::string_view& rest, char separator) {
  const std::size_t end = std::min(rest.find(separator), rest.size());
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return field;
}

// Takes the decimal digits at the front off `rest`: their value, `most` + 1 where it is larger than `most`, NotSaid where
// there are none.
int TakeNumber(std::string_view& rest, int most);

// The value of a field of decimal digits alone, or hexadecimal ones; nothing where it is none or above `most`.
std::optional<int> WholeNumber(std::string_view field, int most);
std::optional<std::uint32_t> HexNumber(std::string_view field, std::uint32_t most);

// A PID, or an id of 16 bits, behind which other characters may follow: 0 for an absent PID, NotSaid where there are no
// digits, and `valid` false where the number is too large.
int PidAtFront(std::string_view field, bool& valid);
int IdIn(std::string_view field, bool& valid);

// MHz (or kHz, where the number is too large for MHz) in kHz; NotSaid where it is no frequency.
int KilohertzIn(std::string_view field);

// "19.2E" or "5W" as tenths of a degree, west below 0; nothing where it is none.
std::optional<int> PositionIn(std::string_view text);
// Tenths of a degree counted eastwards, as numbers up to 3599 give them.
constexpr int PositionOf(int eastwards) { return eastwards > 1800 ? eastwards - 3600 : eastwards; }
// "19.2E"
std::string PositionText(int position);

// By its first letter, small or large.
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
