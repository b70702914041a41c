// How a list of another program is laid out: guessed from its first lines, settled by the user.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Formats {

// Only so many columns of a line count, and only so much of it.
inline constexpr std::size_t MostForeignColumns = 64;
inline constexpr std::size_t LongestForeignLine = 8192;

// Blanks are runs of blanks and tabs. Columns begin at fixed places.
enum class Separator { Tab, Semicolon, Comma, Bar, Blanks, Columns };

enum class Meaning {
  None,
  Name,
  Frequency,
  Polarisation,
  SymbolRate,
  Fec,
  Vpid,
  Apid,
  Pcr,
  Sid,
  Tid,
  Nid,
  Type,
  Coding
};
inline constexpr std::size_t Meanings = 14;

// Whether the column's numbers may be hexadecimal.
constexpr bool HasBase(Meaning meaning) {
  return (meaning >= Meaning::Vpid && meaning <= Meaning::Nid) || meaning == Meaning::Coding;
}

struct ForeignColumn {
  Meaning meaning = Meaning::None;
  bool hexadecimal = false;
  std::string title;  // of the header, empty where there is none

  friend bool operator==(const ForeignColumn&, const ForeignColumn&) = default;
};

struct ForeignLayout {
  Separator separator = Separator::Tab;
  bool quotes = true;   // a field may stand in quotation marks, and two of them are one of its text
  bool header = false;  // the first line names the columns
  std::vector<std::size_t> starts;  // of fixed columns, from 0
  std::vector<ForeignColumn> columns;

  [[nodiscard]] bool Has(Meaning meaning) const;

  friend bool operator==(const ForeignLayout&, const ForeignLayout&) = default;
};

using ForeignSample = std::vector<std::string_view>;

// The first 200 lines of a text that are not blank: guessing looks at no others.
ForeignSample SampleOf(std::string_view text);

// Puts the fields of a line into `fields`, without blanks around them.
void SplitForeign(std::string_view line, const ForeignLayout& layout, std::vector<std::string>& fields);

// The layout that a sample seems to have.
ForeignLayout GuessForeign(const ForeignSample& sample);
// The places where fixed columns seem to begin.
std::vector<std::size_t> GuessStarts(const ForeignSample& sample);
// The header and the columns under the layout's separator; what is no clear case stays without a meaning.
void GuessColumns(ForeignLayout& layout, const ForeignSample& sample);
// The titles of the columns, from the first line where it is the header.
void TakeTitles(ForeignLayout& layout, const ForeignSample& sample);

// A layout chosen for another file, where this one is divided in the same way into as many columns; columns are found by
// their titles where both files have the same ones, else by place. None where titles here name other columns.
std::optional<ForeignLayout> Reapplied(const ForeignLayout& earlier, const ForeignSample& sample);

}  // namespace Formats
