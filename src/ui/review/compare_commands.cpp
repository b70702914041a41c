#include "ui/review/compare_commands.h"

#include "ui/review/compare_window.h"

#include <QMainWindow>

namespace Ui {

void CompareCommands::Connect(Actions& actions) {
  actions.Connect("Confronta", [this] { Confronta(); });
  actions.Connect("ConfrontaDisco", [this] { ConfrontaDisco(); });
  actions.Connect("ConfrontaSDX", [this] { ConfrontaSDX(); });
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

void CompareCommands::Compare(OtherSide other) {
  if (auto* open = OpenWindow<CompareWindow>(window_)) open->close();
  if (other.Compare(session_).Nothing()) {
    session_.dialogs.Message("Nessuna differenza", {}, Tone::Information);
    return;
  }
  (new CompareWindow(session_, std::move(other), window_))->BringUp();
}

}  // namespace Ui
