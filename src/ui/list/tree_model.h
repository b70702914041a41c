// The list as a tree, for a view: texts are made when they are painted, and a changed list moves no more than it must.
#pragma once

#include "model/list_tree.h"
#include "ui/list/document.h"
#include "ui/list/row_look.h"

#include <QAbstractItemModel>

namespace Ui {

class TreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  // The tree is empty until it is refreshed.
  TreeModel(const Document& document, const std::vector<Routines::Satellite>& satellites,
            Routines::ListTree::Shape shape, QObject* parent);

  // Brings the tree up to date. What a view has expanded or made current stays so: a group goes by what it stands
  // for, a channel by its number.
  void Refresh();

  // What an index stands for: one of the two, or neither where it is invalid.
  [[nodiscard]] const Routines::ListTree::Group* GroupOf(const QModelIndex& index) const;
  [[nodiscard]] const Routines::ListTree::Channel* ChannelOf(const QModelIndex& index) const;
  // Invalid when there is no such node.
  [[nodiscard]] QModelIndex IndexOfChannel(int slot) const;
  [[nodiscard]] QModelIndex IndexOfTransponder(int slot) const;
  // The number of a transponder's first channel, 0 when it has none.
  [[nodiscard]] int FirstChannel(int transponder) const;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  // What is typed finds names as well as numbers.
  [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                      Qt::MatchFlags flags) const override;

 private:
  // The group that an index stands for, -1 for a channel.
  [[nodiscard]] int Number(const QModelIndex& index) const;
  [[nodiscard]] QModelIndex IndexOfGroup(int group) const;
  void Rearrange(Routines::ListTree& now);
  void TellChanges(const Routines::ListTree& before);

  const RowLook& look_ = RowLook::OfProgram();
  const Document& document_;
  const std::vector<Routines::Satellite>& satellites_;
  Routines::ListTree::Shape shape_;
  Routines::ListTree tree_;
};

}  // namespace Ui
