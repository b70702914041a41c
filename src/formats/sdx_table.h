// The SDX table: the rows shown beside the channel list, whatever they were read from, from where they are carried into
// it. Rows keep their fields as texts.
#pragma once

#include "base/columns.h"
#include "base/short_text.h"
#include "formats/drop_report.h"
#include "model/row_kind.h"
#include "model/sdx_fields.h"
#include "model/transponder.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Formats {

using Routines::SdxField;
using Routines::SdxFields;

inline constexpr std::size_t MostSdxRows = 4000;

struct SdxRow {
  using Number = Base::ShortText<5>;

  Base::ShortText<20> name;      // of the two places it stands in
  char type = 'T';               // 'T' television, 'R' radio, 'S' data
  int satellite = 0;             // 0 is satellite A
  Base::ShortText<6> frequency;  // 6 characters, MHz
  bool highBand = false;         // 11700 MHz and above
  bool horizontal = false;
  Number symbolRate;       // 5 characters, as the symbol-rate table has them
  Base::ShortText<1> fec;  // a digit
  Number vpid, apid;       // as they stand, "65535" where absent
  Number pcr, sid, nid;
  Number tid;  // five digits
  Number aecm = "65535";
  Number vecm = "65535";
  int codifica = 0;  // the receiver's coding byte
  Base::ShortText<Routines::TransponderRow::BouquetNameSize> bouquet = "Nessuno";
  // Of a channel from a flash: its transponder to the last bit, of which the texts above show the most.
  std::optional<Routines::TransponderRecord> transponder;

  [[nodiscard]] Routines::RowKind Kind() const {
    return type == 'T'   ? Routines::RowKind::Tv
           : type == 'R' ? Routines::RowKind::Radio
                         : Routines::RowKind::Service;
  }

  friend bool operator==(const SdxRow&, const SdxRow&) = default;
};

// The last five digits of a number, zeros in front.
inline SdxRow::Number FiveDigits(int value) {
  std::array<char, 5> digits;
  Base::PutNumber(digits.data(), {1, digits.size()}, static_cast<std::uint32_t>(value));
  return std::string_view(digits.data(), digits.size());
}

struct SdxTable {
  std::string satelliteName;  // of the file, 17 characters
  std::vector<SdxRow> rows;
  // What counts as dropped though the list has it: without PIDs, or not wanted by the options. To compare a list with.
  std::vector<SdxRow> others;
  SdxFields lacking;  // what the source says of no row
  bool full = false;  // more lines were accepted than the table has rows for

  int lines = 0;  // that were read: each is a row, was dropped, or filled the table; of a flash, its channels
  DropReport dropped;
};

}  // namespace Formats
