#include "ui/list/table_model.h"

#include "base/checksum.h"

#include <QBrush>
#include <QMimeData>

#include <set>

namespace Ui {

std::vector<int> RowsIn(const QMimeData& data, const char* type) {
  std::set<int> rows;
  for (const QByteArray& number : data.data(type).split(' ')) {
    if (!number.isEmpty()) rows.insert(number.toInt());
  }
  return {rows.begin(), rows.end()};
}

TableModel::TableModel(std::string_view header, QObject* parent)
    : QAbstractTableModel(parent), header_(ParseHeader(header)) {}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(header_.size());
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const HeaderColumn& column = header_[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return column.title;
  if (role == Qt::TextAlignmentRole) return column.alignment.toInt();
  return {};
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = index.row() + 1;
  switch (role) {
    case Qt::AccessibleDescriptionRole:
      return index.column() == 1 ? Spoken(row) : QString();
    case Qt::ToolTipRole:
      return Tip(row);
    case Qt::DisplayRole:
      return CellText(row, index.column());
    case Qt::TextAlignmentRole:
      return header_[static_cast<std::size_t>(index.column())].alignment.toInt();
    case Qt::BackgroundRole:
      return QBrush(ToColor(CellColour(row, index.column())));
    case Qt::ForegroundRole:
      return QBrush(TextOn(CellColour(row, index.column())));
    default:
      return {};
  }
}

std::uint32_t TableModel::Fingerprint(const Rows& rows) const {
  std::string cells;
  for (const int row : rows) {
    for (int column = 0; column < columnCount(); ++column) cells += CellText(row, column).toStdString() + '|';
  }
  return Base::Crc32(Base::AsBytes(cells));
}

bool TableModel::Found(int row) const {
  const auto place = static_cast<std::size_t>(row);
  return place < found_.size() && found_[place];
}

void TableModel::SetFound(const Rows& rows) {
  std::vector<bool> found(static_cast<std::size_t>(rowCount()) + 1);
  for (const int row : rows) {
    if (row <= rowCount()) found[static_cast<std::size_t>(row)] = true;
  }
  std::swap(found, found_);
  found.resize(found_.size());
  for (std::size_t row = 1; row < found_.size(); ++row) {
    const std::size_t first = row;
    while (row < found_.size() && found[row] != found_[row]) ++row;
    if (row > first)
      Q_EMIT dataChanged(index(static_cast<int>(first) - 1, 0), index(static_cast<int>(row) - 2, 1));
  }
}

QMimeData* TableModel::RowsAs(const char* type, const QModelIndexList& indexes) {
  std::set<int> rows;
  for (const QModelIndex& index : indexes) rows.insert(index.row() + 1);
  QByteArray text;
  for (const int row : rows) text += QByteArray::number(row) + ' ';
  auto* data = new QMimeData;
  data->setData(type, text.trimmed());
  return data;
}

}  // namespace Ui
