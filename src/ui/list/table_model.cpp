#include "ui/list/table_model.h"

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
