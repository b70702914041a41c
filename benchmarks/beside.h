// A piece of work beside the least that any program must do for it, both measured in turns so that whatever else the
// machine does falls on both alike.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>

namespace Bench {

// Names of the counters that carry the figures; times are in seconds.
inline constexpr const char* TimeCounter = "tempo";
inline constexpr const char* LimitCounter = "limite";
inline constexpr const char* RatioCounter = "rapporto";
inline constexpr const char* AimCounter = "obiettivo";
inline constexpr const char* BytesCounter = "byte";     // 1 where the figures are no times
inline constexpr const char* SizeCounter = "quantità";  // of a point of a curve

inline constexpr double NoAim = 0;

struct Sides {
  std::function<void()> work;
  std::function<void()> limit;
  std::function<void()> prepare = [] {};  // before each of the two, not measured
};

// `aim` is the most that the work may take, as a multiple of the limit, or NoAim.
void RunBeside(benchmark::State& run, double aim, const Sides& sides);

// Figures that were measured otherwise.
void Tell(benchmark::State& run, double aim, double work, double limit);

// A point of the curve of the work's time over `size`.
void RunPoint(benchmark::State& run, double size, const std::function<void()>& work);

// Seconds that `work` takes.
double SecondsOf(const std::function<void()>& work);

double Median(std::vector<double> values);

}  // namespace Bench
