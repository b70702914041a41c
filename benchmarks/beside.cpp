#include "beside.h"

#include <algorithm>
#include <chrono>

namespace Bench {

double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  benchmark::ClobberMemory();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values) {
  if (values.empty()) return 0;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void Tell(benchmark::State& run, double aim, double work, double limit) {
  run.counters[TimeCounter] = work;
  run.counters[LimitCounter] = limit;
  run.counters[RatioCounter] = work / limit;
  run.counters[AimCounter] = aim;
}

void RunBeside(benchmark::State& run, double aim, const Sides& sides) {
  std::vector<double> works;
  std::vector<double> limits;
  for ([[maybe_unused]] auto _ : run) {
    sides.prepare();
    limits.push_back(SecondsOf(sides.limit));
    sides.prepare();
    works.push_back(SecondsOf(sides.work));
    run.SetIterationTime(works.back());
  }
  Tell(run, aim, Median(works), Median(limits));
}

void RunPoint(benchmark::State& run, double size, const std::function<void()>& work) {
  std::vector<double> times;
  for ([[maybe_unused]] auto _ : run) {
    times.push_back(SecondsOf(work));
    run.SetIterationTime(times.back());
  }
  run.counters[TimeCounter] = Median(times);
  run.counters[SizeCounter] = size;
}

}  // namespace Bench
