// Reading a SatcoDX list under any options, and carrying its rows into a channel list.
#include "formats/satcodx.h"

#include "fuzz_support.h"

#include <algorithm>
#include <functional>

using namespace Fuzz;
using namespace Formats;

namespace {

// Eight bits of choices and a satellite; what to filter is what the list itself says.
SdxOptions OptionsOf(std::size_t choice, std::size_t satellite, std::string_view text) {
  SdxOptions options;
  options.satellite = static_cast<int>(satellite % 26);
  options.television = (choice & 1U) == 0;
  options.radio = (choice & 2U) == 0;
  options.data = (choice & 4U) == 0;
  options.allCodes = (choice & 8U) == 0;
  options.codes = EncryptionCodesOf(text);
  options.codes.resize(std::min<std::size_t>(options.codes.size(), choice >> 4U & 3U));
  if ((choice & 64U) != 0) options.filtered = FilteredServices(text);
  if ((choice & 128U) == 0) return options;
  for (const auto& [tid, sid] : ServicesOf(text.substr(0, text.size() / 2)))
    options.known.insert({options.satellite, tid, sid});
  return options;
}

void CheckRow(const SdxRow& row, const SdxOptions& options) {
  Require((row.type == 'T' && options.television) || (row.type == 'R' && options.radio) ||
              (row.type == 'S' && options.data),
          "only the types that are wanted");
  Require(row.type != 'R' || row.vpid == "65535", "a radio row has no video");
  Require(row.satellite == options.satellite, "the satellite that was chosen");
}

void CheckTable(const SdxTable& table, const SdxOptions& options) {
  CheckRows(table);
  Require(table.satelliteName.size() <= 17, "the satellite's name");
  Require(static_cast<int>(table.rows.size()) + table.dropped.Total() + (table.full ? 1 : 0) == table.lines,
          "every line is taken or dropped for a reason");
  for (const SdxRow& row : table.rows) CheckRow(row, options);
}

void CheckDownload(std::string_view reply) {
  const std::string lines = DownloadedLines(reply);
  Require(lines.empty() || lines.ends_with("\r\n"), "downloaded lines are whole");
  Require(lines.size() <= 2 * reply.size(), "a download grows by its line ends alone");
  static_cast<void>(LooksLikeSatcodx(reply));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::size_t choice = input.Byte();
  const std::size_t satellite = input.Byte();
  const int transponders = static_cast<int>(input.Byte() % (Routines::LastTransponderSlot + 1));
  const std::string_view text = input.Text();
  CheckDownload(text);
  const SdxOptions options = OptionsOf(choice, satellite, text);
  const SdxTable table = ReadSatcodx(text, options);
  CheckTable(table, options);
  CheckRowImport(table, transponders);
  SdxTable kept = table;
  KeepOthers(kept, ReadSatcodx(text, WithoutFilters(options)));
  Require(kept.rows == table.rows, "what is known besides leaves the rows alone");
  Require(SummaryOf(text).lines + 1 >= table.lines, "every line that holds anything counts");
  // One dense list in a hundred or so again, as often as it takes to fill the table.
  if (table.rows.size() < 8 || std::hash<std::string_view>{}(text) % 100 != 0) return 0;
  std::string full;
  for (std::size_t rows = 0; rows <= MostSdxRows; rows += table.rows.size()) full.append(text).append("\n");
  CheckTable(ReadSatcodx(full, options), options);
  return 0;
}
