#include "ui/files/file_opening.h"

#include "base/file.h"
#include "ui/kit/text.h"

#include <QFileInfo>
#include <QTimer>

namespace Ui {

FileOpening::FileOpening(Session& session, FileCommands& files, ExchangeCommands& exchange, SdxCommands& sdx,
                         ServiceListCommands& lists, RecentFiles& recent, Actions& actions)
    : session_(session),
      files_(files),
      exchange_(exchange),
      sdx_(sdx),
      lists_(lists),
      recent_(recent),
      actions_(actions) {
  connect(&recent_, &RecentFiles::Chosen, this, &FileOpening::OpenRecent);
  files_.onOpened = [this](const std::string& path) {
    recent_.Add(PathText(path), session_.settings.Chosen());
  };
  files_.onWritten = [this] { recent_.KeepUsed(OpenedPath(), session_.settings.Chosen()); };
  connect(&session_.settings, &SettingsPanel::Clicked, this, &FileOpening::CompleteUse);
}

void FileOpening::OpenFlash(const std::string& path) {
  if (actions_.Allows("ApriFlashInput")) files_.ApriFlashInput(path);
}

void FileOpening::OpenWhenChosen(const std::string& path) {
  const auto open = [this, path] {
    if (session_.settings.Chosen().quantiCanali) files_.ApriFlashInput(path);
    return session_.settings.Chosen().quantiCanali.has_value();
  };
  if (open()) return;
  session_.status.ShowResult("Scegliere in \"Canali da copiare\" quanti canali ha il ricevitore: " +
                             PathText(Base::FileName(path)) + " si apre subito dopo");
  auto* waiting = new QObject(this);
  connect(&session_.settings, &SettingsPanel::Clicked, waiting, [open, waiting] {
    if (!open()) return;
    waiting->deleteLater();
  });
}

QString FileOpening::OpenedPath() const { return PathText(session_.document.Tables().InputFlash); }

// What is chosen for the first time belongs to the list that is there; another choice may be for the next one.
void FileOpening::CompleteUse() {
  Routines::Settings used = recent_.UsedWith(OpenedPath());
  if (used.Complete()) return;
  const Routines::Settings chosen = session_.settings.Chosen();
  if (!used.quantiCanali) used.quantiCanali = chosen.quantiCanali;
  if (!used.flashScrittura) used.flashScrittura = chosen.flashScrittura;
  if (!used.srDef) used.srDef = chosen.srDef;
  recent_.KeepUsed(OpenedPath(), used);
}

void FileOpening::OpenRecent(const QString& path) {
  const Routines::Settings used = recent_.UsedWith(path);
  if ((used.Complete() || session_.settings.Chosen().quantiCanali) && !QFileInfo::exists(path)) {
    session_.dialogs.Message("Flash non trovata: " + path + "\nViene tolta dai file recenti", {});
    recent_.Remove(path);
    return;
  }
  if (!used.Complete()) return OpenFlash(PathBytes(path));
  if (actions_.Offers("ApriFlashInput")) files_.ApriFlashInput(PathBytes(path), used);
}

void FileOpening::Drop(const QMimeData& data) {
  // The drag's source waits for the drop; the questions come after it.
  QTimer::singleShot(0, this, [this, file = FileIn(data)] { Open(file); });
}

// A text may be a list exported earlier or one of today: the latter is known for certain.
void FileOpening::Open(const DroppedFile& file) {
  const std::string path = PathBytes(file.path);
  if (!file.refusal.isEmpty()) {
    session_.status.ShowResult(file.refusal);
  } else if (file.ending == "dat") {
    OpenFlash(path);
  } else if (file.ending == "sdx") {
    if (actions_.Allows("SDX")) sdx_.Open(path);
  } else if (file.ending == "fls") {
    if (actions_.Allows("DaEsportato")) exchange_.DaEsportato(path);
  } else if (ServiceListCommands::Knows(path)) {
    if (actions_.Allows("ImportaElenco")) lists_.Open(path);
  } else if (file.ending == "txt") {
    if (actions_.Allows("DaEsportatoTesto")) exchange_.DaEsportatoTesto(path);
  } else {
    session_.status.ShowResult("Non aperto: " + PathText(Base::FileName(path)) +
                               " non è un file .dat, .sdx, .txt o .fls, né una lista VDR, DVBv5 o Enigma2");
  }
}

}  // namespace Ui
