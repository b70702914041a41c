#include "formats/foreign_fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace Formats {
namespace {

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view HexDigits = "0123456789ABCDEF";

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// Of at most the first 32 characters: no field that counts is longer.
std::string Upper(std::string_view text) {
  std::string upper(Bare(text).substr(0, 32));
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

// Takes a mark of hexadecimal digits off an upper-case text.
bool TakeHexMark(std::string_view& text) {
  for (const std::string_view mark : {"0X", "$", "&H"}) {
    if (!text.starts_with(mark)) continue;
    text.remove_prefix(mark.size());
    return true;
  }
  const bool marked = text.size() > 1 && text.ends_with('H') &&
                      text.substr(0, text.size() - 1).find_first_not_of(HexDigits) == std::string_view::npos;
  if (marked) text.remove_suffix(1);
  return marked;
}

struct Decimal {
  double value = 0;
  bool point = false;       // it has a decimal mark
  std::string_view behind;  // what follows it, without blanks
};

// A decimal number at the front, with a point or a comma; several of them divide thousands.
std::optional<Decimal> DecimalIn(std::string_view text) {
  const std::size_t end = std::min(text.find_first_not_of("0123456789.,"), text.size());
  std::string number(text.substr(0, end));
  const auto isMark = [](char c) { return c == '.' || c == ','; };
  const auto marks = std::count_if(number.begin(), number.end(), isMark);
  if (marks > 1) number.erase(std::remove_if(number.begin(), number.end(), isMark), number.end());
  std::replace(number.begin(), number.end(), ',', '.');
  Decimal result;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), result.value);
  if (read.ec != std::errc() || read.ptr != number.data() + number.size()) return std::nullopt;
  result.point = marks == 1;
  result.behind = Bare(text.substr(end));
  return result;
}

// A value brought into [least, most) by the first of three steps of a thousand that does.
std::optional<int> Scaled(const Decimal& number, double least, double most) {
  // Without a mark a small number is no frequency in GHz but some other column.
  double value = number.point && number.value < most / 1000 ? number.value * 1000 : number.value;
  for (int step = 0; step < 3; ++step, value /= 1000) {
    if (value >= least && value < most) return static_cast<int>(std::lround(value));
  }
  return std::nullopt;
}

struct Word {
  std::string_view text;
  int value;
};

// Systems of encryption by the beginning of their name, and those without any.
constexpr Word Systems[] = {{"SECA", 0x24}, {"MEDIAG", 0x24}, {"NAGRA", 0x44},  {"BETA", 0x64},
                            {"IRD", 0x84},  {"VIACC", 0xA4},  {"VIA", 0xA4},    {"FTA", 0x04},
                            {"FREE", 0x04}, {"CLEAR", 0x04},  {"CHIARO", 0x04}, {"IN CHIARO", 0x04},
                            {"AUTO", 0x04}, {"CRYPT", 0x04},  {"SCRAMB", 0x04}, {"CODIF", 0x04}};

// The same by the high byte of their registered numbers.
constexpr std::pair<int, int> SystemNumbers[] = {
    {0x01, 0x24}, {0x05, 0xA4}, {0x06, 0x84}, {0x17, 0x64}, {0x18, 0x44}};

}  // namespace

std::optional<int> NumberIn(std::string_view text, bool hexadecimal) {
  const std::string upper = Upper(text);
  std::string_view rest = upper;
  const bool hex = TakeHexMark(rest) || hexadecimal;
  const std::size_t end = std::min(rest.find_first_not_of(hex ? HexDigits : Digits), rest.size());
  if (end == 0 || (end < rest.size() && IsLetter(rest[end]))) return std::nullopt;
  int value = 0;
  const auto read = std::from_chars(rest.data(), rest.data() + end, value, hex ? 16 : 10);
  if (read.ec != std::errc() || value > 65535) return std::nullopt;
  return value;
}

bool OnlyHexadecimal(std::string_view text) {
  const std::string upper = Upper(text);
  std::string_view rest = upper;
  const bool marked = TakeHexMark(rest);
  return !rest.empty() && rest.find_first_not_of(HexDigits) == std::string_view::npos &&
         (marked || (rest.find_first_of(Digits) != std::string_view::npos &&
                     rest.find_first_not_of(Digits) != std::string_view::npos));
}

std::optional<int> MegahertzIn(std::string_view text) {
  const std::string upper = Upper(text);
  const auto number = DecimalIn(upper);
  if (!number) return std::nullopt;
  std::string_view behind = number->behind;
  for (const std::string_view unit : {"GHZ", "MHZ", "KHZ", "HZ"}) {
    if (!behind.starts_with(unit)) continue;
    behind = Bare(behind.substr(unit.size()));
    break;
  }
  if (!behind.empty() && !HorizontalIn(behind)) return std::nullopt;
  return Scaled(*number, 10000, 14000);
}

std::optional<int> SymbolRateIn(std::string_view text) {
  const std::string upper = Upper(text);
  const auto number = DecimalIn(upper);
  if (!number || (!number->behind.empty() && !IsLetter(number->behind.front()))) return std::nullopt;
  return Scaled(*number, 1000, 45001);
}

std::optional<bool> HorizontalIn(std::string_view text) {
  const std::string upper = Upper(text);
  // A letter alone or a word: "H", "Hor", "orizzontale".
  constexpr std::string_view Words[] = {"H",           "HOR",       "HORIZONTAL", "O", "OR",  "ORIZ",
                                        "ORIZZONTALE", "L",         "1",          "V", "VER", "VERT",
                                        "VERTICAL",    "VERTICALE", "R",          "0"};
  const auto* found = std::find(std::begin(Words), std::end(Words), upper);
  if (found == std::end(Words)) return std::nullopt;
  return found - std::begin(Words) < 9;
}

std::string FecDigitIn(std::string_view text) {
  constexpr std::string_view Rates[] = {"12", "23", "34", "56", "78"};
  std::string digits(Bare(text).substr(0, 8));
  digits.erase(std::remove_if(digits.begin(), digits.end(), [](char c) { return c == '/' || c == ' '; }),
               digits.end());
  for (const std::string_view rate : Rates) {
    if (digits == rate || digits == rate.substr(0, 1)) return std::string(rate.substr(0, 1));
  }
  return {};
}

std::optional<char> TypeWordIn(std::string_view text) {
  const std::string upper = Upper(text);
  constexpr std::pair<std::string_view, char> Words[] = {
      {"T", 'T'},          {"R", 'R'},           {"S", 'S'},      {"D", 'S'},     {"TV", 'T'},
      {"HDTV", 'T'},       {"SDTV", 'T'},        {"TV-HD", 'T'},  {"TV HD", 'T'}, {"VIDEO", 'T'},
      {"TELEVISION", 'T'}, {"TELEVISIONE", 'T'}, {"RADIO", 'R'},  {"AUDIO", 'R'}, {"DATA", 'S'},
      {"DATI", 'S'},       {"SERVIZIO", 'S'},    {"SERVIZI", 'S'}};
  for (const auto& [word, type] : Words) {
    if (upper == word) return type;
  }
  return std::nullopt;
}

std::optional<int> CodificaIn(std::string_view text, bool hexadecimal) {
  constexpr int Free = 0x04;
  const std::string upper = Upper(text);
  for (const std::string_view word : {"", "-", "N", "NO", "S", "SI", "Y", "YES", "F"}) {
    if (upper == word) return Free;
  }
  for (const Word& system : Systems) {
    if (upper.starts_with(system.text)) return system.value;
  }
  const auto number = NumberIn(text, hexadecimal);
  if (!number || *number == 0 || *number == 1) return number ? std::optional(Free) : std::nullopt;
  if (*number < 256) return *number;
  return CodificaOfSystem(*number).value_or(Free);
}

std::optional<int> CodificaOfSystem(int number) {
  for (const auto& [highByte, coding] : SystemNumbers) {
    if (highByte == number / 256) return coding;
  }
  return std::nullopt;
}

int SystemOfCodifica(int coding) {
  constexpr int Active = 0x04;
  for (const auto& [highByte, known] : SystemNumbers) {
    if (known == (coding | Active)) return highByte * 256;
  }
  return 0;
}

}  // namespace Formats
