#include "formats/list_fields.h"

#include "base/code_page.h"
#include "base/text.h"
#include "formats/foreign_fields.h"

namespace Formats {
namespace {

constexpr int HighestMegahertz = 99999;
constexpr int HighestKilohertz = HighestMegahertz * 1000;
constexpr int MostKnownBy = 50;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Nearly every name is of letters that all code pages have.
bool IsPlain(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= ' '; });
}

// A broadcast name may have marks round the part that stands for it where room is short, and line breaks: characters
// U+0086, U+0087 and U+008A, which mean other things in the code page.
std::string WithoutMarks(std::string_view utf8) {
  std::string plain(utf8);
  for (std::size_t at = plain.find('\xC2'); at != std::string::npos; at = plain.find('\xC2', at)) {
    const char second = at + 1 < plain.size() ? plain[at + 1] : '\0';
    const bool mark = second == '\x86' || second == '\x87';
    plain.replace(at, mark || second == '\x8A' ? 2 : 0, second == '\x8A' ? " " : "");
    at += mark ? 0 : 1;
  }
  return plain;
}

}  // namespace

std::optional<int> WholeNumber(std::string_view field, int most) {
  field = Bare(field);
  const int value = TakeNumber(field, most);
  return value == NotSaid || value > most || !field.empty() ? std::nullopt : std::optional(value);
}

std::optional<std::uint32_t> HexNumber(std::string_view field, std::uint32_t most) {
  field = Bare(field);
  const auto value = TakeHex(field);
  return field.empty() && value && *value <= most ? value : std::nullopt;
}

int KilohertzIn(std::string_view field) {
  const int value = WholeNumber(field, HighestKilohertz).value_or(NotSaid);
  return value > HighestMegahertz || value <= 0 ? (value <= 0 ? NotSaid : value) : value * 1000;
}

std::optional<int> PositionIn(std::string_view text) {
  const int degrees = TakeNumber(text, 180);
  int tenths = 0;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    tenths = !text.empty() && IsDigit(text.front()) ? text.front() - '0' : NotSaid;
    TakeNumber(text, 0);  // a second place is more than a satellite's name has
  }
  const bool west = text == "W" || text == "w";
  const int position = degrees * 10 + tenths;
  if (degrees == NotSaid || tenths == NotSaid || position > 1800 || !(west || text == "E" || text == "e"))
    return std::nullopt;
  return west ? -position : position;
}

std::string PositionText(int position) {
  const int tenths = std::abs(position);
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + (position < 0 ? "W" : "E");
}

Polarisation PolarisationIn(std::string_view text) {
  text = Bare(text);
  return text.empty() ? Polarisation::Unknown : PolarisationOf(text.front());
}

Base::ShortText<4> FecOfDigits(int digits) {
  if (digits == 910) return "9/10";
  if (digits < 12 || digits > 89 || digits % 10 != digits / 10 + 1) return digits == 35 ? "3/5" : "";
  const char text[] = {static_cast<char>('0' + digits / 10), '/', static_cast<char>('0' + digits % 10)};
  return std::string_view(text, 3);
}

void TakeName(std::string& to, std::string_view bytes) {
  if (IsPlain(bytes)) {
    to = Base::Trimmed(bytes);
    return;
  }
  std::string name = Base::IsUtf8(bytes) ? Base::FromUtf8Lossy(WithoutMarks(bytes)) : std::string(bytes);
  for (char& c : name) {
    if (c >= 0 && c < ' ') c = ' ';
  }
  to = Base::Trimmed(name);
}

bool MostLines(std::string_view text, std::string_view skipped, bool (*passes)(std::string_view line)) {
  int lines = 0;
  int good = 0;
  while (!text.empty() && lines < MostKnownBy) {
    const std::string_view line = Base::TakeLine(text);
    if (Bare(line).empty() || skipped.find(line.front()) != std::string_view::npos) continue;
    ++lines;
    good += passes(line) ? 1 : 0;
  }
  return good * 2 > lines;
}

}  // namespace Formats
