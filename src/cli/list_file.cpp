#include "cli/list_file.h"

#include "base/code_page.h"
#include "base/file.h"
#include "cli/row_list.h"
#include "formats/csv_reader.h"
#include "formats/fls_format.h"
#include "formats/foreign_text.h"
#include "formats/list_import.h"
#include "formats/sdx_other.h"
#include "formats/text_format.h"
#include "model/flash_file.h"
#include "model/flash_loader.h"

namespace Cli {

using Routines::State;

namespace {

bool IsCsv(const Base::Bytes& bytes) {
  const auto text = Formats::DecodeForeign(Base::AsText(bytes), {});
  return text && Formats::ReadChannelsCsv(text->text, *std::make_unique<State>());
}

FileKind KindOf(const Base::Bytes& bytes) {
  constexpr std::string_view Section = "[CANALI]";
  constexpr std::size_t Record = Routines::ChannelRecord::Size;
  if (bytes.size() == Routines::FlashSize) return FileKind::Flash;
  const std::string text = Base::FromMarkedUtf8(Base::AsText(bytes).substr(0, 2 * Record));
  // The one has lines, the other records.
  if (text.starts_with(Section))
    return text.substr(0, Record).find('\n') == std::string::npos ? FileKind::Fls : FileKind::Text;
  return IsCsv(bytes) ? FileKind::Csv : FileKind::Rows;
}

int CapacityOf(const Work& work) { return work.options.capacity.value_or(Routines::LastChannelSlot); }

std::unique_ptr<State> Imported(Work& work, const ListFile& file) {
  if (!work.NeedsRates()) return nullptr;
  auto state = std::make_unique<State>();
  const auto report = Formats::ImportList(*state, work.rates, [&](State& into) {
    if (file.kind == FileKind::Text) {
      const std::string text = Base::FromMarkedUtf8(Base::AsText(file.bytes));
      return Formats::ReadText(into, text, ShownName(file.path), work.bouquets);
    }
    auto read = Formats::ReadFls(into, file.bytes, work.bouquets);
    if (read.changed) into.ChannelCount = CapacityOf(work);
    return read;
  });
  if (!report.whole) {
    work.console.Fail(Exit::Unreadable, file.path, report.whole.error().message);
    return nullptr;
  }
  if (report.unknownRates > 0 || !report.codings.Text().empty())
    work.console.Note(file.path, Formats::TextOf(report));
  return state;
}

// The rows of an exported list. Those that could not be read are noted, and the command does not end as if all were done.
std::optional<Routines::OtherList> CsvRows(Work& work, const ListFile& file, const State& mine) {
  const auto text = Formats::DecodeForeign(Base::AsText(file.bytes), ShownName(file.path));
  auto read = text ? Formats::ReadChannelsCsv(text->text, mine) : text.error();
  if (!read) {
    work.console.Fail(Exit::Unreadable, file.path, read.error().message);
    return std::nullopt;
  }
  for (const std::string& fault : read->faults) work.console.Note(file.path, fault);
  if (!read->faults.empty()) work.console.exit = Exit::Found;
  return std::move(read->list);
}

// Bytes that have to be an image.
Base::Result<Base::Bytes> ImageOf(Base::Result<Base::Bytes> bytes) {
  if (bytes && bytes->size() != Routines::FlashSize) return Routines::WrongFlashSize(bytes->size(), {});
  return bytes;
}

// What was read; else the reason is told.
std::optional<Base::Bytes> Given(Work& work, const std::string& path, Base::Result<Base::Bytes> read) {
  if (read) return std::move(*read);
  work.console.Fail(Exit::Unreadable, path, read.error().message);
  return std::nullopt;
}

}  // namespace

std::optional<Base::Bytes> ReadBytes(Work& work, const std::string& path) {
  return Given(work, path, path == "-" ? work.console.readInput() : Base::ReadFile(path, LargestInput));
}

std::optional<Base::Bytes> ReadImage(Work& work, const std::string& path) {
  return Given(work, path, path == "-" ? ImageOf(work.console.readInput()) : Routines::ReadFlash(path, {}));
}

std::optional<ListFile> ReadList(Work& work, const std::string& path) {
  auto bytes = ReadBytes(work, path);
  if (!bytes) return std::nullopt;
  const FileKind kind = KindOf(*bytes);
  return ListFile{path, std::move(*bytes), kind};
}

std::unique_ptr<State> Loaded(Work& work, const std::string& path, Base::ByteView image,
                              Routines::LoadReport* report) {
  auto state = std::make_unique<State>();
  const auto loaded = Routines::LoadFlash(*state, image, CapacityOf(work), 0, work.bouquets);
  state->SymbolRateTable = work.rates;
  state->InputFlash = path;
  for (const std::string& message : loaded.messages) work.console.Note(path, message);
  if (loaded.repeats)
    work.console.Note(path, "l'immagine ripete la sua lista: --capacity " +
                                std::to_string(Routines::CapacityOf(image)) + " ne legge una copia sola");
  if (report != nullptr) {
    *report = loaded;
  } else {
    TellPart(work, path, loaded, state->TransponderCount);
  }
  return state;
}

void TellPart(Work& work, const std::string& path, const Routines::LoadReport& report, int transponders) {
  if (IsPart(report)) work.console.exit = Exit::Found;
  if (IsPart(report) || !report.stranded.empty())
    work.console.Note(path, Routines::TextOf(report, transponders, false));
}

std::unique_ptr<State> StateOf(Work& work, const ListFile& file, const State* like,
                               Routines::OtherList* said) {
  switch (file.kind) {
    case FileKind::Flash:
      return Loaded(work, file.path, file.bytes);
    case FileKind::Text:
    case FileKind::Fls:
      return Imported(work, file);
    case FileKind::Csv: {
      auto state = EmptyList(work, CapacityOf(work));
      const auto other = CsvRows(work, file, *state);
      if (other && said != nullptr) *said = *other;
      return other ? Filled(work, std::move(state), *other) : nullptr;
    }
    case FileKind::Rows:
      break;
  }
  const auto rows = RowsOf(work, file, like);
  if (rows && said != nullptr) *said = Formats::OtherListOf(*rows, work.rates);
  return rows ? Filled(work, EmptyList(work, CapacityOf(work)), *rows) : nullptr;
}

std::optional<Routines::OtherList> OtherOf(Work& work, const ListFile& file, const State& mine) {
  if (file.kind == FileKind::Csv) return CsvRows(work, file, mine);
  if (file.kind == FileKind::Rows) {
    const auto rows = RowsOf(work, file, &mine);
    return rows ? std::optional(Formats::OtherListOf(*rows, mine.SymbolRateTable)) : std::nullopt;
  }
  const auto state = StateOf(work, file);
  return state ? std::optional(Routines::OtherListOf(*state)) : std::nullopt;
}

}  // namespace Cli
