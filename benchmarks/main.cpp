// trovalis_bench [options of Google Benchmark]: measures every row of the table, and leaves it in tabella.md too, as the documents
// have it.
#include "beside.h"
#include "ui/kit/toolkit.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>
#include <map>

namespace Bench {
namespace {

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

const Row* current = nullptr;
std::vector<QString> order;
std::map<QString, QString> lines;  // of the table, by name; a row is run until its time is known

// µs or kB, in the unit that is easy to read.
QString Figure(double value, bool memory) {
  if (memory) return QLocale().toString(value / 1024, 'f', 1) + " MB";
  if (value < 1000) return QLocale().toString(value, 'f', value < 100 ? 1 : 0) + " µs";
  if (value < 1e6) return QLocale().toString(value / 1000, 'f', value < 1e5 ? 2 : 0) + " ms";
  return QLocale().toString(value / 1e6, 'f', 2) + " s";
}

bool WriteTable() {
  QFile file("tabella.md");
  if (!file.open(QFile::WriteOnly)) return false;
  file.write("| Lavoro | tempo | limite | rapporto | obiettivo |\n|---|---:|---:|---:|---:|\n");
  for (const QString& name : order)
    if (lines.contains(name)) file.write((lines[name] + '\n').toUtf8());
  return file.flush();
}

}  // namespace

double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  benchmark::ClobberMemory();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Tell(benchmark::State& run, std::vector<double> works, std::vector<double> limits) {
  const Row& row = *current;
  const double work = Median(std::move(works)), limit = Median(std::move(limits));
  run.counters = {{"lavoro", work}, {"limite", limit}, {"rapporto", work / limit}, {"obiettivo", row.aim}};
  const bool missed = row.aim > 0 && work > row.aim * limit;
  if (missed) run.SetLabel("MISS");
  const QString aim = row.aim > 0 ? QLocale().toString(row.aim) : QString("–");
  lines[row.name] = QString("| %1 | %2 | %3 | %4 | %5%6 |")
                        .arg(row.name, Figure(work, row.memory), Figure(limit, row.memory),
                             QLocale().toString(work / limit, 'f', 2), aim, missed ? " **MISS**" : "");
}

void RunBeside(benchmark::State& run, const Sides& sides) {
  std::vector<double> works, limits;
  for ([[maybe_unused]] auto _ : run) {
    sides.prepare();
    limits.push_back(1e6 * SecondsOf(sides.limit));
    sides.prepare();
    works.push_back(1e6 * SecondsOf(sides.work));
    run.SetIterationTime(works.back() / 1e6);
  }
  Tell(run, works, limits);
}

void Register(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    order.push_back(row.name);
    auto* added = benchmark::RegisterBenchmark(row.name, [row](benchmark::State& run) {
      current = &row;
      row.run(run);
    });
    added->UseManualTime();
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
  return Bench::WriteTable() ? 0 : 1;
}
