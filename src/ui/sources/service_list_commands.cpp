#include "ui/sources/service_list_commands.h"

#include "base/file.h"
#include "formats/list_format.h"
#include "formats/scan_table.h"
#include "formats/service_rows.h"
#include "ui/kit/patience.h"
#include "ui/kit/text.h"
#include "ui/sources/service_list_dialog.h"

namespace Ui {
namespace {

// Why a list without services gives no rows, and which command takes it.
QString WhyNone(const QString& file, const Formats::ListFormat* format) {
  if (format == nullptr) return file + " non è una lista VDR, DVBv5, zap o Enigma2 (lamedb)";
  const char* holds =
      format->Transponders != nullptr
          ? "transponder, nessun dato dei canali: li usa Controlla i transponder con un elenco…"
          : "l'ordine dei canali, nessun dato dei canali: lo usa Ordina come un elenco…";
  return QString("%1 (%2) contiene solo %3").arg(file, Text(format->title), holds);
}

struct ReadList {
  explicit ReadList(Base::Bytes read) : bytes(std::move(read)) {}

  Base::Bytes bytes;
  Formats::ListText text{Base::AsText(bytes)};
};

// The format, null for none, and what a list of it has if that is services.
std::pair<const Formats::ListFormat*, Formats::ListSummary> SummaryIn(const ReadList& list) {
  const std::string_view text = list.text.View();
  const Formats::ListFormat* format = Formats::FormatOf(text);
  if (format == nullptr || format->Services == nullptr) return {format, {}};
  return {format, Formats::SummaryOf(*format->Services(text))};
}

}  // namespace

void ServiceListCommands::Connect(Actions& actions) {
  actions.Connect("ImportaElenco", [this] { Open(); });
}

bool ServiceListCommands::Knows(const std::string& path) {
  const auto bytes = Patiently(ReadingOf(path), [path] { return Base::ReadFile(path, LargestList); });
  return bytes && Formats::FormatOf(Formats::ListText(Base::AsText(*bytes)).View()) != nullptr;
}

void ServiceListCommands::Open(std::string path) {
  if (path.empty()) {
    path = session_.AskOpen("Selezionare la lista da importare",
                            "Liste di canali(*.conf *.txt lamedb*)|*.conf *.txt lamedb*|Tutti i file "
                            "(*.*)|*.*|",
                            FolderKind::Foreign);
  }
  if (path.empty()) return;
  session_.RememberFolder(FolderKind::Foreign, path);
  if (auto bytes = session_.Read(path)) Import(path, std::move(*bytes));
}

void ServiceListCommands::Import(const std::string& path, Base::Bytes bytes) {
  const QString file = PathText(Base::FileName(path));
  const auto list = std::make_shared<const ReadList>(std::move(bytes));
  auto summary = Patiently(ReadingOf(path), [list] { return Base::Result(SummaryIn(*list)); });
  if (!summary) return session_.Message(summary.error());
  const auto& [format, found] = *summary;
  if (format == nullptr || format->Services == nullptr) {
    session_.dialogs.Message(WhyNone(file, format), {});
    return;
  }
  ServiceListDialog dialog({file, *format, list->text.View()}, found, session_, &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  auto table = Patiently(ReadingOf(path), [list, services = format->Services, options = dialog.Chosen()] {
    const std::string_view text = list->text.View();
    Formats::SdxTable rows = Formats::RowsOf(*services(text), options);
    Formats::KeepOthers(rows, Formats::RowsOf(*services(text), Formats::WithoutFilters(options)));
    return Base::Result(std::move(rows));
  });
  if (!table) return session_.Message(table.error());
  sdx_.Show(std::move(*table), file);
  sdx_.TellTaken(file);
}

}  // namespace Ui
