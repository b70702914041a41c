#include "ui/files/print_report.h"

#include "base/file.h"

#include <QAbstractItemModel>
#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace Ui {
namespace {

constexpr const char* BetweenColumns = "  ";

// Names may hold control characters, which would move what follows them.
QString Printable(QString text) {
  for (QChar& c : text) {
    if (!c.isPrint()) c = ' ';
  }
  return text;
}

struct Column {
  QStringList cells;
  qsizetype width = 0;  // of the widest cell
  QString title;
  bool centred = false;

  [[nodiscard]] QString Title() const { return centred ? Centred(title) : title.leftJustified(FullWidth()); }
  [[nodiscard]] QString Cell(qsizetype row) const {
    return centred ? Centred(cells[row].rightJustified(width)) : cells[row].leftJustified(FullWidth());
  }

 private:
  [[nodiscard]] qsizetype FullWidth() const { return std::max(width, title.size()); }
  [[nodiscard]] QString Centred(const QString& text) const {
    const qsizetype left = (FullWidth() - text.size()) / 2;
    return (QString(left, ' ') + text).leftJustified(FullWidth());
  }
};

Column ColumnOf(const QAbstractItemModel& table, const Edit::Slots& rows, int number) {
  Column column;
  column.title = table.headerData(number, Qt::Horizontal).toString();
  const int alignment = table.headerData(number, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
  column.centred = (alignment & Qt::AlignHCenter) != 0;
  for (const int row : rows) {
    column.cells += Printable(table.index(row - 1, number).data().toString());
    column.width = std::max(column.width, column.cells.back().size());
  }
  return column;
}

// The largest size at which a line fits the area's width, and the fewest lines of a page its height.
QFont FittingFont(QPagedPaintDevice& device, QSize area, qsizetype widest) {
  QFont font("DejaVu Sans Mono");
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  const QString line(widest, '0');
  const auto fits = [&](int size) {
    font.setPixelSize(size);
    const QFontMetricsF metrics(font, &device);
    return metrics.horizontalAdvance(line) <= area.width() && metrics.height() * FewestLines <= area.height();
  };
  int size = std::max(area.height() / FewestLines, 1);
  while (size > 1 && !fits(size)) --size;
  font.setPixelSize(size);
  return font;
}

void DrawPage(QPainter& painter, const QFont& font, double pitch, const QStringList& lines) {
  QFont bold = font;
  bold.setBold(true);
  for (qsizetype i = 0; i < lines.size(); ++i) {
    painter.setFont(i < PageHeadLines ? bold : font);
    const double top = pitch * static_cast<double>(i);
    painter.drawText(QRectF(0, top, painter.viewport().width(), pitch), Qt::TextDontClip | Qt::AlignVCenter,
                     lines[i]);
  }
  const double rule = pitch * PageHeadLines;
  painter.drawLine(QPointF(0, rule), QPointF(painter.viewport().width(), rule));
}

}  // namespace

PrintReport ReportOf(const QAbstractItemModel& table, const Edit::Slots& rows, const QString& heading) {
  PrintReport report{heading, {}, QStringList(static_cast<qsizetype>(rows.size()))};
  for (int number = 0; number < table.columnCount(); ++number) {
    const Column column = ColumnOf(table, rows, number);
    const QString before = number == 0 ? "" : BetweenColumns;
    report.titles += before + column.Title();
    for (qsizetype row = 0; row < report.rows.size(); ++row) report.rows[row] += before + column.Cell(row);
  }
  return report;
}

std::vector<QStringList> PagesOf(const PrintReport& report, int linesPerPage) {
  const qsizetype rowsPerPage = linesPerPage - PageHeadLines;
  const qsizetype count = (report.rows.size() + rowsPerPage - 1) / rowsPerPage;
  std::vector<QStringList> pages;
  for (qsizetype page = 0; page < count; ++page) {
    const QString number = QString("Pagina %1 di %2").arg(page + 1).arg(count);
    const qsizetype room = std::max<qsizetype>(report.titles.size() - number.size(), 1);
    QStringList lines = {report.heading.leftJustified(room - 1, ' ', true) + " " + number, "", report.titles};
    pages.push_back(lines + report.rows.mid(page * rowsPerPage, rowsPerPage));
  }
  return pages;
}

std::optional<int> PrintPages(QPagedPaintDevice& device, const PrintReport& report) {
  QPainter painter;
  if (!painter.begin(&device)) return std::nullopt;
  const QSize area = painter.viewport().size();
  const QFont font = FittingFont(device, area, report.titles.size());
  const double height = QFontMetricsF(font, &device).height();
  const int lines = std::clamp(static_cast<int>(std::floor(area.height() / height)), FewestLines, MostLines);
  const double pitch = static_cast<double>(area.height()) / lines;
  int drawn = 0;
  int number = 0;
  for (const QStringList& page : PagesOf(report, lines)) {
    ++number;
    if (!device.pageRanges().isEmpty() && !device.pageRanges().contains(number)) continue;
    if (drawn > 0 && !device.newPage()) return std::nullopt;
    DrawPage(painter, font, pitch, page);
    ++drawn;
  }
  if (!painter.end()) return std::nullopt;
  return drawn;
}

QPageLayout UsualPage() {
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(12, 12, 12, 12),
          QPageLayout::Millimeter};
}

Base::Result<int> SavePdf(const PrintReport& report, const std::string& path, const QPageLayout& layout,
                          const QPageRanges& ranges) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  int pages = 0;
  {
    QPdfWriter writer(&buffer);
    writer.setTitle(report.heading);
    writer.setCreator("Trovalis");
    writer.setPageLayout(layout);
    writer.setPageRanges(ranges);
    pages = PrintPages(writer, report).value_or(0);
  }
  const QByteArray& bytes = buffer.data();
  const auto written =
      Base::ReplaceFile(path, Base::AsBytes({bytes.constData(), static_cast<std::size_t>(bytes.size())}));
  if (!written) return written.error();
  return pages;
}

}  // namespace Ui
