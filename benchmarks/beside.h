// A piece of work beside the least that any program must do for it, both measured in turns so that whatever else the
// machine does falls on both alike.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <initializer_list>
#include <vector>

namespace Bench {

struct Sides {
  std::function<void()> work;
  std::function<void()> limit;
  std::function<void()> prepare = [] {};  // before each of the two, not measured
};

// Times are told in µs.
void RunBeside(benchmark::State& run, const Sides& sides);

// The medians of figures that were measured otherwise, in µs or kB.
void Tell(benchmark::State& run, std::vector<double> works, std::vector<double> limits);

// Seconds that `work` takes.
double SecondsOf(const std::function<void()>& work);

struct Row {
  const char* name;
  double aim;  // the most that the work may take, as a multiple of the limit; 0 where the ratio only informs
  void (*run)(benchmark::State&);
  int turns = 0;  // 0 for as many as the time allows
  bool memory = false;
};
void Register(std::initializer_list<Row> rows);

// The rows of the table, in its order.
void RegisterCore();
void RegisterWindow();
void RegisterStarts();
// Other programs that do the same, where there are any.
void RegisterPeers();

}  // namespace Bench
