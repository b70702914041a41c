#include "ui/review/compare_commands.h"

#include "base/file.h"
#include "formats/csv_reader.h"
#include "formats/foreign_text.h"
#include "formats/order_list.h"
#include "model/favourites.h"
#include "ui/kit/text.h"
#include "ui/review/compare_window.h"
#include "ui/session/lines_window.h"
#include "ui/session/order_file.h"

#include <QMainWindow>

namespace Ui {

using Routines::State;

void CompareCommands::Connect(Actions& actions) {
  actions.Connect("Confronta", [this] { Confronta(); });
  actions.Connect("ConfrontaDisco", [this] { ConfrontaDisco(); });
  actions.Connect("ConfrontaSDX", [this] { ConfrontaSDX(); });
  actions.Connect("DaCSV", [this] { DaCSV(); });
  actions.Connect("OrdinaCome", [this] { OrdinaCome(); });
  actions.Connect("SalvaOrdine", [this] { SalvaOrdine(); });
}

void CompareCommands::Confronta() {
  const std::string path =
      session_.AskOpen("Selezionare la flash da confrontare", FlashFilters, FolderKind::Input);
  if (path.empty()) return;
  const auto rates = session_.LoadSymbolRates();
  if (!rates) return;
  OtherSide other(OtherSide::Kind::Another, path, rates->table);
  if (const auto read = other.Read(session_); !read) {
    session_.Message(read.error());
    return;
  }
  session_.RememberFolder(FolderKind::Input, path);
  Compare(std::move(other));
}

void CompareCommands::ConfrontaDisco() {
  const std::string path = OtherSide::PathOnDisk(session_.document.Tables());
  if (path.empty()) {
    session_.dialogs.Message("La lista non viene da una flash e non è ancora stata salvata", {});
    return;
  }
  OtherSide other(OtherSide::Kind::OnDisk, path);
  if (const auto read = other.Read(session_); !read) {
    session_.Message(read.error());
    return;
  }
  Compare(std::move(other));
}

void CompareCommands::ConfrontaSDX() {
  if (session_.sdx.rows.empty() && session_.sdx.others.empty()) {
    session_.dialogs.Message("Canali SDX non caricati", {});
  } else if (session_.sdx.lacking.Has(Routines::SdxField::Sid)) {
    session_.dialogs.Message("La lista a destra non ha i SID: i suoi canali non si riconoscono", {});
  } else {
    Compare(OtherSide(OtherSide::Kind::Rows));
  }
}

void CompareCommands::DaCSV() {
  const std::string path = session_.AskOpen(
      "Selezionare il file CSV", "File CSV(*.csv)|*.csv|Tutti i file (*.*)|*.*|", FolderKind::Input);
  if (path.empty()) return;
  const auto bytes = session_.Read(path);
  if (!bytes) return;
  const std::string file = Base::FileName(path);
  const auto text = Formats::DecodeForeign(Base::AsText(*bytes), file);
  if (!text) return session_.Message(text.error());
  auto read = Formats::ReadChannelsCsv(text->text, session_.document.Tables());
  if (!read) return session_.Message(read.error());
  Compare(OtherSide(std::move(read->list), PathText(file)));
  if (read->faults.empty()) return;
  QString lines;
  for (const std::string& fault : read->faults) lines += Text(fault) + "\n";
  (new LinesWindow("ElencoRigheNonLette", "Righe del CSV lasciate fuori", lines, session_, &window_))
      ->BringUp();
  session_.status.ShowResult(PathText(file) + ": " +
                             Counted(read->faults.size(), "riga lasciata fuori", "righe lasciate fuori"));
}

void CompareCommands::OrdinaCome() {
  const State& state = session_.document.Tables();
  QStringList choices = {"Un elenco da un file…"};
  std::vector<std::size_t> lists;
  for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
    const auto entries = Routines::OrderOfFavourites(state, list).entries.size();
    if (entries == 0) continue;
    lists.push_back(list);
    choices += QString("Preferiti: %1 (%2)").arg(Title(list), Counted(entries, "canale", "canali"));
  }
  if (lists.empty()) return OrderByFile();
  const auto chosen = session_.dialogs.Choose("Ordinare i canali come", choices, 0);
  if (!chosen) return;
  if (*chosen == 0) return OrderByFile();
  const std::size_t list = lists[static_cast<std::size_t>(*chosen) - 1];
  Compare(OtherSide(Routines::OrderOfFavourites(state, list), Title(list)));
}

QString CompareCommands::Title(std::size_t list) const {
  return Text(Routines::FavouritesTitle(session_.document.Tables().FavouritesBlock, list));
}

void CompareCommands::OrderByFile() {
  auto file = AskOrder(session_);
  if (!file) return;
  const QString unreadable = UnreadableIn(*file);
  Compare(OtherSide(std::move(file->order), file->name));
  if (!unreadable.isEmpty()) session_.status.ShowResult(unreadable);
}

void CompareCommands::SalvaOrdine() {
  const std::string path = session_.AskSave("Salvare l'ordine in", "Files di testo(*.txt)|*.txt",
                                            FolderKind::Foreign, "Ordine non salvato");
  if (path.empty()) return;
  const Routines::Order order = Routines::OrderOf(session_.document.Tables());
  const std::string text = Formats::WriteOrderText(order);
  const auto written = ReplaceFilePatiently(path, Base::AsBytes(text));
  session_.status.ShowResult(
      written ? QString("Salvato l'ordine di %1 in %2")
                    .arg(Counted(order.entries.size(), "canale", "canali"), PathText(Base::FileName(path)))
              : Text(written.error().message));
}

void CompareCommands::Compare(OtherSide other) {
  if (auto* open = OpenWindow<CompareWindow>(window_)) open->close();
  if (other.Compare(session_).Nothing()) {
    session_.dialogs.Message("Nessuna differenza", {}, Tone::Information);
    return;
  }
  (new CompareWindow(session_, std::move(other), window_))->BringUp();
}

}  // namespace Ui
