#include "ui/list_model.h"

#include "base/text.h"
#include "ui/dialogs.h"

#include <QBrush>
#include <QMimeData>

namespace Ui {

using Routines::State;

namespace {

constexpr const char* SlotsType = "application/x-trovalis-slots";

}  // namespace

const ListModel::Kind ListModel::Channels = {
    Routines::ChannelHeader, [](const State& state) { return state.ChannelCount; }, Routines::ChannelCell,
    [](const State& state, int slot, int) { return Routines::ChannelColour(state, slot); }, true};

const ListModel::Kind ListModel::Transponders = {
    Routines::TransponderHeader, [](const State& state) { return state.TransponderCount; },
    Routines::TransponderCell, Routines::TransponderColour, false};

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
      return QBrush(ToColor(ColourAt(slot, index.column())));
    case Qt::ForegroundRole:
      return QBrush(ColourAt(slot, index.column()) == Routines::Colours::NoFrequency ? Qt::white : Qt::black);
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

Routines::Colour ListModel::ColourAt(int slot, int column) const {
  const Mark mark = marks_.empty() ? Mark::None : marks_[static_cast<std::size_t>(slot)];
  if (mark == Mark::Found) return Routines::Colours::Found;
  if (column == 0) return Routines::Colours::Header;
  if (mark == Mark::Filtered) return Routines::Colours::Filtered;
  return kind_.colour(document_.Tables(), slot, column);
}

void ListModel::SetMark(int slot, Mark mark) {
  if (slot < 1 || slot > rows_) return;
  marks_.resize(static_cast<std::size_t>(rows_) + 1, Mark::None);
  marks_[static_cast<std::size_t>(slot)] = mark;
  Q_EMIT dataChanged(index(slot - 1, 0), index(slot - 1, columnCount() - 1));
}

void ListModel::ClearMarks() {
  if (marks_.empty()) return;
  marks_.clear();
  if (rows_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  if (!kind_.movable) return QAbstractTableModel::flags(index);
  if (!index.isValid()) return Qt::ItemIsDropEnabled;
  return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

Qt::DropActions ListModel::supportedDropActions() const { return Qt::MoveAction | Qt::CopyAction; }

QStringList ListModel::mimeTypes() const { return {SlotsType}; }

QMimeData* ListModel::mimeData(const QModelIndexList& indexes) const {
  int first = rows_;
  int last = 0;
  for (const QModelIndex& index : indexes) {
    first = std::min(first, index.row() + 1);
    last = std::max(last, index.row() + 1);
  }
  auto* data = new QMimeData;
  data->setData(SlotsType, QByteArray::number(first) + ' ' + QByteArray::number(last));
  return data;
}

bool ListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                             const QModelIndex& parent) {
  const QList<QByteArray> dragged = data->data(SlotsType).split(' ');
  if (!kind_.movable || dragged.size() != 2) return false;
  const int before = row >= 0 ? row + 1 : parent.isValid() ? parent.row() + 1 : rows_ + 1;
  Q_EMIT Dropped(dragged[0].toInt(), dragged[1].toInt(), before, action == Qt::CopyAction);
  return true;
}

void ListModel::Refresh() {
  marks_.clear();
  const int rows = kind_.rows(document_.Tables());
  if (rows != rows_) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
  } else if (rows > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
  }
}

}  // namespace Ui
