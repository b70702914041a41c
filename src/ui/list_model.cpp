#include "ui/list_model.h"

#include "base/text.h"
#include "ui/dialogs.h"

#include <QBrush>

namespace Ui {

using Routines::State;

const ListModel::Kind ListModel::Channels = {
    Routines::ChannelHeader, [](const State& state) { return state.ChannelCount; }, Routines::ChannelCell,
    [](const State& state, int slot, int) { return Routines::ChannelColour(state, slot); }};

const ListModel::Kind ListModel::Transponders = {Routines::TransponderHeader,
                                                 [](const State& state) { return state.TransponderCount; },
                                                 Routines::TransponderCell, Routines::TransponderColour};

QColor ToColor(Routines::Colour colour) {
  return {static_cast<int>(colour & 255U), static_cast<int>(colour >> 8U & 255U),
          static_cast<int>(colour >> 16U & 255U)};
}

ListModel::ListModel(const Document& document, const Kind& kind, QObject* parent)
    : QAbstractTableModel(parent),
      document_(document),
      kind_(kind),
      header_(ParseHeader(kind.header)),
      rows_(kind.rows(document.Tables())) {
  connect(&document, &Document::Changed, this, &ListModel::Refresh);
}

int ListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(header_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const State& state = document_.Tables();
  const int slot = index.row() + 1;
  switch (role) {
    case Qt::DisplayRole:
      return CodePageText(Base::TrimmedRight(kind_.cell(state, slot, index.column())));
    case Qt::TextAlignmentRole:
      return header_[static_cast<std::size_t>(index.column())].alignment.toInt();
    case Qt::BackgroundRole:
      return QBrush(ToColor(index.column() == 0 ? Routines::Colours::Header
                                                : kind_.colour(state, slot, index.column())));
    case Qt::ForegroundRole: {
      const bool dark =
          index.column() > 0 && kind_.colour(state, slot, index.column()) == Routines::Colours::NoFrequency;
      return QBrush(dark ? Qt::white : Qt::black);
    }
    default:
      return {};
  }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const HeaderColumn& column = header_[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return column.title;
  if (role == Qt::TextAlignmentRole) return column.alignment.toInt();
  return {};
}

void ListModel::Refresh() {
  const int rows = kind_.rows(document_.Tables());
  if (rows != rows_) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
  } else if (rows > 0) {
    emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
  }
}

}  // namespace Ui
