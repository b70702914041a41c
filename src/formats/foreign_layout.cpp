#include "formats/foreign_layout.h"

#include "base/text.h"
#include "formats/foreign_fields.h"

#include <algorithm>
#include <map>
#include <set>

namespace Formats {
namespace {

constexpr std::size_t SampleLines = 200;
// A column belongs to the layout when at least one line in ten reaches it.
constexpr std::size_t RareLine = 10;

using Rows = std::vector<std::vector<std::string>>;

Rows RowsOf(const ForeignLayout& layout, const ForeignSample& sample) {
  Rows rows(sample.size());
  for (std::size_t i = 0; i < sample.size(); ++i) SplitForeign(sample[i], layout, rows[i]);
  return rows;
}

std::size_t ColumnCount(const Rows& rows) {
  std::size_t count = 0;
  std::map<std::size_t, std::size_t, std::greater<>> sizes;
  for (const auto& row : rows) ++sizes[row.size()];
  std::size_t longer = 0;
  for (const auto& [size, lines] : sizes) {
    longer += lines;
    if (count == 0 && longer * RareLine >= rows.size()) count = size;
  }
  return count;
}

// How well a separator divides the lines: many fields, and as many in each line.
double ScoreOf(Separator separator, const ForeignSample& sample) {
  ForeignLayout layout;
  layout.separator = separator;
  std::map<std::size_t, std::size_t> sizes;
  for (const auto& row : RowsOf(layout, sample)) ++sizes[row.size()];
  double score = 0;
  for (const auto& [size, lines] : sizes) {
    const double share = static_cast<double>(lines) / static_cast<double>(sample.size());
    score = std::max(score, share * share * static_cast<double>(size - 1));
  }
  return score;
}

char CharacterOf(Separator separator) {
  switch (separator) {
    case Separator::Tab:
      return '\t';
    case Separator::Semicolon:
      return ';';
    case Separator::Comma:
      return ',';
    case Separator::Bar:
      return '|';
    default:
      return ' ';
  }
}

// Takes a field in quotation marks off the line; false where its end is missing, as in a name with a stray mark.
bool TakeQuoted(std::string_view& line, std::string& field) {
  for (std::size_t at = 1; at < line.size(); ++at) {
    const bool mark = line[at] == '"';
    const bool doubled = mark && at + 1 < line.size() && line[at + 1] == '"';
    if (mark && !doubled) {
      line.remove_prefix(at + 1);
      return true;
    }
    field += line[at];
    if (doubled) ++at;
  }
  return false;
}

void SplitColumns(std::string_view line, const std::vector<std::size_t>& starts,
                  std::vector<std::string>& fields) {
  for (std::size_t i = 0; i < starts.size() && i < MostForeignColumns; ++i) {
    const std::size_t first = std::min(starts[i], line.size());
    const std::size_t end = i + 1 < starts.size() ? std::min(starts[i + 1], line.size()) : line.size();
    fields.emplace_back(Bare(line.substr(first, end - first)));
  }
}

struct Title {
  std::string_view text;
  Meaning meaning;
  bool whole = false;  // else a title that begins so
};

// In the languages that lists are written in.
constexpr Title Titles[] = {{"vpid", Meaning::Vpid},
                            {"video", Meaning::Vpid},
                            {"pidv", Meaning::Vpid},
                            {"apid", Meaning::Apid},
                            {"audio", Meaning::Apid},
                            {"pida", Meaning::Apid},
                            {"pcr", Meaning::Pcr},
                            {"pidpcr", Meaning::Pcr},
                            {"sid", Meaning::Sid},
                            {"serviceid", Meaning::Sid},
                            {"svcid", Meaning::Sid},
                            {"programid", Meaning::Sid},
                            {"tid", Meaning::Tid},
                            {"tsid", Meaning::Tid},
                            {"transportstreamid", Meaning::Tid},
                            {"transportid", Meaning::Tid},
                            {"nid", Meaning::Nid},
                            {"onid", Meaning::Nid},
                            {"networkid", Meaning::Nid},
                            {"originalnetwork", Meaning::Nid},
                            {"freq", Meaning::Frequency},
                            {"pol", Meaning::Polarisation},
                            {"hv", Meaning::Polarisation, true},
                            {"symb", Meaning::SymbolRate},
                            {"sr", Meaning::SymbolRate, true},
                            {"srate", Meaning::SymbolRate},
                            {"fec", Meaning::Fec},
                            {"type", Meaning::Type},
                            {"tipo", Meaning::Type},
                            {"servicetype", Meaning::Type},
                            {"codif", Meaning::Coding},
                            {"coding", Meaning::Coding},
                            {"crypt", Meaning::Coding},
                            {"encr", Meaning::Coding},
                            {"scram", Meaning::Coding},
                            {"fta", Meaning::Coding},
                            {"cas", Meaning::Coding, true},
                            {"ca", Meaning::Coding, true},
                            {"name", Meaning::Name},
                            {"nome", Meaning::Name},
                            {"channelname", Meaning::Name},
                            {"servicename", Meaning::Name},
                            {"channel", Meaning::Name, true},
                            {"canale", Meaning::Name, true},
                            {"service", Meaning::Name, true},
                            {"servizio", Meaning::Name, true},
                            {"programma", Meaning::Name, true},
                            {"program", Meaning::Name, true},
                            {"emittente", Meaning::Name, true}};

Meaning MeaningOfTitle(std::string_view title) {
  std::string plain;
  for (const char c : title.substr(0, title.find('('))) {
    if (c >= 'A' && c <= 'Z') plain += static_cast<char>(c - 'A' + 'a');
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) plain += c;
  }
  for (const Title& known : Titles) {
    if (known.whole ? plain == known.text : plain.starts_with(known.text)) return known.meaning;
  }
  return Meaning::None;
}

bool HasDigit(std::string_view text) { return text.find_first_of("0123456789") != std::string_view::npos; }

bool LooksLikeHeader(const Rows& rows) {
  if (rows.size() < 2) return false;
  const auto& first = rows.front();
  const auto known = std::count_if(first.begin(), first.end(), [](const std::string& title) {
    return MeaningOfTitle(title) != Meaning::None;
  });
  return known >= 2 || std::none_of(first.begin(), first.end(), HasDigit);
}

// The cells of one column of the sample that hold anything.
class Cells {
 public:
  Cells(const Rows& rows, std::size_t column, bool header) {
    for (std::size_t i = header ? 1 : 0; i < rows.size(); ++i) {
      if (column < rows[i].size() && !rows[i][column].empty()) cells_.push_back(rows[i][column]);
    }
    half_ = (rows.size() - (header ? 1 : 0)) / 2;
  }

  // Whether nearly all of the cells pass, and not too few are filled.
  template <class Test>
  [[nodiscard]] bool Mostly(Test test) const {
    return !cells_.empty() && cells_.size() >= half_ && Count(test) * 10 >= cells_.size() * 9;
  }
  template <class Test>
  [[nodiscard]] std::size_t Count(Test test) const {
    return static_cast<std::size_t>(std::count_if(cells_.begin(), cells_.end(), test));
  }
  [[nodiscard]] std::size_t Size() const { return cells_.size(); }
  [[nodiscard]] std::size_t Different() const {
    return std::set<std::string_view>(cells_.begin(), cells_.end()).size();
  }

 private:
  std::vector<std::string_view> cells_;
  std::size_t half_ = 0;
};

bool IsText(std::string_view cell) {
  return !OnlyHexadecimal(cell) && std::any_of(cell.begin(), cell.end(), [](char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0xC0;
  });
}

bool IsLetters(std::string_view cell) { return IsText(cell) && !HasDigit(cell); }

// What the cells themselves say; PIDs and service ids look alike and have no sign of their own.
bool LooksLike(Meaning meaning, const Cells& cells) {
  const auto isUsualRate = [](std::string_view cell) {
    const auto rate = SymbolRateIn(cell);
    return rate && (*rate == 27500 || *rate == 22000 || *rate == 29900 || *rate == 30000);
  };
  switch (meaning) {
    case Meaning::Frequency:
      return cells.Mostly([](std::string_view cell) { return MegahertzIn(cell).has_value(); });
    case Meaning::Polarisation:
      return cells.Mostly([](std::string_view cell) { return IsLetters(cell) && HorizontalIn(cell); });
    case Meaning::Fec:
      return cells.Mostly([](std::string_view cell) { return cell.size() > 1 && !FecDigitIn(cell).empty(); });
    case Meaning::SymbolRate:
      return cells.Mostly([](std::string_view cell) { return SymbolRateIn(cell).has_value(); }) &&
             cells.Count(isUsualRate) * 3 >= cells.Size();
    case Meaning::Type:
      return cells.Mostly([](std::string_view cell) { return TypeWordIn(cell).has_value(); });
    case Meaning::Coding:
      return cells.Mostly([](std::string_view cell) { return IsLetters(cell) && CodificaIn(cell, false); });
    default:
      return false;
  }
}

void TakeByContent(ForeignLayout& layout, const std::vector<Cells>& cells) {
  for (const Meaning meaning : {Meaning::Frequency, Meaning::Polarisation, Meaning::Fec, Meaning::SymbolRate,
                                Meaning::Type, Meaning::Coding}) {
    for (std::size_t i = 0; i < cells.size() && !layout.Has(meaning); ++i) {
      if (layout.columns[i].meaning == Meaning::None && LooksLike(meaning, cells[i]))
        layout.columns[i].meaning = meaning;
    }
  }
  if (layout.Has(Meaning::Name)) return;
  // Names differ from line to line more than anything else that is text.
  std::size_t most = 0;
  ForeignColumn* name = nullptr;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool candidate =
        layout.columns[i].meaning == Meaning::None && cells[i].Count(IsText) * 2 > cells[i].Size();
    if (!candidate || cells[i].Different() <= most) continue;
    most = cells[i].Different();
    name = &layout.columns[i];
  }
  if (name != nullptr) name->meaning = Meaning::Name;
}

bool LooksHexadecimal(const Cells& cells) {
  const auto isHex = [](std::string_view cell) { return NumberIn(cell, true).has_value(); };
  return cells.Count(OnlyHexadecimal) > 0 && cells.Mostly(isHex);
}

// Whether a column begins within a word of a line; titles may reach beyond their column.
bool CutWords(const std::vector<std::size_t>& starts, const ForeignSample& sample) {
  const auto cuts = [&starts](std::string_view line) {
    return std::any_of(starts.begin(), starts.end(), [line](std::size_t at) {
      return at > 0 && at < line.size() && line[at - 1] != ' ' && line[at] != ' ';
    });
  };
  return sample.size() > 1 && std::any_of(sample.begin() + 1, sample.end(), cuts);
}

bool SameTitles(const ForeignLayout& one, const ForeignLayout& other) {
  const auto titles = [](const ForeignLayout& of) {
    std::multiset<std::string> all;
    for (const ForeignColumn& column : of.columns) all.insert(column.title);
    return all;
  };
  return titles(one) == titles(other);
}

// Whether a column's title names something else than what the column is taken for.
bool TitlesDeny(const ForeignLayout& layout) {
  return std::any_of(layout.columns.begin(), layout.columns.end(), [](const ForeignColumn& column) {
    const Meaning named = MeaningOfTitle(column.title);
    return named != Meaning::None && column.meaning != Meaning::None && named != column.meaning;
  });
}

}  // namespace

bool ForeignLayout::Has(Meaning meaning) const {
  return std::any_of(columns.begin(), columns.end(),
                     [meaning](const ForeignColumn& column) { return column.meaning == meaning; });
}

ForeignSample SampleOf(std::string_view text) {
  ForeignSample sample;
  while (!text.empty() && sample.size() < SampleLines) {
    const std::string_view line = Base::TakeLine(text).substr(0, LongestForeignLine);
    if (!Bare(line).empty()) sample.push_back(line);
  }
  return sample;
}

void SplitForeign(std::string_view line, const ForeignLayout& layout, std::vector<std::string>& fields) {
  fields.clear();
  line = line.substr(0, LongestForeignLine);
  if (layout.separator == Separator::Columns) {
    SplitColumns(line, layout.starts, fields);
    return;
  }
  const bool blanks = layout.separator == Separator::Blanks;
  const std::string separators = blanks ? " \t" : std::string(1, CharacterOf(layout.separator));
  const std::string_view around = layout.separator == Separator::Tab ? " " : " \t";
  if (blanks) line = Bare(line);
  while (fields.size() < MostForeignColumns) {
    line.remove_prefix(std::min(line.find_first_not_of(around), line.size()));
    std::string field;
    std::string_view rest = line;
    bool quoted = layout.quotes && line.starts_with('"') && TakeQuoted(rest, field);
    if (quoted) {
      // Text behind the second mark means that the marks belong to it.
      const std::string_view behind = rest.substr(0, rest.find_first_of(separators));
      quoted = Bare(behind).empty();
    }
    if (quoted) line = rest;
    const std::size_t end = line.find_first_of(separators);
    if (!quoted) field = Bare(line.substr(0, end));
    fields.push_back(std::move(field));
    if (end == std::string_view::npos) break;
    line.remove_prefix(end + 1);
  }
}

std::vector<std::size_t> GuessStarts(const ForeignSample& sample) {
  std::vector<std::size_t> starts;
  // Titles may reach into the gap beside their column.
  const std::size_t first = sample.size() > 3 ? 1 : 0;
  std::size_t width = 0;
  for (std::size_t i = first; i < sample.size(); ++i) width = std::max(width, sample[i].size());
  bool gap = true;
  for (std::size_t at = 0; at < width && starts.size() < MostForeignColumns; ++at) {
    const bool blank =
        std::all_of(sample.begin() + static_cast<std::ptrdiff_t>(first), sample.end(),
                    [at](std::string_view line) { return at >= line.size() || line[at] == ' '; });
    if (gap && !blank) starts.push_back(starts.empty() ? 0 : at);
    gap = blank;
  }
  return starts;
}

ForeignLayout GuessForeign(const ForeignSample& sample) {
  ForeignLayout layout;
  double best = 0;
  for (const Separator separator : {Separator::Tab, Separator::Semicolon, Separator::Comma, Separator::Bar}) {
    const double score = ScoreOf(separator, sample);
    if (score <= best) continue;
    best = score;
    layout.separator = separator;
  }
  layout.starts = GuessStarts(sample);
  // A comma may as well stand within frequencies or names.
  if (best < (layout.separator == Separator::Comma ? 1.2 : 0.5)) {
    if (layout.starts.size() > 2 && sample.size() > 2) {
      layout.separator = Separator::Columns;
    } else if (ScoreOf(Separator::Blanks, sample) > best) {
      layout.separator = Separator::Blanks;
    }
  }
  GuessColumns(layout, sample);
  return layout;
}

void TakeTitles(ForeignLayout& layout, const ForeignSample& sample) {
  std::vector<std::string> titles;
  if (layout.header && !sample.empty()) SplitForeign(sample.front(), layout, titles);
  titles.resize(layout.columns.size());
  for (std::size_t i = 0; i < titles.size(); ++i) layout.columns[i].title = titles[i];
}

void GuessColumns(ForeignLayout& layout, const ForeignSample& sample) {
  const Rows rows = RowsOf(layout, sample);
  layout.columns.assign(ColumnCount(rows), {});
  layout.header = LooksLikeHeader(rows);
  TakeTitles(layout, sample);
  std::vector<Cells> cells;
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    cells.emplace_back(rows, i, layout.header);
    const Meaning meaning = MeaningOfTitle(layout.columns[i].title);
    if (!layout.Has(meaning)) layout.columns[i].meaning = meaning;
  }
  TakeByContent(layout, cells);
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    layout.columns[i].hexadecimal = HasBase(layout.columns[i].meaning) && LooksHexadecimal(cells[i]);
  }
}

std::optional<ForeignLayout> Reapplied(const ForeignLayout& earlier, const ForeignSample& sample) {
  ForeignLayout layout = earlier;
  if (layout.separator == Separator::Columns) {
    // Fixed places divide any text into as many columns: whether they are this file's, only its own look tells.
    const ForeignLayout own = GuessForeign(sample);
    if (own.separator != Separator::Columns || own.starts.size() != layout.starts.size()) return std::nullopt;
    if (CutWords(layout.starts, sample)) layout.starts = own.starts;
  }
  const Rows rows = RowsOf(layout, sample);
  if (ColumnCount(rows) != earlier.columns.size()) return std::nullopt;
  TakeTitles(layout, sample);
  if (!earlier.header || !SameTitles(layout, earlier)) {
    layout.header = LooksLikeHeader(rows);
    TakeTitles(layout, sample);
    if (TitlesDeny(layout)) return std::nullopt;
    return layout;
  }
  std::vector<ForeignColumn> left = earlier.columns;
  for (ForeignColumn& column : layout.columns) {
    const auto same = std::find_if(left.begin(), left.end(), [&column](const ForeignColumn& other) {
      return other.title == column.title;
    });
    column = *same;
    left.erase(same);
  }
  return layout;
}

}  // namespace Formats
