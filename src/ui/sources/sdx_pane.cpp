#include "ui/sources/sdx_pane.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace Ui {

SdxPane::SdxPane(const Formats::SdxTable& table, QWidget* parent)
    : QWidget(parent), model_(table, this), caption_(new QLabel("SDX", this)), grid_(new Grid(this)) {
  caption_->setObjectName("EtichettaSDX");
  caption_->setTextFormat(Qt::PlainText);
  QFont bold = caption_->font();
  bold.setBold(true);
  caption_->setFont(bold);
  grid_->setObjectName("GrigliaSDX");
  grid_->setAccessibleName("Canali SDX");
  grid_->setAcceptDrops(false);
  grid_->installEventFilter(this);
  connect(grid_, &QTableView::doubleClicked, this,
          [this](const QModelIndex& index) { Q_EMIT Chosen(index.row() + 1); });

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  caption_->setMinimumHeight(
      QLineEdit().sizeHint().height());  // as high as the filter above the list beside it
  column->addWidget(caption_);
  column->addWidget(grid_, 1);
}

void SdxPane::Refresh(const QString& name) {
  name_ = name;
  model_.Refresh();
  grid_->ShowList(&model_);
  caption_->setText(name.isEmpty() ? QString("SDX") : "SDX: " + name);
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
