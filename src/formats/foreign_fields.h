// The fields of other programs' lists, each in the many ways that they are written. Texts are bytes of the code page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Formats {

// Without blanks and tabs at both ends.
inline std::string_view Bare(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// A whole number of at most 16 bits. "0x", "$" or "h" mark hexadecimal digits whatever `hexadecimal` says; what
// follows the digits after some other character than a letter is left out ("650,651", "650 ita").
std::optional<int> NumberIn(std::string_view text, bool hexadecimal);
// Whether a text can only be hexadecimal: it is marked so or has one of the letters beside digits.
bool OnlyHexadecimal(std::string_view text);

// A frequency of 10000 to 13999 MHz, written in GHz, MHz, kHz or Hz: its size tells which. A polarisation letter
// may follow it.
std::optional<int> MegahertzIn(std::string_view text);

// A rate of 1000 to 45000 kBd, written in Bd, kBd or MBd.
std::optional<int> SymbolRateIn(std::string_view text);

// Whether a polarisation is horizontal: "H", "O" for "orizzontale", "L" and "1" are, "V", "R" and "0" are not.
std::optional<bool> HorizontalIn(std::string_view text);

// The digit that an SDX row has for "3/4", "34" or "3"; empty for automatic.
std::string FecDigitIn(std::string_view text);

// 'T', 'R' or 'S' for a word; nothing where it is none.
std::optional<char> TypeWordIn(std::string_view text);

// The receiver's coding byte for a name ("Nagra", "FTA"), a byte as it stands or a system's number (0x0500).
// Nothing where it is none of these.
std::optional<int> CodificaIn(std::string_view text, bool hexadecimal);

// The receiver's coding byte for an encryption system's registered number (0x0500); nothing where it has none.
std::optional<int> CodificaOfSystem(int number);
// The lowest number of the system that a coding byte stands for, be the channel active or not; 0 where it is free or none
// that is known.
int SystemOfCodifica(int coding);

}  // namespace Formats
