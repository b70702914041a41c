// One of the two trees beside the list, with its caption.
#pragma once

#include "ui/list/tree_model.h"

#include <QTreeView>

#include <functional>

namespace Ui {

// Tells where the keys have taken the current node, which a view alone does not tell from what the program does.
class BranchView : public QTreeView {
  Q_OBJECT

 public:
  using QTreeView::QTreeView;

 Q_SIGNALS:
  void Walked(const QModelIndex& index);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

class TreePane : public QWidget {
  Q_OBJECT

 public:
  // `name` is the control name of the tree.
  TreePane(const Document& document, const std::vector<Routines::Satellite>& satellites,
           Routines::ListTree::Shape shape, const QString& name, const QString& caption, QWidget* parent);

  // While the tree is shown: makes a channel or a transponder current, with its branch open. Nothing is current where
  // there is no such node.
  void ShowChannel(int slot);
  void ShowTransponder(int slot);

  // The control name of the tree, which is made when it is first shown: most sessions never see more than one of the two.
  [[nodiscard]] const QString& Name() const { return name_; }
  void SetLetters(const QFont& font);
  // The branches that are open, by what they stand for, so that they can be opened in a later session: when the first
  // list comes. Without any the satellites are.
  [[nodiscard]] QStringList OpenBranches() const;
  void OpenAtFirst(const QStringList& branches) { atFirst_ = branches; }

  [[nodiscard]] QSize sizeHint() const override;
  void setVisible(bool visible) override;

 Q_SIGNALS:
  // The user has come to a node.
  void ChannelChosen(int slot);
  void TransponderChosen(int slot, int firstChannel);
  void Closed();
  // The tree comes up, or an edit has left nothing current.
  void CurrentWanted();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Build();
  void Refresh();
  void OpenFirst();
  void Show(const QModelIndex& index);
  void Choose(const QModelIndex& index);

  // Goes through the branches below an open one, with a text for each.
  using Visit = std::function<void(const QModelIndex& index, const QString& branch)>;
  void ForBranches(const QModelIndex& parent, const QString& path, const Visit& visit) const;

  TreeModel model_;
  QString name_, caption_;
  QFont letters_;
  BranchView* tree_ = nullptr;
  QStringList atFirst_;
  bool stale_ = true;
};

}  // namespace Ui
