#include "ui/kit/side_part.h"

#include "ui/kit/screen_fit.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Ui {

SidePart::SidePart(QSplitter& parts)
    : QSplitter(Qt::Vertical, &parts),
      parts_(parts),
      upper_(new QWidget(this)),
      panes_(new QVBoxLayout(upper_)) {
  setObjectName("ParteDestra");
  setChildrenCollapsible(false);
  panes_->setContentsMargins(0, 0, 0, 0);
  setStretchFactor(0, 1);
  upper_->hide();
  hide();
}

void SidePart::Add(QWidget& pane, Kind kind) {
  panes_->addWidget(&pane);
  if (kind == Kind::Wide) wide_ += &pane;
  Watch(pane);
}

void SidePart::Watch(QWidget& part) {
  part.removeEventFilter(this);
  part.installEventFilter(this);
}

void SidePart::Dock(QWidget& widget) {
  docked_ = &widget;
  widget.hide();  // the toolkit would show it before it has its place
  addWidget(&widget);
  setStretchFactor(indexOf(&widget), 1);
  Watch(widget);
  widget.show();
}

bool SidePart::HasRoom(int lines, int letters) const {
  constexpr int AroundText = 6;
  const int beside = isHidden() ? WidthOf(Kind::Narrow) : width();
  return parts_.height() >= lines * (fontMetrics().height() + AroundText) &&
         parts_.width() - beside - parts_.handleWidth() >= Letters(*this, letters);
}

bool SidePart::eventFilter(QObject* watched, QEvent* event) {
  const bool gone = watched == docked_ && event->type() == QEvent::ParentChange && docked_->parent() != this;
  if (gone) docked_ = nullptr;
  if (gone || event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) Follow();
  return QSplitter::eventFilter(watched, event);
}

bool SidePart::Shows(Kind kind) const {
  for (int i = 0; i < panes_->count(); ++i) {
    QWidget* pane = panes_->itemAt(i)->widget();
    if (!pane->isHidden() && (kind == Kind::Wide) == wide_.contains(pane)) return true;
  }
  return false;
}

// Before anything takes another place.
void SidePart::Remember() {
  if (!isVisible()) return;
  widths_[static_cast<std::size_t>(kind_)] = width();
  if (both_ && docked_ != nullptr) height_ = docked_->height();
}

void SidePart::Follow() {
  Remember();
  const bool wide = Shows(Kind::Wide);
  const bool pane = wide || Shows(Kind::Narrow);
  const bool docked = docked_ != nullptr && !docked_->isHidden();
  const Kind before = kind_;
  const bool wasHidden = isHidden();
  kind_ = wide ? Kind::Wide : Kind::Narrow;
  upper_->setVisible(pane);
  setVisible(pane || docked);
  if (!isHidden() && (wasHidden || kind_ != before)) ShareWidth();
  if (std::exchange(both_, pane && docked) != both_ && both_) ShareHeight();
}

int SidePart::WidthOf(Kind kind) const {
  const int seen = widths_[static_cast<std::size_t>(kind)];
  if (seen == 0 && kind == Kind::Wide) return parts_.width() / 2;
  const int usual = std::max(upper_->sizeHint().width(), Letters(*this, 40));
  return std::min(seen == 0 ? usual : seen, parts_.width() * 2 / 3);
}

void SidePart::ShareWidth() {
  const int width = WidthOf(kind_);
  parts_.setStretchFactor(parts_.indexOf(this), kind_ == Kind::Wide ? 1 : 0);
  parts_.setSizes({parts_.width() - parts_.handleWidth() - width, width});
}

void SidePart::ShareHeight() {
  const int whole = parts_.height() - handleWidth();
  const int below = height_ == 0 ? whole * 11 / 20 : height_;
  QList<int> sizes(count(), 0);
  sizes[0] = whole - below;
  sizes[indexOf(docked_)] = below;
  setSizes(sizes);
}

QString SidePart::Sizes() {
  Remember();
  return QString("%1 %2 %3").arg(widths_[0]).arg(widths_[1]).arg(height_);
}

void SidePart::Restore(const QString& sizes) {
  const QStringList numbers = sizes.split(' ');
  if (numbers.size() != 3) return;
  widths_ = {std::max(numbers[0].toInt(), 0), std::max(numbers[1].toInt(), 0)};
  height_ = std::max(numbers[2].toInt(), 0);
}

}  // namespace Ui
