#include "ui/review/compare_model.h"

#include "base/text.h"
#include "model/favourites.h"
#include "model/row_kind.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"
#include "ui/list/row_colours.h"

#include <QBrush>

#include <set>

namespace Ui {

using Review::Difference;
using Review::Mark;
using Routines::State;

const Routines::ChannelRecord& CompareModel::RecordAt(const Difference& difference, int column) const {
  return column == Here ? here_->Channel(difference.here) : there_->At(difference.there).record;
}

// "0012 Sport", nothing where the channel is not there; what is no row has no number.
QString CompareModel::ChannelText(const Difference& difference, int column) const {
  if (difference.Has(Mark::Favourites)) {
    const Base::Bytes& block = column == Here ? here_->FavouritesBlock : there_->favourites;
    return Text(Routines::FavouritesTitle(block, difference.favourites));
  }
  const int number = column == Here ? difference.here : difference.there;
  if (number == 0) return {};
  const QString name = CodePageText(Base::TrimmedRight(RecordAt(difference, column).Name()));
  const bool numbered = column == Here || number <= there_->offered;
  return numbered ? Text(Base::ZeroPadded(number, 4)) + ' ' + name : name;
}

// What tells a row from all others as long as its channels stay what they are. A channel that both lists have keeps its
// tick wherever it moves; one that is only here could be taken for its double.
std::string CompareModel::Identity(const Difference& difference) const {
  std::string text = std::to_string(difference.there == 0 ? difference.here : 0) + ' ' +
                     std::to_string(difference.there) + difference.marks.to_string();
  for (const int column : {Here, There}) text += Base::AsText(RecordAt(difference, column).bytes);
  return text + std::to_string(difference.favourites);
}

void CompareModel::Show(const State& here, const Routines::OtherList& there, Review::Comparison found,
                        Review::MarkSet kinds) {
  beginResetModel();
  std::set<std::string> ticked;
  for (std::size_t i = 0; i < ticks_.size(); ++i) {
    if (ticks_[i]) ticked.insert(std::move(identities_[i]));
  }
  here_ = &here;
  there_ = &there;
  found_ = std::move(found);
  kinds_ = kinds;
  rows_.clear();
  ticks_.clear();
  identities_.clear();
  for (const Difference& difference : found_.differences) {
    if ((difference.marks & kinds).any()) rows_.push_back(ticks_.size());
    identities_.push_back(Identity(difference));
    ticks_.push_back(ticked.contains(identities_.back()));
  }
  endResetModel();
  Q_EMIT TicksChanged();
}

int CompareModel::Count(Mark mark) const {
  return static_cast<int>(std::count_if(found_.differences.begin(), found_.differences.end(),
                                        [mark](const Difference& d) { return d.Has(mark); }));
}

QString CompareModel::KindText(Mark mark) const {
  switch (mark) {
    case Mark::OnlyHere:
      return wording_.onlyHere;
    case Mark::OnlyThere:
      return wording_.onlyThere;
    default:
      return Text(Review::TextOf(mark));
  }
}

std::vector<Difference> CompareModel::Ticked() const {
  std::vector<Difference> ticked;
  for (const std::size_t place : rows_) {
    if (ticks_[place]) ticked.push_back(OfKinds(found_.differences[place]));
  }
  return ticked;
}

void CompareModel::SetTicks(const std::vector<int>& rows, bool on) {
  for (const int row : rows) ticks_[Place(row)] = on;
  if (rowCount() > 0) Q_EMIT dataChanged(index(0, Tick), index(rowCount() - 1, Tick), {Qt::CheckStateRole});
  Q_EMIT TicksChanged();
}

int CompareModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CompareModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Columns; }

QVariant CompareModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return int{Qt::AlignLeft | Qt::AlignVCenter};
  if (role == Qt::AccessibleTextRole && section == Tick) return "Segno";
  if (role != Qt::DisplayRole) return {};
  switch (section) {
    case Kind:
      return "Differenza";
    case Here:
      return "In questa lista";
    case There:
      return wording_.there;
    case Details:
      return "Dettagli";
    default:
      return {};
  }
}

QString CompareModel::CellText(const Difference& difference, int column) const {
  switch (column) {
    case Kind: {
      QStringList kinds;
      for (std::size_t i = 0; i < Review::Marks; ++i) {
        if (!difference.marks[i]) continue;
        const QString text = KindText(static_cast<Mark>(i));
        kinds += kinds.isEmpty() ? text : text.toLower();
      }
      return kinds.join(", ");
    }
    case Here:
    case There:
      return ChannelText(difference, column);
    case Details:
      return difference.byName ? "riconosciuto dal nome"
                               : Text(Review::DetailsOf(*here_, *there_, difference));
    default:
      return {};
  }
}

// The two channels have the colours that they have in the grid.
QVariant CompareModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Difference difference = At(index.row());
  const bool channel = index.column() == Here || index.column() == There;
  const int slot = index.column() == Here ? difference.here : difference.there;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return CellText(difference, index.column());
    case Qt::CheckStateRole:
      if (index.column() == Tick) return IsTicked(index.row()) ? Qt::Checked : Qt::Unchecked;
      return {};
    case Qt::AccessibleTextRole:
      return index.column() == Tick ? QVariant(IsTicked(index.row()) ? "segnato" : "non segnato")
                                    : QVariant();
    case Qt::BackgroundRole:
      if (!channel || slot == 0) return {};
      return QBrush(ToColor(ColourOf(Routines::RowKindOf(RecordAt(difference, index.column())))));
    case Qt::ForegroundRole:
      return channel && slot != 0 ? QVariant(QBrush(Qt::black)) : QVariant();
    default:
      return {};
  }
}

bool CompareModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::CheckStateRole || index.column() != Tick) return false;
  SetTicks({index.row()}, value.toInt() == Qt::Checked);
  return true;
}

Qt::ItemFlags CompareModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() && index.column() == Tick ? flags | Qt::ItemIsUserCheckable : flags;
}

}  // namespace Ui
