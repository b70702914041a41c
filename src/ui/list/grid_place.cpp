#include "ui/list/grid_place.h"

#include <QStringList>

#include <algorithm>

namespace Ui {
namespace {

constexpr int LastRow = 0xFFFF;  // more than any list has
constexpr qsizetype Numbers = 5;

// "3-5 9"
QString RunsText(const Edit::Slots& rows) {
  QStringList runs;
  for (std::size_t i = 0, first = 0; i < rows.size(); ++i) {
    if (i + 1 < rows.size() && rows[i + 1] == rows[i] + 1) continue;
    runs += QString("%1-%2").arg(rows[first]).arg(rows[i]);
    first = i + 1;
  }
  return runs.join(' ');
}

void AddRun(const QString& run, Edit::Slots& rows) {
  const int least = rows.empty() ? 1 : rows.back() + 1;
  const Edit::Slots added = Edit::SlotRun(std::max(run.section('-', 0, 0).toInt(), least),
                                          std::min(run.section('-', 1, 1).toInt(), LastRow));
  rows.insert(rows.end(), added.begin(), added.end());
}

}  // namespace

QString PlaceText(const GridPlace& place) {
  return QString("%1 %2 %3 %4 %5 ")
             .arg(place.top)
             .arg(place.sideways)
             .arg(place.row)
             .arg(place.column)
             .arg(place.fingerprint) +
         RunsText(place.selected);
}

GridPlace PlaceFrom(const QString& text) {
  const QStringList parts = text.split(' ', Qt::SkipEmptyParts);
  if (parts.size() < Numbers) return {};
  GridPlace place = {parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt()};
  place.fingerprint = parts[4].toUInt();
  for (const QString& run : parts.mid(Numbers)) AddRun(run, place.selected);
  return place;
}

}  // namespace Ui
