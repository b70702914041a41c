// A list on paper: plain lines of one pitch, column titles and page number on every page.
#pragma once

#include "base/result.h"
#include "edit/list_operations.h"

#include <QDate>
#include <QPageLayout>
#include <QPageRanges>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QAbstractItemModel;
class QPagedPaintDevice;

namespace Ui {

struct PrintReport {
  QString heading;
  QString titles;    // of the columns
  QStringList rows;  // none longer than the titles' line
  int columns =
      1;  // of rows, side by side on a page; rows and titles are of one length where there are several
  QString date = QDate::currentDate().toString("dd/MM/yyyy");  // of printing
};

// Rows of a table, counted from 1, in columns as wide as their texts. Columns that are centred on the screen have
// their texts flush right, so that digits stand below digits.
PrintReport ReportOf(const QAbstractItemModel& table, const Edit::Slots& rows, const QString& heading);

// Number and name alone, the table's first two columns, in as many columns of the page as their lengths let be.
inline constexpr int MostColumns = 5;
PrintReport CompactReportOf(const QAbstractItemModel& table, const Edit::Slots& rows, const QString& heading);

// The favourites lists that name any channel, one after the other: place, number and name of each.
PrintReport FavouritesReportOf(const Routines::State& state, const QString& heading);

// The lines of each page: heading and page number, a blank line, the titles, then rows.
inline constexpr int PageHeadLines = 3;
std::vector<QStringList> PagesOf(const PrintReport& report, int linesPerPage);

// 64 to 80, by what an area has room for.
inline constexpr int FewestLines = 64;
inline constexpr int MostLines = 80;

// Draws the pages of the device's own page ranges, the letters as large as the widest line and the number of lines
// let them be. Returns how many pages were drawn, nothing when the device takes none.
std::optional<int> PrintPages(QPagedPaintDevice& device, const PrintReport& report);

// A4 upright.
QPageLayout UsualPage();

// The same into a file, which is written whole or not at all. Returns the number of pages.
Base::Result<int> SavePdf(const PrintReport& report, const std::string& path,
                          const QPageLayout& layout = UsualPage(), const QPageRanges& ranges = {});

}  // namespace Ui
