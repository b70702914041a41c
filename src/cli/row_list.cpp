#include "cli/row_list.h"

#include "base/text.h"
#include "cli/list_file.h"
#include "edit/take_over.h"
#include "formats/foreign_list.h"
#include "formats/foreign_text.h"
#include "formats/list_fields.h"
#include "formats/list_format.h"
#include "formats/list_summary.h"
#include "formats/sdx_import.h"
#include "formats/service_rows.h"
#include "review/compare.h"

#include <algorithm>

namespace Cli {

using Formats::SdxTable;
using Routines::State;

namespace {

constexpr int LastLetter = 'Z' - 'A';

void DropFreeTransponders(State& state) {
  while (state.TransponderCount > 0 && Routines::IsFree(state.Transponder(state.TransponderCount).record))
    --state.TransponderCount;
}

// The letters by how many services a position has.
std::map<int, int> LettersOf(const Formats::ListSummary& summary) {
  std::vector<std::pair<int, int>> positions(summary.positions.begin(), summary.positions.end());
  std::stable_sort(positions.begin(), positions.end(),
                   [](const auto& one, const auto& other) { return one.second > other.second; });
  std::map<int, int> letters;
  for (const auto& [position, services] : positions) {
    if (static_cast<int>(letters.size()) > LastLetter) break;
    letters.emplace(position, static_cast<int>(letters.size()));
  }
  return letters;
}

// Reads a list twice: as it is wanted, and all of it, to compare with.
template <class Options, class Read>
SdxTable WithOthers(const Options& options, const Read& read) {
  SdxTable table = read(options);
  Formats::KeepOthers(table, read(Formats::WithoutFilters(options)));
  return table;
}

class RowReader {
 public:
  RowReader(Work& work, const ListFile& file, const State* mine, AskedSatellites asked)
      : work_(work), file_(file), mine_(mine), asked_(std::move(asked)) {
    options_.data = work.options.data;
    options_.keepHd = work.options.keepHd;
    options_.allCodes = true;
  }

  std::optional<SdxTable> Run() {
    const std::string_view bytes = Base::AsText(file_.bytes);
    if (Formats::LooksLikeSatcodx(bytes)) {
      if (!TakeOneSatellite()) return std::nullopt;
      return WithOthers(static_cast<const Formats::SdxOptions&>(options_),
                        [bytes](const auto& options) { return Formats::ReadSatcodx(bytes, options); });
    }
    const Formats::ListText text(bytes);
    const Formats::ListFormat* format = Formats::FormatOf(text.View());
    if (format != nullptr && format->Services != nullptr) return Services(*format, text.View());
    if (format == nullptr) return Foreign(bytes);
    return Refused(std::string(format->title) + ": non contiene i dati dei canali");
  }

 private:
  std::optional<SdxTable> Refused(const std::string& why, Exit how = Exit::Unreadable) {
    work_.console.Fail(how, file_.path, why);
    return std::nullopt;
  }

  // Of a list that names no positions. Where there is nothing to compare with any will do.
  bool TakeOneSatellite() {
    if (asked_.all < 0 && mine_ == nullptr) asked_.all = 0;
    if (asked_.all >= 0) {
      options_.satellite = asked_.all;
      return true;
    }
    return Refused("il file non dice il satellite: serve --sat con la sua lettera (--sat A)", Exit::Usage)
        .has_value();
  }

  std::optional<SdxTable> Services(const Formats::ListFormat& format, std::string_view text) {
    const Formats::ListSummary summary = Formats::SummaryOf(*format.Services(text));
    if (summary.positions.empty()) {
      if (!TakeOneSatellite()) return std::nullopt;
    } else if (!asked_.positions.empty()) {
      options_.satellites = asked_.positions;
    } else {
      options_.satellites =
          mine_ == nullptr ? Lettered(summary) : Formats::ProposedSatellites(*mine_, summary.transponders);
      if (options_.satellites.empty())
        return Refused("nessuna posizione è di un satellite della lista: serve --sat A=" +
                           Formats::PositionText(summary.positions.begin()->first),
                       Exit::Usage);
    }
    return WithOthers(options_, [&](const Formats::ListOptions& options) {
      return Formats::RowsOf(*format.Services(text), options);
    });
  }

  std::map<int, int> Lettered(const Formats::ListSummary& summary) {
    std::map<int, int> letters = LettersOf(summary);
    std::string told;
    for (const auto& [position, satellite] : letters) {
      told += (told.empty() ? "" : ", ") + Formats::PositionText(position) + " è " +
              Routines::SatelliteLabel(static_cast<std::uint32_t>(satellite));
    }
    work_.console.Note(file_.path, told);
    return letters;
  }

  // A list of a program that is not known, by what its columns seem to be.
  std::optional<SdxTable> Foreign(std::string_view bytes) {
    const auto text = Formats::DecodeForeign(bytes, ShownName(file_.path));
    if (!text) return Refused(text.error().message);
    const auto layout = Formats::GuessForeign(Formats::SampleOf(text->text));
    if (!layout.Has(Formats::Meaning::Name) || !layout.Has(Formats::Meaning::Frequency))
      return Refused("non è un'immagine né una lista di canali");
    if (!TakeOneSatellite()) return std::nullopt;
    return Formats::ReadForeign(text->text, layout, options_.satellite);
  }

  Work& work_;
  const ListFile& file_;
  const State* mine_;
  AskedSatellites asked_;
  Formats::ListOptions options_;
};

}  // namespace

std::unique_ptr<State> EmptyList(const Work& work, int capacity) {
  auto state = std::make_unique<State>();
  state->Loaded = true;
  state->SymbolRateTable = work.rates;
  state->ChannelCount = state->MaxChannels = capacity;
  state->TransponderCount = Routines::LastTransponderSlot;
  state->FavouritesBlock.assign(Routines::NormalFavouritesSize, 0);
  return state;
}

std::unique_ptr<State> Filled(Work& work, std::unique_ptr<State> list, const Routines::OtherList& other) {
  const Review::Comparison all = Review::Compare(*list, other);
  const auto report = Edit::TakeOver(*list, other, all, all.differences, work.bouquets);
  Edit::TakeOrder(*list, other, Review::Compare(*list, other));
  if (report.noRoom + report.noTransponder > 0)
    work.console.Miss(Edit::TextOf(report, Edit::NewPlace::Behind));
  DropFreeTransponders(*list);
  return list;
}

std::unique_ptr<State> Filled(Work& work, std::unique_ptr<State> list, const SdxTable& table) {
  Formats::SdxImport import(*list, work.bouquets);
  int slot = 0;
  int without = 0;
  for (const Formats::SdxRow& row : table.rows) {
    if (++slot > list->ChannelCount || !Formats::InBand(row)) {
      ++without;
    } else {
      import.Put(row, slot, slot);
    }
  }
  if (!import.Message().empty()) work.console.Miss(import.Message());
  if (without > 0) work.console.Miss(Base::Counted(without, "riga senza posto", "righe senza posto"));
  DropFreeTransponders(*list);
  return list;
}

std::optional<AskedSatellites> SatellitesAsked(Work& work) {
  AskedSatellites asked;
  for (const std::string& text : work.options.satellites) {
    const int letter = text.front() - 'A';
    if (text.size() == 1) {
      asked.all = letter;
      continue;
    }
    // With the S of a satellite's source in front of it, or without.
    std::string_view source = std::string_view(text).substr(2);
    if (source.starts_with('S')) source.remove_prefix(1);
    const auto position = Formats::PositionIn(source);
    if (!position) {
      work.console.Fail(Exit::Usage, "--sat " + text + ": non è una posizione, come S13.0E");
      return std::nullopt;
    }
    asked.positions[*position] = letter;
  }
  return asked;
}

std::optional<SdxTable> RowsOf(Work& work, const ListFile& file, const State* mine) {
  auto asked = SatellitesAsked(work);
  if (!asked) return std::nullopt;
  return RowReader(work, file, mine, std::move(*asked)).Run();
}

}  // namespace Cli
