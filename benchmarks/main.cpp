// trovalis_bench [options of Google Benchmark]: prints the table.
#include "beside.h"
#include "ui/kit/toolkit.h"

#include <QApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>

namespace Bench {
namespace {

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// The medians of each row's repetitions.
class Table : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.repetitions > 1 && run.aggregate_name != "median") continue;
      const auto& figures = run.counters;
      const double ratio = figures.at("lavoro") / figures.at("limite");
      char line[200];
      std::snprintf(line, sizeof line, "| %-40s | %9.1f | %9.1f | %8.2f | %9.1f%s |",
                    run.run_name.function_name.c_str(), figures.at("lavoro").value,
                    figures.at("limite").value, ratio, figures.at("obiettivo").value,
                    ratio > figures.at("obiettivo") ? " MISS" : "");
      lines_[run.family_index] = line;
    }
  }

  void Finalize() override {
    std::printf("| %-41s | %9s | %9s | %8s | %9s |\n", "Lavoro (µs; la memoria in kB)", "tempo", "limite",
                "rapporto", "obiettivo");
    for (const auto& [place, line] : lines_) std::printf("%s\n", line.c_str());
  }

 private:
  std::map<std::int64_t, std::string> lines_;  // by place, as they run in any order
};

}  // namespace

double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  benchmark::ClobberMemory();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Tell(benchmark::State& run, double aim, std::vector<double> works, std::vector<double> limits) {
  run.counters["lavoro"] = Median(std::move(works));
  run.counters["limite"] = Median(std::move(limits));
  run.counters["obiettivo"] = aim;
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
  for (const Row& row : rows) benchmark::RegisterBenchmark(row.name, row.run)->UseManualTime();
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
  Bench::Table table;
  benchmark::RunSpecifiedBenchmarks(&table);
}
