// From the start of the process to the first picture, beside an empty window with a table.
#include "beside.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdlib>

namespace Bench {
namespace {

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

template <double Start::*Figure>
void StartBeside(benchmark::State& run) {
  std::vector<double> works, limits;
  for ([[maybe_unused]] auto _ : run) {
    limits.push_back(StartOnce("start_empty").*Figure);
    const Start ours = StartOnce("start_trovalis");
    works.push_back(ours.*Figure);
    run.SetIterationTime(ours.microseconds / 1e6);
  }
  Tell(run, 1.3, works, limits);
}

}  // namespace

void RegisterStarts() {
  Register({{"avvio fino alla prima immagine", StartBeside<&Start::microseconds>},
            {"memoria residente all'avvio", StartBeside<&Start::kilobytes>}});
}

}  // namespace Bench
