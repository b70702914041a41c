#include "ui/list/tree_model.h"

#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"
#include "ui/list/row_colours.h"

#include <QApplication>

#include <utility>

namespace Ui {

using Routines::ListTree;

TreeModel::TreeModel(const Document& document, const std::vector<Routines::Satellite>& satellites,
                     ListTree::Shape shape, QObject* parent)
    : QAbstractItemModel(parent), document_(document), satellites_(satellites), shape_(shape) {}

// An index carries the group that it is under.
QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(row, column, static_cast<quintptr>(Number(parent)));
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
  return index.isValid() ? IndexOfGroup(static_cast<int>(index.internalId())) : QModelIndex();
}

QModelIndex TreeModel::IndexOfGroup(int group) const {
  if (group <= 0) return {};
  const auto& groups = tree_.Groups();
  const int parent = groups[static_cast<std::size_t>(group)].parent;
  return createIndex(group - groups[static_cast<std::size_t>(parent)].firstGroup, 0,
                     static_cast<quintptr>(parent));
}

int TreeModel::Number(const QModelIndex& index) const {
  if (!index.isValid()) return 0;
  const ListTree::Group& parent = tree_.Groups()[index.internalId()];
  return parent.groups > 0 ? parent.firstGroup + index.row() : -1;
}

const ListTree::Group* TreeModel::GroupOf(const QModelIndex& index) const {
  const int group = Number(index);
  return group > 0 ? &tree_.Groups()[static_cast<std::size_t>(group)] : nullptr;
}

const ListTree::Channel* TreeModel::ChannelOf(const QModelIndex& index) const {
  if (Number(index) >= 0) return nullptr;
  return &tree_.Channels(static_cast<int>(index.internalId()))[static_cast<std::size_t>(index.row())];
}

QModelIndex TreeModel::IndexOfChannel(int slot) const {
  const auto place = tree_.PlaceOf(slot);
  return place ? createIndex(place->row, 0, static_cast<quintptr>(place->group)) : QModelIndex();
}

QModelIndex TreeModel::IndexOfTransponder(int slot) const {
  return IndexOfGroup(tree_.GroupOf(slot).value_or(0));
}

int TreeModel::FirstChannel(int transponder) const {
  const auto group = tree_.GroupOf(transponder);
  if (!group || tree_.Channels(*group).empty()) return 0;
  return tree_.Channels(*group).front().slot;
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  const int group = Number(parent);
  if (group < 0) return 0;
  const ListTree::Group& owner = tree_.Groups()[static_cast<std::size_t>(group)];
  return owner.groups > 0 ? owner.groups : owner.channels;
}

int TreeModel::columnCount(const QModelIndex&) const { return 1; }

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ListTree::Channel* channel = ChannelOf(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: {
      const QString text = CodePageText(channel != nullptr ? TreeText(*channel) : TreeText(*GroupOf(index)));
      // A tip takes a name with a tag in it for markup.
      return role == Qt::DisplayRole ? text : "<span>" + text.toHtmlEscaped() + "</span>";
    }
    case Qt::EditRole:
      return CodePageText(channel != nullptr ? channel->Name() : GroupOf(index)->text);
    case Qt::DecorationRole:
      if (channel == nullptr) return {};
      return look_.Mark(ToColor(ColourOf(channel->kind)), QApplication::palette());
    default:
      return {};
  }
}

// A view that opens everything keeps a note of whatever may have children, and goes through the notes at each edit.
Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
  return ChannelOf(index) != nullptr ? flags | Qt::ItemNeverHasChildren : flags;
}

QModelIndexList TreeModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                 Qt::MatchFlags flags) const {
  QModelIndexList found = QAbstractItemModel::match(start, role, value, hits, flags);
  if (!found.isEmpty() || role != Qt::DisplayRole) return found;
  return QAbstractItemModel::match(start, Qt::EditRole, value, hits, flags);
}

void TreeModel::Refresh() {
  ListTree tree(document_.Tables(), satellites_, shape_);
  if (tree.SameShape(tree_)) {
    std::swap(tree_, tree);
    TellChanges(tree);
  } else {
    Rearrange(tree);
  }
}

void TreeModel::Rearrange(ListTree& now) {
  Q_EMIT layoutAboutToBeChanged();
  const std::vector<int> counterparts = now.CounterpartsOf(tree_);
  const QModelIndexList before = persistentIndexList();
  std::vector<int> slotsBefore;  // 0 for a group
  std::vector<int> groupsBefore;
  for (const QModelIndex& index : before) {
    const ListTree::Channel* channel = ChannelOf(index);
    slotsBefore.push_back(channel != nullptr ? channel->slot : 0);
    groupsBefore.push_back(channel != nullptr ? 0 : counterparts[static_cast<std::size_t>(Number(index))]);
  }
  std::swap(tree_, now);
  QModelIndexList after;
  for (std::size_t i = 0; i < slotsBefore.size(); ++i) {
    after += slotsBefore[i] != 0 ? IndexOfChannel(slotsBefore[i]) : IndexOfGroup(groupsBefore[i]);
  }
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged();
}

// The trees have the same shape: only names, counts and colours differ, if anything does.
void TreeModel::TellChanges(const ListTree& before) {
  const auto& groups = tree_.Groups();
  for (int group = 1; group < static_cast<int>(groups.size()); ++group) {
    const ListTree::Group& here = groups[static_cast<std::size_t>(group)];
    const QModelIndex index = IndexOfGroup(group);
    if (!(here == before.Groups()[static_cast<std::size_t>(group)])) Q_EMIT dataChanged(index, index);
    const auto now = tree_.Channels(group);
    const auto then = before.Channels(group);
    int first = -1;
    int last = -1;
    for (int row = 0; row < static_cast<int>(now.size()); ++row) {
      if (now[static_cast<std::size_t>(row)] == then[static_cast<std::size_t>(row)]) continue;
      if (first < 0) first = row;
      last = row;
    }
    if (first >= 0)
      Q_EMIT dataChanged(createIndex(first, 0, static_cast<quintptr>(group)),
                         createIndex(last, 0, static_cast<quintptr>(group)));
  }
}

}  // namespace Ui
