#include "ui/list/list_model.h"

#include "base/text.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

#include <QMimeData>

namespace Ui {

using Routines::State;

const ListModel::Kind ListModel::Channels = {
    Routines::ChannelHeader,
    [](const State& state) { return state.ChannelCount; },
    Routines::ChannelCell,
    Routines::ChannelRowKind,
    [](const State& state, int slot) { return !state.Channel(slot).Empty(); },
    true};

const ListModel::Kind ListModel::Transponders = {
    Routines::TransponderHeader,
    [](const State& state) { return state.TransponderCount; },
    Routines::TransponderCell,
    Routines::TransponderRowKind,
    [](const State& state, int slot) { return !IsFree(state.Transponder(slot).record); },
    false};

ListModel::ListModel(const Document& document, const Kind& kind, QObject* parent)
    : TableModel(kind.header, parent), document_(document), kind_(kind), rows_(kind.rows(document.Tables())) {
  connect(&document, &Document::Changed, this, &ListModel::Refresh);
}

int ListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

QString ListModel::CellText(int slot, int column) const {
  return CodePageText(Base::TrimmedRight(kind_.cell(document_.Tables(), slot, column)));
}

QString ListModel::Spoken(int slot) const {
  QString kind = Text(Routines::RowKindText(kind_.rowKind(document_.Tables(), slot)));
  if (!Found(slot) && !painted_.contains(slot)) return kind;
  return kind.isEmpty() ? QString("trovato") : kind + ", trovato";
}

Colour ListModel::CellColour(int slot, int column) const {
  if (painted_.contains(slot)) return Colours::Found;
  if (column == 0) return Colours::Header;
  const State& state = document_.Tables();
  if (!OfChannels() && column == Routines::TransponderColumn::Frequency &&
      Routines::ShowsNoFrequency(state.Transponder(slot).record))
    return Colours::NoFrequency;
  return ColourOf(kind_.rowKind(state, slot));
}

void ListModel::Paint(int slot) {
  if (slot < 1 || slot > rows_) return;
  painted_.insert(slot);
  Q_EMIT dataChanged(index(slot - 1, 0), index(slot - 1, columnCount() - 1));
}

void ListModel::ClearPaint() {
  if (painted_.empty()) return;
  painted_.clear();
  if (rows_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return kind_.movable ? Qt::ItemIsDropEnabled : Qt::NoItemFlags;
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
  return kind_.movable ? usual | Qt::ItemIsDragEnabled : usual;
}

Qt::DropActions ListModel::supportedDropActions() const { return Qt::MoveAction | Qt::CopyAction; }

QStringList ListModel::mimeTypes() const { return {SlotsType, SdxRowsType}; }

QMimeData* ListModel::mimeData(const QModelIndexList& indexes) const { return RowsAs(SlotsType, indexes); }

bool ListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                             const QModelIndex& parent) {
  const bool own = data->hasFormat(SlotsType);
  const Rows dragged = RowsIn(*data, own ? SlotsType : SdxRowsType);
  if (!kind_.movable || dragged.empty()) return false;
  const int before = row >= 0 ? row + 1 : parent.isValid() ? parent.row() + 1 : rows_ + 1;
  if (own) {
    Q_EMIT Dropped(dragged, before, action == Qt::CopyAction);
  } else {
    Q_EMIT SdxDropped(dragged, before);
  }
  return true;
}

// A view keeps its place, whatever comes or goes at the end.
void ListModel::Refresh() {
  painted_.clear();
  const int rows = kind_.rows(document_.Tables());
  const int before = rows_;
  if (rows > before) {
    beginInsertRows({}, before, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < before) {
    beginRemoveRows({}, rows, before - 1);
    rows_ = rows;
    endRemoveRows();
  }
  if (const int kept = std::min(before, rows); kept > 0)
    Q_EMIT dataChanged(index(0, 0), index(kept - 1, columnCount() - 1));
}

}  // namespace Ui
