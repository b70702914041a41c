#include "ui/sources/sdx_pane.h"

#include "ui/kit/elided_label.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace Ui {

SdxPane::SdxPane(const Formats::SdxTable& table, QWidget* parent)
    : QWidget(parent),
      model_(table, this),
      caption_(new ElidedLabel(Qt::ElideRight, this)),
      filter_(new FilterBar(
          "SDX", "Nome, numero, sat:A, radio…",
          [this](const Review::Filter& words) { return model_.Matching(words); }, this)),
      grid_(new Grid(this)),
      hits_(new Finder(*filter_, *grid_, this)) {
  caption_->setObjectName("EtichettaSDX");
  QFont bold = caption_->font();
  bold.setBold(true);
  caption_->setFont(bold);
  caption_->Show("SDX");
  grid_->setObjectName("GrigliaSDX");
  grid_->setAccessibleName("Canali SDX");
  grid_->setAcceptDrops(false);
  grid_->installEventFilter(this);
  connect(grid_, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { Q_EMIT Chosen(index.row() + 1); });
  connect(filter_, &FilterBar::Changed, this, [this] {
    model_.SetFound(filter_->Matches());
    hits_->Show(true);
  });

  auto* head = new QHBoxLayout;
  head->addWidget(caption_);
  head->addWidget(filter_, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  column->addLayout(head);
  column->addWidget(grid_, 1);
}

void SdxPane::Refresh(const QString& name) {
  name_ = name;
  model_.Refresh();
  grid_->ShowList(&model_);
  caption_->Show(name.isEmpty() ? QString("SDX") : "SDX: " + name);
  filter_->SetOnly(false);
  filter_->Refresh();
}

// Most of the time the pane is never looked at.
void SdxPane::showEvent(QShowEvent* event) {
  if (grid_->model() == nullptr) grid_->ShowList(&model_);
  QWidget::showEvent(event);
}

bool SdxPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* pressed = static_cast<QKeyEvent*>(event);
    if (pressed->matches(QKeySequence::Copy)) {
      Q_EMIT CopyWanted();
      return true;
    }
    const int key = pressed->key();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && grid_->currentIndex().isValid()) {
      Q_EMIT Chosen(grid_->currentIndex().row() + 1);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace Ui
