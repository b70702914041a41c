// Reading lists of other programs, laid out as guessed and as a user might say.
#include "formats/foreign_list.h"

#include "formats/foreign_text.h"
#include "fuzz_support.h"

#include <algorithm>
#include <set>

using namespace Fuzz;
using namespace Formats;

namespace {

void CheckGuess(const ForeignLayout& layout) {
  Require(layout.columns.size() <= MostForeignColumns, "no more columns than count");
  Require(std::is_sorted(layout.starts.begin(), layout.starts.end()), "columns begin one behind the other");
  std::multiset<Meaning> meanings;
  for (const ForeignColumn& column : layout.columns) meanings.insert(column.meaning);
  for (const Meaning meaning : meanings)
    Require(meaning == Meaning::None || meanings.count(meaning) == 1, "a meaning is given once");
}

void CheckList(std::string_view text, const ForeignLayout& layout, int satellite) {
  const SdxTable table = ReadForeign(text, layout, satellite);
  CheckRows(table);
  const int dropped = table.dropped.Total();
  Require(static_cast<int>(table.rows.size()) + dropped + (table.full ? 1 : 0) == table.lines,
          "every line is taken or dropped for a reason");
  Require((dropped == 0) == table.dropped.Text().empty(), "what was dropped is told");
  for (const SdxRow& row : table.rows) {
    const std::string_view name = row.name;
    const std::string_view frequency = row.frequency;
    Require(std::none_of(name.begin(), name.end(), [](char c) { return c >= 0 && c < ' '; }) &&
                name.find_first_not_of(' ') != std::string_view::npos,
            "a row has a name that can be shown");
    Require(frequency >= "010000" && frequency <= "014000", "a frequency of the band");
    Require(row.type != 'R' || row.vpid == "65535", "a radio row has no video");
  }
  CheckRowImport(table, 1 + satellite * 9);
}

// The guess with a few choices changed, as the window's dialog allows.
void Change(ForeignLayout& layout, Input& choices) {
  layout.quotes = choices.Byte() % 2 == 0;
  layout.header = choices.Byte() % 2 == 0;
  const std::size_t starts = choices.Byte() % 8;
  if (starts > 0) layout.starts.assign(1, 0);
  for (std::size_t i = 1; i < starts; ++i) layout.starts.push_back(layout.starts.back() + choices.Byte());
  layout.columns.resize(std::max<std::size_t>(layout.columns.size(), choices.Byte() % 16));
  while (!choices.AtEnd() && !layout.columns.empty()) {
    ForeignColumn& column = layout.columns[choices.Byte() % layout.columns.size()];
    const std::size_t meaning = choices.Byte();
    column.meaning = static_cast<Meaning>(meaning % Meanings);
    column.hexadecimal = meaning >= 128;
  }
}

}  // namespace

// A satellite, the separator a user chooses, the number of further choices and those, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const int satellite = static_cast<int>(input.Byte() % 26);
  const auto separator = static_cast<Separator>(input.Byte() % 6);
  const Base::ByteView chosen = input.Run(input.Byte());
  const auto decoded = DecodeForeign(input.Text(), "lista.csv");
  if (!decoded) return 0;
  const std::string& text = decoded->text;
  Require(text.find('\r') == std::string::npos && text.find('\0') == std::string::npos, "lines end with LF");

  const ForeignSample sample = SampleOf(text);
  ForeignLayout layout = GuessForeign(sample);
  CheckGuess(layout);
  Require(Reapplied(layout, sample) == layout, "a layout fits the file it was guessed from");
  ::CheckList(text, layout, satellite);

  layout.separator = separator;
  GuessColumns(layout, sample);
  CheckGuess(layout);
  if (chosen.empty()) return 0;
  Input choices(chosen.data(), chosen.size());
  Change(layout, choices);
  TakeTitles(layout, sample);
  static_cast<void>(Reapplied(layout, sample));
  ::CheckList(text, layout, satellite);
  return 0;
}
