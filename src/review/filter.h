// The words of a filter field and the rows that they find, in the channel list or in any table that has some of its
// fields.
//   rai hd          both in the name, in any order, whatever their case and accents
//   "rai 1"         name text as it stands, whatever it looks like
//   11766           in the name, or the SID, the transponder or the frequency
//   sat:A f:11766 tp:12 sid:300 cod:04 bq:sky pref:3
//   tv radio servizi inattivi doppi
//   -radio          not those
// Words of one key are alternatives (sat:A sat:B, tv radio), all others have to fit together.
#pragma once

#include "model/routines.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Review {

// A row as a filter sees it. What a table does not have stays as it is here, and no word finds it.
struct FilterRow {
  std::string_view name;  // bytes of the code page
  Routines::ChannelKind kind = Routines::ChannelKind::Empty;
  int sid = -1;
  int transponder = -1;
  int megahertz = 0;
  int satellite = -1;  // 0 is satellite A
  int coding = -1;     // the whole byte
  std::string_view bouquetName;
  std::string_view bouquetCode;  // two digits
  unsigned favourites = 0;       // bit 0 for the first list
  bool inactive = false;
  bool doubled = false;
};

class Filter {
 public:
  Filter() = default;
  // `typed` is UTF-8.
  explicit Filter(std::string_view typed);

  // Whether no word asks for anything, so that nothing is found.
  [[nodiscard]] bool Empty() const { return words_.empty(); }
  [[nodiscard]] bool Matches(const FilterRow& row) const;
  // Whether rows have to know if they are doubled, which takes more than a look at each.
  [[nodiscard]] bool AsksForDoubles() const;

  // Words that ask for nothing yet, each with what it waits for; UTF-8.
  [[nodiscard]] const std::vector<std::string>& Unfinished() const { return unfinished_; }

 private:
  struct Word {
    std::string_view key;  // words of the same one are alternatives; empty for one that stands alone
    bool excluded = false;
    std::function<bool(const FilterRow&, std::string_view foldedName)> finds;
  };
  friend class FilterReader;

  std::vector<Word> words_;
  std::vector<std::string> unfinished_;
};

// The channels that a filter finds, in rising order; none where it is empty.
std::vector<int> MatchingSlots(const Routines::State& state, const Filter& filter);

}  // namespace Review
