#include "ui/sources/service_list_commands.h"

#include "base/file.h"
#include "formats/list_format.h"
#include "formats/scan_table.h"
#include "formats/service_rows.h"
#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"
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

}  // namespace

void ServiceListCommands::Connect(Actions& actions) {
  actions.Connect("ImportaElenco", [this] { Open(); });
}

bool ServiceListCommands::Knows(const std::string& path) {
  const auto bytes = Waiting([&] { return Base::ReadFile(path, LargestList); });
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
  if (const auto bytes = session_.Read(path)) Import(path, Base::AsText(*bytes));
}

void ServiceListCommands::Import(const std::string& path, std::string_view bytes) {
  const QString file = PathText(Base::FileName(path));
  const Formats::ListText text(bytes);
  const Formats::ListFormat* format = Formats::FormatOf(text.View());
  if (format == nullptr || format->Services == nullptr) {
    session_.dialogs.Message(WhyNone(file, format), {});
    return;
  }
  auto summary = Waiting([&] { return Formats::SummaryOf(*format->Services(text.View())); });
  ServiceListDialog dialog({file, *format, text.View()}, std::move(summary), session_, &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  const Formats::ListOptions options = dialog.Chosen();
  Formats::SdxTable table = Formats::RowsOf(*format->Services(text.View()), options);
  Formats::KeepOthers(table,
                      Formats::RowsOf(*format->Services(text.View()), Formats::WithoutFilters(options)));
  sdx_.Show(std::move(table), file);
  sdx_.TellTaken(file);
}

}  // namespace Ui
