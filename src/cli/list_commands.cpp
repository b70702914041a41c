// Lists of other kinds: sdx, convert.
#include "base/code_page.h"
#include "base/file.h"
#include "base/names.h"
#include "base/text.h"
#include "cli/json.h"
#include "cli/list_file.h"
#include "cli/list_text.h"
#include "cli/output_file.h"
#include "formats/flash_rows.h"
#include "formats/fls_format.h"
#include "formats/sdx_table.h"

namespace Cli {

using Formats::SdxRow;
using Formats::SdxTable;

namespace {

std::map<std::string, int> Counted(const SdxTable& table, std::string (*what)(const SdxRow&)) {
  std::map<std::string, int> counts;
  for (const SdxRow& row : table.rows) ++counts[what(row)];
  return counts;
}

std::string KindOf(const SdxRow& row) { return std::string(Routines::RowKindText(row.Kind())); }
std::string CodingOf(const SdxRow& row) { return Base::HexByte(row.codifica); }
std::string SatelliteOf(const SdxRow& row) {
  return Routines::SatelliteLabel(static_cast<std::uint32_t>(row.satellite));
}

void PrintTable(Work& work, const SdxTable& table) {
  const struct {
    const char* title;
    const char* key;
    std::map<std::string, int> counts;
  } groups[] = {{"Tipo", "kinds", Counted(table, KindOf)},
                {"Satellite", "satellites", Counted(table, SatelliteOf)},
                {"Codifica", "codings", Counted(table, CodingOf)}};
  if (work.options.json) {
    Json json = {
        {"file", work.options.first}, {"satellite", Base::ToUtf8(Base::TrimmedRight(table.satelliteName))},
        {"lines", table.lines},       {"taken", table.rows.size()},
        {"full", table.full},         {"dropped", Json::object()}};
    for (const auto& [reason, count] : table.dropped.Counts()) json["dropped"][std::string(reason)] = count;
    for (const auto& group : groups) json[group.key] = group.counts;
    return Print(work.console, json);
  }
  std::string& out = work.console.out;
  out += ShownName(work.options.first) + ": lette " + std::to_string(table.lines) + " righe, prese " +
         std::to_string(table.rows.size()) + "\n";
  if (table.full) out += "Superato il numero di canali SDX gestibili 4000\n";
  for (const auto& group : groups) {
    out.append(group.title).append("\n");
    for (const auto& [text, count] : group.counts) out += "  " + text + ": " + std::to_string(count) + "\n";
  }
  if (table.dropped.Total() > 0) out += "Scartate\n";
  for (const auto& [reason, count] : table.dropped.Counts())
    out.append("  ").append(reason).append(": ").append(std::to_string(count)).append("\n");
}

// The format that a name's ending says, or that is asked for; empty where there is none.
std::string TargetOf(const Options& options) {
  constexpr std::pair<std::string_view, const char*> Endings[] = {
      {".txt", "text"}, {".fls", "fls"}, {".csv", "csv"}, {".conf", "vdr"}};
  if (!options.target.empty()) return options.target;
  for (const auto& [ending, target] : Endings)
    if (Base::LowerCase(options.second).ends_with(ending)) return target;
  return {};
}

std::optional<Base::Bytes> BytesAs(Work& work, const Routines::State& state, const std::string& target) {
  if (target == "fls") return Formats::WriteFls(state);
  const auto slots = FilteredSlots(work, state);
  if (!slots) return std::nullopt;
  const ListForm form = target == "csv" ? ListForm::Csv : target == "vdr" ? ListForm::Vdr : ListForm::Text;
  const auto text = ListText(work, state, *slots, form);
  if (!text) return std::nullopt;
  const Base::ByteView bytes = Base::AsBytes(*text);
  return Base::Bytes(bytes.begin(), bytes.end());
}

}  // namespace

void Sdx(Work& work) {
  const auto file = ReadList(work, work.options.first);
  if (!file) return;
  if (file->kind == FileKind::Flash)
    return PrintTable(work, Formats::ReadFlashRows(file->bytes, work.rates, work.bouquets));
  if (file->kind != FileKind::Rows) {
    work.console.Fail(Exit::Unreadable, file->path, "è una lista di Trovalis: la legge convert");
    return;
  }
  const auto table = RowsOf(work, *file, nullptr);
  if (table) PrintTable(work, *table);
}

void Convert(Work& work) {
  const std::string target = TargetOf(work.options);
  if (target.empty()) {
    work.console.Fail(Exit::Usage, work.options.second,
                      "il nome non dice il formato (.txt, .fls, .csv, .conf): serve --to");
    return;
  }
  const auto file = ReadList(work, work.options.first);
  const auto state = file ? StateOf(work, *file) : nullptr;
  if (!state) return;
  const auto bytes = BytesAs(work, *state, target);
  if (!bytes || !WriteFile(work, work.options.second, *bytes) || work.options.second == "-") return;
  const int channels = Routines::UsedChannels(*state);
  if (work.options.json)
    return Print(work.console, {{"output", work.options.second},
                                {"format", target},
                                {"written", !work.options.dryRun},
                                {"channels", channels}});
  work.console.out = (work.options.dryRun ? "Prova, non scritto " : "Scritto ") + work.options.second + ": " +
                     Base::Counted(channels, "canale", "canali") + "\n";
}

}  // namespace Cli
