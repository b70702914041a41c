#include "ui/session/session.h"

#include "base/file.h"
#include "base/text.h"
#include "edit/told.h"
#include "ui/kit/name_edit.h"
#include "ui/kit/patience.h"
#include "ui/kit/text.h"

#include <QApplication>

#include <utility>

namespace Ui {

QString ReadingOf(const std::string& path) { return "Lettura di " + PathText(Base::FileName(path)); }

QString WritingOf(const std::string& path) { return "Scrittura di " + PathText(Base::FileName(path)); }

Base::Result<Base::Bytes> ReadFlashPatiently(const std::string& path, const char* title) {
  return Patiently(ReadingOf(path), [path, title] { return Routines::ReadFlash(path, title); });
}

Base::Outcome ReplaceFilePatiently(const std::string& path, Base::ByteView bytes) {
  return Patiently(WritingOf(path),
                   [path, own = Base::Bytes(bytes.begin(), bytes.end())](Base::PointOfNoReturn& point) {
                     return Base::ReplaceFile(path, own, {}, LookAt(point));
                   });
}

void Session::Message(const Base::Error& error) {
  if (IsGivenUp(error)) return status.ShowResult(Text(error.message));
  dialogs.Message(Text(error.message), Text(error.title));
}

QString Session::Losses(const std::vector<Edit::LostFavourite>& lost) const {
  const std::string text = Edit::LostFavouritesText(document.Tables().FavouritesBlock, lost);
  return text.empty() ? QString() : ", " + Text(text);
}

void Session::FinishTyping() {
  view.FinishEditing();
  if (auto* name = qobject_cast<NameEdit*>(QApplication::focusWidget())) Q_EMIT name->editingFinished();
}

Edit::Slots Session::SelectedChannels() {
  Edit::Slots slots = view.ListGrid().Selected();
  if (slots.empty()) dialogs.Message("Nessun canale selezionato", {});
  return slots;
}

void Session::TellChannel(int slot) const {
  const bool empty = document.Tables().Channel(slot).Empty();
  status.ShowResult(QString("Canale %1: %2")
                        .arg(slot)
                        .arg(empty ? QString("posto vuoto") : Text(Edit::NameIn(document.Tables(), slot))));
}

void Session::GoToChannel(int slot) {
  view.GoToRow(View::Channels, slot);
  TellChannel(slot);
}

QString Session::FolderFor(FolderKind kind) const {
  const std::string folder = Support::LoadFolder(programFolder, kind);
  const std::string& opened = document.Tables().InputFlash;
  const bool chosen = !folder.empty() && folder != programFolder;
  const bool beside = !chosen && kind == FolderKind::Output && !opened.empty();
  return FolderText(beside ? Base::FolderOf(opened) : folder);
}

std::string Session::AskOpen(const QString& title, const QString& filters, FolderKind kind) const {
  return PathBytes(dialogs.OpenFile({title, filters, FolderFor(kind)}));
}

std::string Session::AskSave(const QString& title, const QString& filters, FolderKind kind,
                             const char* refusal) const {
  std::string path = PathBytes(dialogs.SaveFile({title, filters, FolderFor(kind)}));
  const char* why = WhyOnlySaved(path);
  if (why == nullptr) return path;
  status.ShowResult(QString("%1: %2").arg(refusal, why));
  return {};
}

std::optional<Base::Bytes> Session::Read(const std::string& path, std::size_t largest) {
  auto bytes = Patiently(ReadingOf(path), [path, largest] { return Base::ReadFile(path, largest); });
  if (bytes) return std::move(*bytes);
  Message(bytes.error());
  return std::nullopt;
}

void Session::RememberFolder(FolderKind kind, const std::string& path) const {
  Support::SaveFolderOf(programFolder, kind, path);
}

QString Session::ChannelLines(const std::vector<int>& slots) const {
  QString lines;
  for (const int slot : slots) {
    const std::string_view name = Base::TrimmedRight(document.Tables().Channel(slot).Name());
    lines += QString("%1 %2\n").arg(slot, 4, 10, QChar('0')).arg(CodePageText(name));
  }
  return lines;
}

const char* Session::WhyOnlySaved(const std::string& path) const {
  if (path.empty()) return nullptr;
  const Routines::State& state = document.Tables();
  const std::string target = Base::ResolvedPath(path);
  if (target == Base::ResolvedPath(state.InputFlash) || target == Base::ResolvedPath(state.OutputFlash))
    return "il file scelto è la flash aperta o quella di output";
  return Routines::LooksLikeFlash(path, {}) ? "il file scelto sembra l'immagine di un ricevitore" : nullptr;
}

std::optional<Support::SymbolRates> Session::LoadSymbolRates(const Routines::Settings& chosen) {
  const auto place = chosen.srDef ? chosen.Place() : Routines::Sr22000::Come2;
  auto rates = Support::CaricaTabelleSR(programFolder, place);
  if (!rates) {
    Message(rates.error());
    endProgram();
    return std::nullopt;
  }
  if (!rates->missing.empty()) {
    if (!srIniMissingTold) dialogs.Message(Text(rates->missing), {});
    srIniMissingTold = true;
    status.ShowResult(Text(rates->missing));
  }
  return *rates;
}

std::optional<Support::SymbolRates> Session::NeedsSymbolRates() {
  const bool told = std::exchange(srIniMissingTold, false);
  auto rates = LoadSymbolRates();
  srIniMissingTold = srIniMissingTold || told;
  if (rates && !rates->missing.empty()) rates.reset();
  return rates;
}

}  // namespace Ui
