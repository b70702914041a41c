// trovalis_bench [options of Google Benchmark]: measures every row of the table.
#include "beside.h"
#include "ui/kit/toolkit.h"

#include <QApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>

namespace Bench {
namespace {

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  benchmark::ClobberMemory();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Tell(benchmark::State& run, double aim, std::vector<double> works, std::vector<double> limits) {
  const double work = Median(std::move(works)), limit = Median(std::move(limits));
  run.counters = {{"lavoro", work}, {"limite", limit}, {"rapporto", work / limit}, {"obiettivo", aim}};
  if (work > aim * limit) run.SetLabel("MISS");
}

void RunBeside(benchmark::State& run, double aim, const Sides& sides) {
  std::vector<double> works, limits;
  for ([[maybe_unused]] auto _ : run) {
    sides.prepare();
    limits.push_back(1e6 * SecondsOf(sides.limit));
    sides.prepare();
    works.push_back(1e6 * SecondsOf(sides.work));
    run.SetIterationTime(works.back() / 1e6);
  }
  Tell(run, aim, works, limits);
}

void Register(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    auto* added = benchmark::RegisterBenchmark(row.name, row.run)->UseManualTime();
    if (row.turns > 0) added->Iterations(row.turns);
  }
}

}  // namespace Bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // A window without a screen says at each showing what it cannot do.
  QLoggingCategory::setFilterRules("default.warning=false");
  QApplication application(argc, argv);
  Ui::SetUpToolkit(application);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  Bench::RegisterCore();
  Bench::RegisterWindow();
  Bench::RegisterStarts();
  Bench::RegisterPeers();
  benchmark::RunSpecifiedBenchmarks();
}
