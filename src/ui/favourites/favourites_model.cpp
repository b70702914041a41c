#include "ui/favourites/favourites_model.h"

#include "base/text.h"
#include "model/favourites.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"
#include "ui/list/row_colours.h"
#include "ui/list/table_model.h"

#include <QBrush>
#include <QMimeData>

namespace Ui {

using Routines::State;

FavouritesModel::FavouritesModel(const Document& document, std::size_t list, QObject* parent)
    : QAbstractListModel(parent), document_(document), list_(list) {
  connect(&document, &Document::Changed, this, &FavouritesModel::Refresh);
  Refresh();
}

// Rows come and go at the end, so that a view keeps its place.
void FavouritesModel::Refresh() {
  std::vector<int> entries = Routines::FavouriteEntriesOf(document_.Tables().FavouritesBlock, list_);
  const int before = rowCount();
  const int after = static_cast<int>(entries.size());
  if (after > before) {
    beginInsertRows({}, before, after - 1);
    entries_ = std::move(entries);
    endInsertRows();
  } else if (after < before) {
    beginRemoveRows({}, after, before - 1);
    entries_ = std::move(entries);
    endRemoveRows();
  } else {
    entries_ = std::move(entries);
  }
  if (const int same = std::min(before, after); same > 0) Q_EMIT dataChanged(index(0), index(same - 1));
}

int FavouritesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant FavouritesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const State& state = document_.Tables();
  const int slot = Slot(index.row());
  const bool inList = slot <= state.ChannelCount;
  const bool empty = !inList || state.Channel(slot).Empty();
  switch (role) {
    case Qt::DisplayRole: {
      const QString number = Text(Base::ZeroPadded(slot, 4)) + ' ';
      if (!inList) return number + "(oltre la lista)";
      if (empty) return number + "(posto vuoto)";
      return number + CodePageText(Base::TrimmedRight(state.Channel(slot).Name()));
    }
    case Qt::BackgroundRole:
      return QBrush(ToColor(inList ? ColourOf(Routines::ChannelRowKind(state, slot)) : Colours::Wrong));
    case Qt::ForegroundRole:
      return QBrush(Qt::black);
    default:
      return {};
  }
}

Qt::ItemFlags FavouritesModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::ItemIsDropEnabled;
  return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled;
}

Qt::DropActions FavouritesModel::supportedDropActions() const { return Qt::MoveAction | Qt::CopyAction; }

QStringList FavouritesModel::mimeTypes() const { return {FavouritesType, SlotsType}; }

QMimeData* FavouritesModel::mimeData(const QModelIndexList& indexes) const {
  std::vector<int> rows;
  for (const QModelIndex& index : indexes) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  QByteArray text = QByteArray::number(static_cast<qulonglong>(list_));
  for (const int row : rows) text += ' ' + QByteArray::number(row);
  auto* data = new QMimeData;
  data->setData(FavouritesType, text);
  return data;
}

// False also where the drop is taken: the view would else remove the rows that were dragged.
bool FavouritesModel::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int,
                                   const QModelIndex& parent) {
  const int at = row >= 0 ? row : parent.isValid() ? parent.row() : rowCount();
  const auto before = static_cast<std::size_t>(at);
  if (data->hasFormat(FavouritesType)) {
    const QList<QByteArray> numbers = data->data(FavouritesType).split(' ');
    std::vector<std::size_t> places;
    for (const QByteArray& number : numbers.mid(1)) places.push_back(number.toULongLong());
    const auto list = numbers.front().toULongLong();
    if (list < Routines::FavouriteLists) Q_EMIT Dropped(list, places, before);
  } else if (data->hasFormat(SlotsType)) {
    Q_EMIT ChannelsDropped(RowsIn(*data, SlotsType), before);
  }
  return false;
}

}  // namespace Ui
