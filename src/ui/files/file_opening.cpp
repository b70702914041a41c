#include "ui/files/file_opening.h"

#include "base/file.h"
#include "ui/kit/text.h"

#include <QFileInfo>
#include <QTimer>

#include <algorithm>

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

bool FileOpening::OpenFlash(const std::string& path) {
  const bool allowed = actions_.Allows("ApriFlashInput");
  if (allowed) files_.ApriFlashInput(path);
  return allowed;
}

void FileOpening::OpenWhenChosen(const std::string& path) {
  // What is no image is told now, not after the first choice.
  if (const auto looks = Routines::LooksLikeFlash(path, "Errore FLASH di Input"); !looks)
    return session_.Message(looks.error());
  if (session_.settings.Chosen().quantiCanali) return files_.ApriFlashInput(path);
  session_.status.ShowResult("Scegliere in \"Canali da copiare\" quanti canali ha il ricevitore: " +
                             PathText(Base::FileName(path)) + " si apre subito dopo");
  waiting_ = connect(&session_.settings, &SettingsPanel::Clicked, this, [this, path] {
    if (!session_.settings.Chosen().quantiCanali) return;
    disconnect(waiting_);  // before it opens, as opening may tell of options too
    files_.ApriFlashInput(path);
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
  if (!used.Complete()) return void(OpenFlash(PathBytes(path)));
  disconnect(waiting_);  // this one is wanted now
  if (actions_.Offers("ApriFlashInput")) files_.ApriFlashInput(PathBytes(path), used);
}

void FileOpening::Drop(const QMimeData& data) {
  // The drag's source waits for the drop; the questions come after it.
  QTimer::singleShot(0, this, [this, files = FilesIn(data)] {
    if (actions_.Busy()) return;
    if (files.size() == 1) {
      Open(files.front());
    } else {
      OpenAll(files);
    }
  });
}

// Of several files one flash, or another whole list, becomes the list, and one list of rows stands beside it: whatever
// else there is would take the place of one of them.
void FileOpening::OpenAll(std::vector<DroppedFile> files) {
  std::stable_partition(files.begin(), files.end(),
                        [](const DroppedFile& file) { return file.ending == "dat"; });
  QStringList refusals;
  bool list = false;
  bool pane = false;
  for (const DroppedFile& file : files) {
    const Kind kind = KindOf(file);
    if (kind == Kind::None) {
      refusals += Refusal(file);
      continue;
    }
    bool& taken = kind == Kind::Sdx || kind == Kind::Services ? pane : list;
    const QString name = PathText(Base::FileName(PathBytes(file.path)));
    if (taken && !session_.dialogs.YesNo("Si desidera aprire anche " + name + "?")) continue;
    if (!Open(file)) break;
    taken = true;
  }
  if (!refusals.isEmpty()) session_.dialogs.Message(refusals.join('\n'), {});
}

// A text may be a list exported earlier or one of today: the latter is known for certain.
FileOpening::Kind FileOpening::KindOf(const DroppedFile& file) {
  if (!file.refusal.isEmpty()) return Kind::None;
  if (file.ending == "dat") return Kind::Flash;
  if (file.ending == "sdx") return Kind::Sdx;
  if (file.ending == "fls") return Kind::Raw;
  if (ServiceListCommands::Knows(PathBytes(file.path))) return Kind::Services;
  return file.ending == "txt" ? Kind::Exported : Kind::None;
}

QString FileOpening::Refusal(const DroppedFile& file) {
  if (!file.refusal.isEmpty()) return file.refusal;
  return "Non aperto: " + PathText(Base::FileName(PathBytes(file.path))) +
         " non è un file .dat, .sdx, .txt o .fls, né una lista VDR, DVBv5 o Enigma2";
}

bool FileOpening::Open(const DroppedFile& file) {
  const std::string path = PathBytes(file.path);
  const auto allowed = [this](CommandName command, const auto& open) {
    const bool allows = actions_.Allows(command);
    if (allows) open();
    return allows;
  };
  switch (KindOf(file)) {
    case Kind::Flash:
      return OpenFlash(path);
    case Kind::Sdx:
      return allowed("SDX", [&] { sdx_.Open(path); });
    case Kind::Raw:
      return allowed("DaEsportato", [&] { exchange_.DaEsportato(path); });
    case Kind::Services:
      return allowed("ImportaElenco", [&] { lists_.Open(path); });
    case Kind::Exported:
      return allowed("DaEsportatoTesto", [&] { exchange_.DaEsportatoTesto(path); });
    case Kind::None:
      session_.status.ShowResult(Refusal(file));
  }
  return false;
}

}  // namespace Ui
