#include "ui/sources/foreign_commands.h"

#include "base/file.h"
#include "formats/flash_rows.h"
#include "formats/foreign_list.h"
#include "ui/kit/patience.h"
#include "ui/kit/text.h"
#include "ui/sources/foreign_dialog.h"
#include "ui/sources/foreign_settings.h"

namespace Ui {

void ForeignCommands::Connect(Actions& actions) {
  actions.Connect("CaricaAggiuntiva", [this] { CaricaAggiuntiva(); });
  for (const CommandName kind : {CommandName("Digiquest"), CommandName("Pelko")})
    actions.Connect(kind, [this, kind] { Import(kind->name, kind->caption); });
}

void ForeignCommands::CaricaAggiuntiva() {
  const std::string path =
      session_.AskOpen("Selezionare la flash aggiuntiva", FlashFilters, FolderKind::Input);
  if (path.empty()) return;
  const auto image = ReadFlashPatiently(path, "Errore FLASH di Input");
  if (!image) return session_.Message(image.error());
  const auto rates = session_.LoadSymbolRates();
  if (!rates) return;
  Formats::SdxTable table = Formats::ReadFlashRows(*image, rates->table, session_.bouquets.tables);
  const QString file = PathText(Base::FileName(path));
  QString result = QString(table.rows.size() == 1 ? "%1: letto %2" : "%1: letti %2")
                       .arg(file, Counted(table.rows.size(), "canale", "canali"));
  if (const int without = table.dropped.Count(Formats::Drop::NoTransponder); without > 0)
    result += "; " + Counted(without, "tralasciato", "tralasciati") + " senza transponder";
  sdx_.Show(std::move(table), file);
  session_.status.ShowResult(result);
}

void ForeignCommands::Import(const QString& kind, const QString& caption) {
  const std::string path = session_.AskOpen(
      "Selezionare il file da importare",
      "File di testo(*.txt *.csv *.ini *.dat)|*.txt *.csv *.ini *.dat|Tutti i file (*.*)|*.*|",
      FolderKind::Foreign);
  if (path.empty()) return;
  session_.RememberFolder(FolderKind::Foreign, path);
  const auto bytes = session_.Read(path);
  if (!bytes) return;
  const std::string name = Base::FileName(path);
  const auto text = Formats::DecodeForeign(Base::AsText(*bytes), name);
  if (!text) {
    session_.Message(text.error());
    return;
  }
  const QString ini = session_.SettingsFile();
  ForeignDialog dialog(caption, PathText(name), *text, RememberedLayout(ini, kind),
                       session_.bouquets.tables.satellites, session_.dialogs, &window_);
  if (dialog.exec() != QDialog::Accepted) return;
  RememberLayout(ini, kind, dialog.Layout());
  auto rows = Patiently(ReadingOf(path),
                        [own = text->text, layout = dialog.Layout(), satellite = dialog.Satellite()] {
                          return Base::Result(Formats::ReadForeign(own, layout, satellite));
                        });
  if (!rows) return session_.Message(rows.error());
  sdx_.Show(std::move(*rows), PathText(name));
  sdx_.TellTaken(PathText(name));
}

}  // namespace Ui
