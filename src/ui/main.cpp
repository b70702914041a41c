#include "model/flash_file.h"
#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"
#include "ui/session/program_folder.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

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

// On Windows a program with a window has no terminal, unless what it says is led somewhere.
bool HasTerminal() {
#ifdef Q_OS_WIN
  return ::_fileno(stdout) >= 0 && ::_fileno(stderr) >= 0;
#else
  return true;
#endif
}

// Into the terminal, or in a box where there is none. False where it cannot be said.
bool Say(const char* text, std::FILE* stream) {
  if (HasTerminal()) return std::fputs(text, stream) >= 0;
  QMessageBox(QMessageBox::NoIcon, "Trovalis", text).exec();
  return true;
}

// Behind "--" everything is a file's name. Nothing where there is something else than one such name.
std::optional<QString> FileIn(QStringList arguments) {
  const bool named = arguments.size() > 1 && arguments[1] == "--";
  if (named) arguments.removeAt(1);
  const bool option = !named && arguments.size() > 1 && arguments[1].startsWith('-');
  if (option || arguments.size() > 2) return std::nullopt;
  return arguments.value(1);
}

// What the toolkit has to say while it looks for a display.
QString& SaidAtStart() {
  static QString said;
  return said;
}

bool NoDisplay() {
  return SaidAtStart().contains("could not connect to display") || SaidAtStart().contains("wl_display");
}

// Where it finds none it ends the program with a heap of words, of which one sentence is enough.
void HearStart(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) {
    SaidAtStart() += qFormatLogMessage(type, context, text) + '\n';
    return;
  }
  std::fputs(NoDisplay()
                 ? "trovalis: manca uno schermo su cui aprire la finestra (DISPLAY o WAYLAND_DISPLAY); senza "
                   "finestra c'è trovalis-cli\n"
                 : qPrintable(SaidAtStart() + text + '\n'),
             stderr);
  std::_Exit(1);
}

// Whoever has typed the file's name reads at once why it is no image; a window without a terminal says so in a box.
bool RefusedOnTerminal([[maybe_unused]] const std::string& path) {
#ifdef Q_OS_UNIX
  const auto looks = Routines::LooksLikeFlash(path, {});
  if (looks || ::isatty(STDERR_FILENO) != 1) return false;
  std::fputs(("trovalis: " + looks.error().message + "\n").c_str(), stderr);
  return true;
#else
  return false;
#endif
}

}  // namespace

int main(int argc, char** argv) {
  const char* answer = argc == 2 ? AnswerTo(argv[1]) : "";
  if (*answer != '\0' && HasTerminal()) return Say(answer, stdout) ? 0 : 1;
  Ui::PrepareToolkit();
  qInstallMessageHandler(HearStart);
  QApplication application(argc, argv);
  qInstallMessageHandler(nullptr);
  std::fputs(qPrintable(SaidAtStart()), stderr);
  if (*answer != '\0') return Say(answer, stdout) ? 0 : 1;
  const auto file = FileIn(QApplication::arguments());
  if (!file) {
    Say(Help, stderr);
    return 2;
  }
  const std::string path = file->isEmpty() ? "" : Ui::PathBytes(QFileInfo(*file).absoluteFilePath());
  if (!path.empty() && RefusedOnTerminal(path)) return 1;
  Ui::SetUpToolkit(application);
  Ui::MainWindow window(Ui::ProgramFolder());
  window.show();
  if (!window.Start()) return 1;
  window.OfferKeptWork();
  if (!path.empty()) window.OpenWhenChosen(path);
  return QApplication::exec();
}
