// SatcoDX lists (*.sdx): a service a line in fixed columns, bytes of the code page. Lines that pass the options become
// rows of the SDX table, which keeps their fields as texts.
#pragma once

#include "formats/listed_service.h"
#include "formats/sdx_table.h"

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Formats {

// What the user wants of a list.
struct SdxOptions {
  int satellite = 0;  // of all rows
  bool television = true;
  bool radio = true;
  bool data = false;
  bool allCodes = false;
  bool allFormats = false;         // also what a receiver of MPEG-2 does not show, and rates below its own
  std::vector<std::string> codes;  // encryption codes, four characters each
  // Services to leave out: by audio PID and service id, and those of the loaded list by satellite, transport stream and
  // service id.
  std::set<std::pair<int, int>> filtered;
  std::set<std::array<int, 3>> known;
  std::size_t most = MostSdxRows;

  // Whether one of the two has the service; an absent audio PID is 0.
  [[nodiscard]] bool LeavesOut(int onSatellite, int tid, int sid, int apid) const;
};

// Leaves nothing out, as far as a list is no larger than any real one.
inline constexpr std::size_t MostKnownRows = 100000;
template <class Options>
Options WithoutFilters(Options options) {
  options.television = options.radio = options.data = options.allCodes = options.allFormats = true;
  options.filtered.clear();
  options.known.clear();
  options.most = MostKnownRows;
  if constexpr (requires { options.keepHd; }) options.keepHd = true;
  return options;
}

// Puts what `whole`, the same list read without filters, has beside the rows of `table` into its others.
void KeepOthers(SdxTable& table, SdxTable whole);

SdxTable ReadSatcodx(std::string_view text, const SdxOptions& options);

// What a list holds, whatever becomes of its lines.
struct SatcodxSummary {
  int lines = 0;
  std::vector<std::pair<std::string, int>>
      satellites;  // by the names in it: how many lines, in the order of their first
  std::vector<ListedTransponder> transponders;  // each once
};
SatcodxSummary SummaryOf(std::string_view text);

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
