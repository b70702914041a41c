#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"
#include "ui/session/program_folder.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>
#include <cstring>
#include <optional>

namespace {

constexpr const char* Help =
    "Uso: trovalis [FILE]\n"
    "Apre la finestra, con l'immagine FILE.\n\n"
    "  -h, --help   mostra questo aiuto\n"
    "  --version    mostra la versione\n\n"
    "Senza finestra, per gli script, c'è trovalis-cli.\n";

// What the first argument asks for instead of a window; empty where it is a file's name. It needs no display.
const char* AnswerTo(const char* argument) {
  if (std::strcmp(argument, "-h") == 0 || std::strcmp(argument, "--help") == 0) return Help;
  return std::strcmp(argument, "--version") == 0 ? "trovalis " TROVALIS_VERSION "\n" : "";
}

// Behind "--" everything is a file's name. Nothing where there is something else than one such name.
std::optional<QString> FileIn(QStringList arguments) {
  const bool named = arguments.size() > 1 && arguments[1] == "--";
  if (named) arguments.removeAt(1);
  const bool option = !named && arguments.size() > 1 && arguments[1].startsWith('-');
  if (option || arguments.size() > 2) return std::nullopt;
  return arguments.value(1);
}

}  // namespace

int main(int argc, char** argv) {
  if (const char* answer = argc == 2 ? AnswerTo(argv[1]) : ""; *answer != '\0')
    return std::fputs(answer, stdout) < 0 ? 1 : 0;
  Ui::PrepareToolkit();
  QApplication application(argc, argv);
  const auto file = FileIn(QApplication::arguments());
  if (!file) {
    std::fputs(Help, stderr);
    return 2;
  }
  Ui::SetUpToolkit(application);
  Ui::MainWindow window(Ui::ProgramFolder());
  window.show();
  if (!window.Start()) return 1;
  window.OfferKeptWork();
  if (!file->isEmpty()) window.OpenWhenChosen(Ui::PathBytes(QFileInfo(*file).absoluteFilePath()));
  return QApplication::exec();
}
