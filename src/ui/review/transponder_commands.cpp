#include "ui/review/transponder_commands.h"

#include "base/file.h"
#include "formats/list_format.h"
#include "formats/scan_table.h"
#include "ui/kit/patience.h"
#include "ui/kit/text.h"
#include "ui/review/transponder_window.h"

#include <QMainWindow>

namespace Ui {
namespace {

// What a file has of transponders; nothing where it is no such list. A scan table says where it is in its name alone.
std::optional<Formats::TransponderList> TranspondersIn(std::string_view bytes, const std::string& fileName) {
  const Formats::ListText text(bytes);
  const Formats::ListFormat* format = Formats::FormatOf(text.View());
  if (format == nullptr || format->Transponders == nullptr) return std::nullopt;
  Formats::TransponderList list = format->Transponders(text.View());
  const auto position = Formats::PositionInFileName(fileName);
  for (Formats::ListedTransponder& transponder : list.transponders) {
    if (!transponder.position) transponder.position = position;
  }
  return list;
}

}  // namespace

void TransponderCommands::Connect(Actions& actions) {
  actions.Connect("ControllaTransponder", [this] { ControllaTransponder(); });
}

void TransponderCommands::ControllaTransponder() {
  const std::string path =
      session_.AskOpen("Selezionare l'elenco di transponder", "Tutti i file (*.*)|*.*|", FolderKind::Foreign);
  if (path.empty()) return;
  session_.RememberFolder(FolderKind::Foreign, path);
  auto bytes = session_.Read(path);
  if (!bytes) return;
  const std::string name = Base::FileName(path);
  const auto read = Patiently(ReadingOf(path), [own = std::move(*bytes), name] {
    return Base::Result(TranspondersIn(Base::AsText(own), name));
  });
  if (!read) return session_.Message(read.error());
  const auto& list = *read;
  if (!list || list->transponders.empty()) {
    session_.dialogs.Message(PathText(name) + " non è un elenco di transponder", {});
    return;
  }
  if (auto* open = OpenWindow<TransponderWindow>(window_)) open->close();
  (new TransponderWindow(session_, PathText(name), *list, window_))->BringUp();
}

}  // namespace Ui
