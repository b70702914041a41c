#include "ui/review/compare_commands.h"

#include "support/pos_ini.h"
#include "ui/kit/text.h"
#include "ui/review/compare_window.h"

#include <QMainWindow>

namespace Ui {

void CompareCommands::Connect(Actions& actions) {
  actions.Connect("Confronta", [this] { Confronta(); });
  actions.Connect("ConfrontaDisco", [this] { ConfrontaDisco(); });
}

void CompareCommands::Confronta() {
  const std::string folder = Support::RememberedFolder(session_.programFolder, Support::FolderKind::Input);
  const std::string path = PathBytes(
      session_.dialogs.OpenFile({"Selezionare la flash da confrontare", FlashFilters, PathText(folder)}));
  if (path.empty()) return;
  const auto rates = session_.LoadSymbolRates();
  if (!rates) return;
  OtherFlash other(OtherFlash::Kind::Another, path, rates->table);
  if (const auto read = other.Read(session_); !read) {
    session_.Message(read.error());
    return;
  }
  Support::RememberFolderOf(session_.programFolder, Support::FolderKind::Input, path);
  Compare(std::move(other));
}

void CompareCommands::ConfrontaDisco() {
  const std::string path = OtherFlash::PathOnDisk(session_.document.Tables());
  if (path.empty()) {
    session_.dialogs.Message("La lista non viene da una flash e non è ancora stata salvata", {});
    return;
  }
  OtherFlash other(OtherFlash::Kind::OnDisk, path);
  if (const auto read = other.Read(session_); !read) {
    session_.Message(read.error());
    return;
  }
  Compare(std::move(other));
}

void CompareCommands::Compare(OtherFlash other) {
  if (shown_) shown_->close();
  if (other.Compare(session_).Nothing()) {
    session_.dialogs.Message("Nessuna differenza", {}, Tone::Information);
    return;
  }
  shown_ = new CompareWindow(session_, std::move(other), window_);
  shown_->show();
}

}  // namespace Ui
