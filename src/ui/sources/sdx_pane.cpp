#include "ui/sources/sdx_pane.h"

#include "ui/kit/elided_label.h"
#include "ui/kit/pane_head.h"
#include "ui/kit/text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace Ui {

SdxPane::SdxPane(const Formats::SdxTable& table, QWidget* parent)
    : QWidget(parent),
      model_(table, this),
      head_(new PaneHead("SDX", "SDX", this)),
      count_(new QLabel(this)),
      filter_(new FilterBar(
          "SDX", "Nome, numero, sat:A, radio…",
          [this](const Review::Filter& words) { return model_.Matching(words); }, this)),
      grid_(new Grid(this, 2)),
      hits_(new Finder(*filter_, *grid_, this)) {
  head_->Caption().setObjectName("EtichettaSDX");
  count_->setObjectName("ConteggioSDX");
  head_->Add(count_);
  head_->Add(filter_, 1);
  connect(&head_->Close(), &QToolButton::clicked, this, &SdxPane::CloseWanted);
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

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  column->addLayout(head_);
  column->addWidget(grid_, 1);
}

void SdxPane::Refresh(const QString& name) {
  name_ = name;
  model_.Refresh();
  grid_->ShowList(&model_);
  head_->Caption().Show(name.isEmpty() ? QString("SDX") : "SDX: " + name);
  count_->setText(Counted(model_.rowCount(), "riga", "righe"));
  filter_->SetOnly(false);
  filter_->Refresh();
  if (name == leftName_) grid_->ComeBackTo(left_);
}

void SdxPane::KeepPlace() {
  if (model_.rowCount() > 0 && grid_->model() != nullptr) SetLeft(name_, grid_->Place());
}

void SdxPane::SetLeft(const QString& name, const GridPlace& place) {
  leftName_ = name;
  left_ = place;
}

// Most of the time the pane is never looked at.
void SdxPane::showEvent(QShowEvent* event) {
  if (grid_->model() == nullptr) grid_->ShowList(&model_);
  Q_EMIT Shown();
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
