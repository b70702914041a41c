// From the start of the process to the first picture, beside the same look with nothing behind it and beside an empty window
// with a table; and a command without a window, beside one that reads the same file.
#include "beside.h"
#include "full_list.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Bench {
namespace {

constexpr const char* BareLook = "start_bare";
constexpr const char* Nothing = "start_empty";

struct Start {
  double microseconds;
  double kilobytes;  // resident
};

Start StartOnce(const char* program) {
  QProcess process;
  const double seconds = SecondsOf([&] {
    process.start(QCoreApplication::applicationDirPath() + "/" + program);
    if (!process.waitForReadyRead()) std::abort();
  });
  process.waitForFinished();
  return {seconds * 1e6, process.readAllStandardOutput().toDouble() / 1024};
}

template <double Start::*Figure, const char* const& Limit>
void StartBeside(benchmark::State& run) {
  std::vector<double> works, limits;
  for ([[maybe_unused]] auto _ : run) {
    limits.push_back(StartOnce(Limit).*Figure);
    const Start ours = StartOnce("start_trovalis");
    works.push_back(ours.*Figure);
    run.SetIterationTime(ours.microseconds / 1e6);
  }
  Tell(run, works, limits);
}

// Runs a program to its end, with nothing of the toolkit between the two.
void RunOnce(std::string program, std::string argument, std::string file) {
  posix_spawn_file_actions_t quiet;
  ::posix_spawn_file_actions_init(&quiet);
  ::posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  char* arguments[] = {program.data(), argument.empty() ? file.data() : argument.data(),
                       argument.empty() ? nullptr : file.data(), nullptr};
  pid_t process = 0;
  int status = 0;
  if (::posix_spawnp(&process, program.c_str(), &quiet, nullptr, arguments, environ) != 0) std::abort();
  if (::waitpid(process, &status, 0) != process || status != 0) std::abort();
  ::posix_spawn_file_actions_destroy(&quiet);
}

void CommandBesideCksum(benchmark::State& run) {
  const QTemporaryDir folder;
  const std::string file = folder.filePath("lista.dat").toStdString();
  const Base::Bytes image = Image();
  std::ofstream(file, std::ios::binary)
      .write(reinterpret_cast<const char*>(image.data()), static_cast<std::streamsize>(image.size()));
  const std::string program = QCoreApplication::applicationDirPath().toStdString() + "/trovalis-cli";
  RunBeside(run, {[&] { RunOnce(program, "info", file); }, [&] { RunOnce("cksum", "", file); }});
}

}  // namespace

void RegisterStarts() {
  Register(
      {{"`trovalis-cli info`, dall'inizio alla fine", 2, CommandBesideCksum},
       {"avvio fino alla prima immagine", 1.2, StartBeside<&Start::microseconds, BareLook>},
       {"memoria residente all'avvio", 1.1, StartBeside<&Start::kilobytes, BareLook>, 0, true},
       {"avvio, e quello di una finestra vuota", 0, StartBeside<&Start::microseconds, Nothing>},
       {"memoria, e quella di una finestra vuota", 0, StartBeside<&Start::kilobytes, Nothing>, 0, true}});
}

}  // namespace Bench
