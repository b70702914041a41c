// SatcoDX lists (*.sdx): a service a line in fixed columns, bytes of the code page. Lines that pass the options become
// rows of the SDX table, which keeps their fields as texts.
#pragma once

#include "base/short_text.h"
#include "model/transponder.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Formats {

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

  friend bool operator==(const SdxRow&, const SdxRow&) = default;
};

// What the user wants of a list.
struct SdxOptions {
  int satellite = 0;  // of all rows
  bool television = true;
  bool radio = true;
  bool data = false;
  bool allCodes = false;
  std::vector<std::string> codes;  // encryption codes, four characters each
  // Services to leave out: by audio PID and service id, and those of the loaded list by transport stream and service id.
  std::set<std::pair<int, int>> filtered;
  std::set<std::pair<int, int>> known;
};

struct SdxTable {
  std::string satelliteName;  // of the file, 17 characters
  std::vector<SdxRow> rows;
  bool full = false;  // more lines were accepted than the table has rows for

  // Lines read, and those dropped by reason.
  int lines = 0;
  int droppedByRate = 0;
  int droppedByType = 0;
  int droppedByFormat = 0;
  int droppedByPid = 0;
  int droppedByCode = 0;
  int droppedByFilter = 0;
};

SdxTable ReadSatcodx(std::string_view text, const SdxOptions& options);

// Each encryption code of a list once, in the order of their first lines; "____" and short lines give none.
std::vector<std::string> EncryptionCodesOf(std::string_view text);

// Transport stream and service id of every line.
std::set<std::pair<int, int>> ServicesOf(std::string_view text);

// The services of the pairs "APID SID" in a filter list, blanks or tabs between the two.
std::set<std::pair<int, int>> FilteredServices(std::string_view text);

// A downloaded reply as lines that end with CR LF: cut at its carriage returns, what follows the last one left out. A
// reply without any is cut at its line feeds.
std::string DownloadedLines(std::string_view reply);

// Whether a reply is a list: its first 7 characters, trimmed, are "SATCODX".
bool LooksLikeSatcodx(std::string_view reply);

}  // namespace Formats
