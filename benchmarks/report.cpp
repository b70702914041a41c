#include "report.h"

#include "beside.h"

#include <QImage>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cstdio>

namespace Bench {
namespace {

constexpr int NameWidth = 40;

QString Cell(const QString& text, int width) { return text.leftJustified(width); }
QString Number(const QString& text, int width) { return text.rightJustified(width); }

QString TimeText(double seconds) {
  const QLocale locale;
  if (seconds < 1e-3) return locale.toString(seconds * 1e6, 'f', seconds < 1e-4 ? 1 : 0) + " µs";
  if (seconds < 1) return locale.toString(seconds * 1e3, 'f', seconds < 0.1 ? 2 : 0) + " ms";
  return locale.toString(seconds, 'f', 2) + " s";
}

QString FigureText(double value, bool bytes) {
  return bytes ? QLocale().toString(value / 1048576, 'f', 1) + " MB" : TimeText(value);
}

// The row of one benchmark, from the medians of its repetitions.
QString RowText(const QString& name, const benchmark::UserCounters& counters) {
  const bool bytes = counters.contains(BytesCounter);
  const double ratio = counters.at(RatioCounter);
  const double aim = counters.at(AimCounter);
  const QLocale locale;
  return "| " + Cell(name, NameWidth) + " | " + Number(FigureText(counters.at(TimeCounter), bytes), 9) +
         " | " + Number(FigureText(counters.at(LimitCounter), bytes), 9) + " | " +
         Number(locale.toString(ratio, 'f', 2), 8) + " | " +
         Number(aim == NoAim ? "-" : locale.toString(aim), 9) +
         (aim != NoAim && ratio > aim ? " MISS |" : " |");
}

// A round number that is not below `value`.
double RoundedUp(double value) {
  double step = 1e-9;
  while (step * 10 < value) step *= 10;
  for (const double factor : {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (factor * step >= value) return factor * step;
  }
  return 10 * step;
}

}  // namespace

bool Report::ReportContext(const Context&) {
  std::printf("Misure in corso: ogni lavoro a turno con il suo limite\n");
  std::fflush(stdout);
  return true;
}

void Report::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
    if (!median && run.repetitions > 1) continue;
    const std::string& name = run.run_name.function_name;
    if (!run.counters.contains(SizeCounter)) {
      lines_[run.family_index] = RowText(QString::fromStdString(name), run.counters).toStdString();
      continue;
    }
    Curve& curve = curves_[run.family_index];
    curve.title = name;
    curve.points.push_back({run.counters.at(SizeCounter), run.counters.at(TimeCounter)});
    std::sort(curve.points.begin(), curve.points.end(),
              [](const Point& one, const Point& other) { return one.size < other.size; });
  }
}

void Report::Finalize() {
  if (!lines_.empty()) {
    const auto rule = [](int width) { return QString(width, '-'); };
    std::printf("\n| %s | %s | %s | %s | %s |\n", qPrintable(Cell("Lavoro", NameWidth)),
                qPrintable(Number("tempo", 9)), qPrintable(Number("limite", 9)),
                qPrintable(Number("rapporto", 8)), qPrintable(Number("obiettivo", 9)));
    std::printf("|-%s-|-%s:|-%s:|-%s:|-%s:|\n", qPrintable(rule(NameWidth)), qPrintable(rule(9)),
                qPrintable(rule(9)), qPrintable(rule(8)), qPrintable(rule(9)));
  }
  for (const auto& [place, line] : lines_) std::printf("%s\n", line.c_str());
  for (const auto& [place, curve] : curves_) {
    std::printf("\n%s:\n", curve.title.c_str());
    for (const Point& point : curve.points) {
      std::printf("  %8.0f  %12s\n", point.size, qPrintable(TimeText(point.seconds)));
    }
  }
}

// One curve in its part of the picture.
void Report::DrawCurve(QPainter& painter, const Curve& curve, const QRectF& plot) {
  const auto later = [](const Point& one, const Point& other) { return one.seconds < other.seconds; };
  const double most = RoundedUp(std::max_element(curve.points.begin(), curve.points.end(), later)->seconds);
  const double largest = curve.points.back().size;
  const auto place = [&](const Point& point) {
    return QPointF(plot.left() + plot.width() * point.size / largest,
                   plot.bottom() - plot.height() * point.seconds / most);
  };
  painter.setPen(Qt::black);
  painter.drawText(plot.adjusted(-70, -36, 20, 0), Qt::AlignTop | Qt::AlignHCenter,
                   QString::fromStdString(curve.title));
  for (int part = 0; part <= 4; ++part) {
    const double y = plot.bottom() - plot.height() * part / 4;
    painter.setPen(QColor(220, 220, 220));
    painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    painter.setPen(Qt::black);
    painter.drawText(QRectF(plot.left() - 78, y - 10, 70, 20), Qt::AlignRight | Qt::AlignVCenter,
                     TimeText(most * part / 4));
    const double x = plot.left() + plot.width() * part / 4;
    painter.drawText(QRectF(x - 50, plot.bottom() + 6, 100, 20), Qt::AlignHCenter,
                     QLocale().toString(largest * part / 4, 'f', 0));
  }
  // Straight from nothing to the last point: work that grows with the size alone.
  painter.setPen(QPen(QColor(150, 150, 150), 1, Qt::DashLine));
  painter.drawLine(place({0, 0}), place(curve.points.back()));
  painter.setPen(QPen(QColor(0, 90, 180), 2));
  painter.setBrush(QColor(0, 90, 180));
  QPolygonF line;
  for (const Point& point : curve.points) {
    line << place(point);
    painter.drawEllipse(line.back(), 3, 3);
  }
  painter.drawPolyline(line);
}

bool Report::Draw(const QString& path) const {
  if (curves_.empty()) return true;
  constexpr int Width = 460;
  constexpr int Height = 300;
  constexpr int Legend = 30;
  const int rows = (static_cast<int>(curves_.size()) + 1) / 2;
  QImage picture(2 * Width, rows * Height + Legend, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  int at = 0;
  for (const auto& [place, curve] : curves_) {
    const QRect cell(at % 2 * Width, at / 2 * Height, Width, Height);
    DrawCurve(painter, curve, QRectF(cell.adjusted(80, 44, -40, -46)));
    ++at;
  }
  painter.setPen(Qt::black);
  painter.drawText(QRect(0, rows * Height, 2 * Width, Legend), Qt::AlignCenter,
                   "Linea tratteggiata: un tempo in proporzione alla quantità");
  painter.end();
  return picture.save(path);
}

}  // namespace Bench
