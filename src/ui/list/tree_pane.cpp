#include "ui/list/tree_pane.h"

#include "ui/kit/pane_head.h"
#include "ui/kit/text.h"
#include "ui/list/row_look.h"

#include <QSet>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QVBoxLayout>

namespace Ui {

using Routines::ListTree;

namespace {

constexpr int Indentation = 16;  // pixels of a branch

// Rows that are easy to hit.
class RoomyRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 4);
  }
};

}  // namespace

void BranchView::keyPressEvent(QKeyEvent* event) {
  const QPersistentModelIndex before = currentIndex();
  QTreeView::keyPressEvent(event);
  if (currentIndex() != before) Q_EMIT Walked(currentIndex());
}

TreePane::TreePane(const Document& document, const std::vector<Routines::Satellite>& satellites,
                   ListTree::Shape shape, const QString& name, const QString& caption, QWidget* parent)
    : QWidget(parent), model_(document, satellites, shape, this), name_(name), caption_(caption) {
  connect(&document, &Document::Changed, this, &TreePane::Refresh);
}

void TreePane::Build() {
  tree_ = new BranchView(this);
  tree_->setObjectName(name_);
  tree_->setAccessibleName(caption_);
  tree_->setFont(letters_);
  tree_->setHeaderHidden(true);
  tree_->setUniformRowHeights(true);
  tree_->setTextElideMode(Qt::ElideRight);
  tree_->setIndentation(Indentation);
  tree_->setIconSize(QSize(10, 10));
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_->setItemDelegate(new RoomyRows(tree_));
  tree_->setModel(&model_);
  connect(tree_, &QTreeView::clicked, this, &TreePane::Choose);
  connect(tree_, &BranchView::Walked, this, &TreePane::Choose);
  connect(&RowLook::OfProgram(), &RowLook::Changed, tree_->viewport(), qOverload<>(&QWidget::update));

  auto* head = new PaneHead(name_, caption_, this);
  connect(&head->Close(), &QToolButton::clicked, this, &TreePane::Closed);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  column->addLayout(head);
  column->addWidget(tree_, 1);
  // The keys come to both where the pane has its place, not behind everything that was made before them.
  setFocusPolicy(Qt::TabFocus);
  setTabOrder(this, tree_);
  setTabOrder(tree_, &head->Close());
  setFocusPolicy(Qt::NoFocus);
}

void TreePane::setVisible(bool visible) {
  if (visible && tree_ == nullptr) Build();
  QWidget::setVisible(visible);
}

void TreePane::SetLetters(const QFont& font) {
  letters_ = font;
  if (tree_ != nullptr) tree_->setFont(font);
}

QSize TreePane::sizeHint() const {
  const int row = fontMetrics().horizontalAdvance("SAT A  Un satellite (0000)") + 4 * Indentation;
  return {std::max(240, row), 400};
}

void TreePane::Refresh() {
  stale_ = isHidden();
  if (stale_) return;
  const bool empty = model_.rowCount() == 0;
  model_.Refresh();
  if (empty) OpenFirst();
  if (!tree_->currentIndex().isValid()) Q_EMIT CurrentWanted();
}

void TreePane::ForBranches(const QModelIndex& parent, const QString& path, const Visit& visit) const {
  for (int row = 0; row < model_.rowCount(parent); ++row) {
    const QModelIndex index = model_.index(row, 0, parent);
    const ListTree::Group* group = model_.GroupOf(index);
    if (group == nullptr) return;  // nor are the channels beside it any
    const QString branch = path + '/' + QString::number(group->number) + CodePageText(group->code);
    visit(index, branch);
    if (tree_->isExpanded(index)) ForBranches(index, branch, visit);
  }
}

QStringList TreePane::OpenBranches() const {
  if (model_.rowCount() == 0) return atFirst_;
  QStringList open;
  ForBranches({}, {}, [&](const QModelIndex& index, const QString& branch) {
    if (tree_->isExpanded(index)) open += branch;
  });
  return open;
}

void TreePane::OpenFirst() {
  if (atFirst_.isEmpty()) return tree_->expandToDepth(0);
  const QSet<QString> open(atFirst_.begin(), atFirst_.end());
  ForBranches({}, {}, [&](const QModelIndex& index, const QString& branch) {
    tree_->setExpanded(index, open.contains(branch));
  });
}

void TreePane::showEvent(QShowEvent* event) {
  if (stale_) Refresh();
  QWidget::showEvent(event);
  Q_EMIT CurrentWanted();
}

void TreePane::ShowChannel(int slot) { Show(model_.IndexOfChannel(slot)); }

void TreePane::ShowTransponder(int slot) { Show(model_.IndexOfTransponder(slot)); }

// A hidden tree is out of date; it asks when it comes up.
void TreePane::Show(const QModelIndex& index) {
  if (isHidden() || index == tree_->currentIndex()) return;
  if (index.isValid()) {
    tree_->setCurrentIndex(index);
  } else {
    tree_->selectionModel()->clear();
  }
}

void TreePane::Choose(const QModelIndex& index) {
  if (const ListTree::Channel* channel = model_.ChannelOf(index); channel != nullptr) {
    Q_EMIT ChannelChosen(channel->slot);
    return;
  }
  const ListTree::Group* group = model_.GroupOf(index);
  if (group != nullptr && group->kind == ListTree::Kind::Transponder)
    Q_EMIT TransponderChosen(group->number, model_.FirstChannel(group->number));
}

}  // namespace Ui
