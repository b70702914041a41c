// What the benchmarks print: the table of all rows, and the picture of the curves.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

class QPainter;
class QRectF;
class QString;

namespace Bench {

class Report : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  // Draws the curves, if any were measured; false where the file cannot be written.
  [[nodiscard]] bool Draw(const QString& path) const;

 private:
  struct Point {
    double size;
    double seconds;
  };
  struct Curve {
    std::string title;
    std::vector<Point> points;  // in the order of their size
  };

  static void DrawCurve(QPainter& painter, const Curve& curve, const QRectF& plot);

  // By the place of their benchmark: the turns in which the benchmarks run are drawn by lot.
  std::map<std::int64_t, std::string> lines_;
  std::map<std::int64_t, Curve> curves_;
};

}  // namespace Bench
