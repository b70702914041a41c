#include "formats/csv_format.h"

#include "base/code_page.h"
#include "base/text.h"
#include "model/cells.h"

#include <vector>

namespace Formats {
namespace {

using namespace Routines;

constexpr const char* ByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* LineEnd = "\r\n";
constexpr const char* FractionSlash = "\xE2\x81\x84";

// Of a channel's transponder; the columns are those of the transponder list.
constexpr struct {
  const char* title;
  int column;
} Details[] = {{"Frequenza", TransponderColumn::Frequency},
               {"Pol", TransponderColumn::Polarisation},
               {"SR", TransponderColumn::SymbolRate},
               {"FEC", TransponderColumn::Fec},
               {"Satellite", TransponderColumn::Satellite},
               {"Bouquet", TransponderColumn::Bouquet},
               {"TID", TransponderColumn::Tid},
               {"NID", TransponderColumn::Nid}};

// The titles of a header format string.
std::vector<std::string> Titles(std::string_view header) {
  std::vector<std::string> titles;
  while (true) {
    const std::size_t end = header.find('|');
    std::string_view title = header.substr(0, end);
    title.remove_prefix(std::min(title.find_first_not_of("^<"), title.size()));
    titles.emplace_back(Base::Trimmed(title));
    if (end == std::string_view::npos) return titles;
    header.remove_prefix(end + 1);
  }
}

// "24/7" and "1-2" would become dates, "10.30" a time, "1E5" a large number.
bool LooksLikeDate(std::string_view text) {
  constexpr std::string_view Digits = "0123456789";
  const auto divider = text.find_first_not_of(Digits);
  return divider != 0 && divider != std::string_view::npos && divider + 1 < text.size() &&
         std::string_view("/-.,:eE").find(text[divider]) != std::string_view::npos &&
         text.find_first_not_of("0123456789/-.,: ", divider + 1) == std::string_view::npos;
}

// `bytes` of the code page as one field. Lists come from strangers: a name must not be run as a formula.
std::string Field(std::string_view bytes) {
  std::string text(Base::TrimmedRight(bytes));
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin != std::string::npos && NeedsApostrophe(std::string_view(text).substr(begin)))
    text.insert(0, "'");
  text = Base::ToUtf8(text);
  if (text.find_first_of(";\"") == std::string::npos) return text;
  for (std::size_t at = text.find('"'); at != std::string::npos; at = text.find('"', at + 2))
    text.insert(at, "\"");
  return '"' + text + '"';
}

std::string Line(const std::vector<std::string>& fields) {
  std::string line;
  for (const std::string& field : fields) line += (line.empty() ? "" : ";") + field;
  return line + LineEnd;
}

std::string TransponderText(const State& state, int slot, int column) {
  std::string text = TransponderCell(state, slot, column);
  if (column != TransponderColumn::Fec) return Field(text);
  // A number with a fraction needs no apostrophe.
  if (text.size() == 3) text.replace(1, 1, FractionSlash);
  return text;
}

}  // namespace

bool NeedsApostrophe(std::string_view text) {
  return (!text.empty() && std::string_view("=+-@").find(text.front()) != std::string_view::npos) ||
         LooksLikeDate(text);
}

std::string WriteChannelsCsv(const State& state, const std::vector<int>& slots) {
  std::vector<std::string> fields = Titles(ChannelHeader);
  const int columns = static_cast<int>(fields.size());
  for (const auto& detail : Details) fields.emplace_back(detail.title);
  std::string text = ByteOrderMark + Line(fields);
  for (const int slot : slots) {
    const ChannelRecord& channel = state.Channel(slot);
    if (channel.Empty()) continue;
    fields.clear();
    for (int column = 0; column < columns; ++column)
      fields.push_back(Field(ChannelCell(state, slot, column)));
    const std::uint32_t transponder = Get(channel, ChannelField::Transponder);
    const bool known = TransponderInUse(state, transponder) != nullptr;
    for (const auto& detail : Details) {
      fields.push_back(known ? TransponderText(state, static_cast<int>(transponder), detail.column)
                             : std::string());
    }
    text += Line(fields);
  }
  return text;
}

std::string WriteTranspondersCsv(const State& state, const std::vector<int>& slots) {
  std::vector<std::string> fields = Titles(TransponderHeader);
  const int columns = static_cast<int>(fields.size());
  std::string text = ByteOrderMark + Line(fields);
  for (const int slot : slots) {
    if (TransponderInUse(state, static_cast<std::uint32_t>(slot)) == nullptr) continue;
    fields.clear();
    for (int column = 0; column < columns; ++column) fields.push_back(TransponderText(state, slot, column));
    text += Line(fields);
  }
  return text;
}

}  // namespace Formats
