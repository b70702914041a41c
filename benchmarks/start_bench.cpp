// From the start of the process to the first picture, beside an empty window with a table.
#include "beside.h"
#include "groups.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdlib>

namespace Bench {
namespace {

constexpr int Starts = 5;

struct Start {
  double seconds;
  double bytes;  // resident
};

Start StartOnce(const char* program) {
  QProcess process;
  const double seconds = SecondsOf([&] {
    process.start(QCoreApplication::applicationDirPath() + "/" + program);
    if (!process.waitForReadyRead()) std::abort();
  });
  process.waitForFinished();
  return {seconds, process.readAllStandardOutput().toDouble()};
}

template <double Start::*Figure>
void StartBeside(benchmark::State& run) {
  std::vector<double> works;
  std::vector<double> limits;
  for ([[maybe_unused]] auto _ : run) {
    limits.push_back(StartOnce("start_empty").*Figure);
    const Start ours = StartOnce("start_trovalis");
    works.push_back(ours.*Figure);
    run.SetIterationTime(ours.seconds);
  }
  Tell(run, 1.3, Median(works), Median(limits));
  if (Figure == &Start::bytes) run.counters[BytesCounter] = 1;
}

}  // namespace

void RegisterStarts() {
  benchmark::RegisterBenchmark("avvio fino alla prima immagine", StartBeside<&Start::seconds>)
      ->UseManualTime()
      ->Iterations(Starts);
  benchmark::RegisterBenchmark("memoria residente all'avvio", StartBeside<&Start::bytes>)
      ->UseManualTime()
      ->Iterations(Starts);
}

}  // namespace Bench
