#include "ui/files/print_report.h"

#include "base/file.h"
#include "base/text.h"
#include "model/favourites.h"
#include "ui/kit/text.h"
#include "ui/session/session.h"

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
constexpr const char* BetweenRows = "   ";  // of one line
constexpr qsizetype MostLetters = 120;      // of a line, to be read with ease on A4

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

// Gives rows that are to stand side by side one length, and a line of titles for as many as have room.
PrintReport SideBySide(const QString& heading, QString title, QStringList rows) {
  qsizetype width = title.size();
  for (const QString& row : rows) width = std::max(width, row.size());
  for (QString& row : rows) row = row.leftJustified(width);
  const qsizetype gap = QString(BetweenRows).size();
  const auto columns =
      static_cast<int>(std::clamp<qsizetype>((MostLetters + gap) / (width + gap), 1, MostColumns));
  PrintReport report{heading, title.leftJustified(width), std::move(rows), columns};
  title = report.titles;
  for (int column = 1; column < columns; ++column) report.titles += BetweenRows + title;
  return report;
}

// The lines of a page whose rows stand side by side, down one column of `height` lines and then the next.
QStringList LinesOf(const QStringList& rows, qsizetype height) {
  QStringList lines = rows.mid(0, height);
  for (qsizetype i = height; i < rows.size(); ++i) lines[i % height] += BetweenRows + rows[i];
  return lines;
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
  PrintReport report;
  report.heading = heading;
  report.rows = QStringList(static_cast<qsizetype>(rows.size()));
  for (int number = 0; number < table.columnCount(); ++number) {
    const Column column = ColumnOf(table, rows, number);
    const QString before = number == 0 ? "" : BetweenColumns;
    report.titles += before + column.Title();
    for (qsizetype row = 0; row < report.rows.size(); ++row) report.rows[row] += before + column.Cell(row);
  }
  return report;
}

PrintReport CompactReportOf(const QAbstractItemModel& table, const Edit::Slots& rows,
                            const QString& heading) {
  const Column number = ColumnOf(table, rows, 0);
  const Column name = ColumnOf(table, rows, 1);
  QStringList lines;
  for (qsizetype row = 0; row < number.cells.size(); ++row)
    lines += number.cells[row].rightJustified(number.width) + " " + name.cells[row].trimmed();
  return SideBySide(heading, QString("Nr.").leftJustified(number.width) + " " + name.title, std::move(lines));
}

PrintReport FavouritesReportOf(const Routines::State& state, const QString& heading) {
  QStringList lines;
  for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
    const std::vector<int> entries = Routines::FavouriteEntriesOf(state.FavouritesBlock, list);
    if (entries.empty()) continue;
    if (!lines.empty()) lines += "";
    const QString title = Printable(Text(Routines::FavouritesTitle(state.FavouritesBlock, list)));
    lines += QString("Lista %1: %2 (%3)").arg(list + 1).arg(title).arg(entries.size());
    for (std::size_t place = 0; place < entries.size(); ++place) {
      const bool channel = entries[place] <= Routines::LastChannelSlot;
      const QString name =
          channel ? Printable(CodePageText(Base::TrimmedRight(state.Channel(entries[place]).Name())))
                  : QString();
      lines += QString("%1  %2 %3").arg(place + 1, 3).arg(Text(Base::ZeroPadded(entries[place], 4)), name);
    }
  }
  return SideBySide(heading, "Posto e canale", std::move(lines));
}

std::vector<QStringList> PagesOf(const PrintReport& report, int linesPerPage) {
  const qsizetype height = linesPerPage - PageHeadLines;
  const qsizetype rowsPerPage = height * report.columns;
  const qsizetype count = (report.rows.size() + rowsPerPage - 1) / rowsPerPage;
  std::vector<QStringList> pages;
  for (qsizetype page = 0; page < count; ++page) {
    const QString number = report.date + QString("  Pagina %1 di %2").arg(page + 1).arg(count);
    const qsizetype room = std::max<qsizetype>(report.titles.size() - number.size(), 1);
    QStringList lines = {report.heading.leftJustified(room - 1, ' ', true) + " " + number, "", report.titles};
    pages.push_back(lines + LinesOf(report.rows.mid(page * rowsPerPage, rowsPerPage), height));
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
      ReplaceFilePatiently(path, Base::AsBytes({bytes.constData(), static_cast<std::size_t>(bytes.size())}));
  if (!written) return written.error();
  return pages;
}

}  // namespace Ui
