#include "ui/kit/pane_head.h"

#include "ui/kit/elided_label.h"

#include <QToolButton>

namespace Ui {

PaneHead::PaneHead(const QString& name, const QString& caption, QWidget* pane)
    : caption_(new ElidedLabel(Qt::ElideRight, pane)), close_(new QToolButton(pane)) {
  QFont bold = caption_->font();
  bold.setBold(true);
  caption_->setFont(bold);
  caption_->Show(caption);
  close_->setObjectName("Chiudi" + name);
  close_->setText("✕");
  close_->setAutoRaise(true);
  close_->setAccessibleName("Chiudi");
  close_->setToolTip("Chiudi");
  addWidget(caption_, 1);
  addWidget(close_);
}

void PaneHead::Add(QWidget* widget, int stretch) {
  setStretchFactor(caption_, stretch == 0 ? 1 : 0);
  insertWidget(count() - 1, widget, stretch);
}

}  // namespace Ui
