#include "ui/kit/flow_layout.h"

#include <QStyle>
#include <QWidget>

namespace Ui {
namespace {

// A layout in another one has no spacing of its own before it is asked of the style.
int Gap(const FlowLayout& layout) {
  if (layout.spacing() >= 0) return layout.spacing();
  const QWidget* widget = layout.parentWidget();
  return widget == nullptr ? 6 : widget->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing);
}

}  // namespace

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item) { items_.emplace_back(item); }

int FlowLayout::count() const { return static_cast<int>(items_.size()); }

QLayoutItem* FlowLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  const auto place = items_.begin() + index;
  QLayoutItem* item = place->release();
  items_.erase(place);
  return item;
}

// Of each item, from the layout's own corner on.
std::vector<QRect> FlowLayout::Places(int width) const {
  const int gap = Gap(*this);
  std::vector<QRect> places;
  QPoint at;
  int rowHeight = 0;
  for (const auto& item : items_) {
    const QSize size = item->isEmpty() ? QSize(0, 0) : item->sizeHint();
    if (at.x() > 0 && at.x() + size.width() > width) {
      at = QPoint(0, at.y() + rowHeight + gap);
      rowHeight = 0;
    }
    places.emplace_back(at, size);
    if (!item->isEmpty()) at.rx() += size.width() + gap;
    rowHeight = std::max(rowHeight, size.height());
  }
  return places;
}

int FlowLayout::heightForWidth(int width) const {
  int bottom = 0;
  for (const QRect& place : Places(width)) bottom = std::max(bottom, place.y() + place.height());
  return bottom;
}

QSize FlowLayout::sizeHint() const {
  int right = 0;
  for (const QRect& place : Places(QWIDGETSIZE_MAX)) right = std::max(right, place.x() + place.width());
  return {right, heightForWidth(QWIDGETSIZE_MAX)};
}

QSize FlowLayout::minimumSize() const {
  QSize least;
  for (const auto& item : items_) least = least.expandedTo(item->isEmpty() ? QSize() : item->sizeHint());
  return least;
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const std::vector<QRect> places = Places(rect.width());
  for (std::size_t i = 0; i < items_.size(); ++i)
    items_[i]->setGeometry(places[i].translated(rect.topLeft()));
}

}  // namespace Ui
