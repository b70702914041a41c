#include "ui/list/table_model.h"

#include <QBrush>
#include <QMimeData>

#include <algorithm>

namespace Ui {

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
  const auto byRow = [](const QModelIndex& one, const QModelIndex& other) { return one.row() < other.row(); };
  const auto [first, last] = std::minmax_element(indexes.begin(), indexes.end(), byRow);
  auto* data = new QMimeData;
  if (first != indexes.end()) {
    data->setData(type, QByteArray::number(first->row() + 1) + ' ' + QByteArray::number(last->row() + 1));
  }
  return data;
}

}  // namespace Ui
