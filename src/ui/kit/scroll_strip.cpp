#include "ui/kit/scroll_strip.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>

namespace Ui {
namespace {

void SetUp(QScrollArea& area) {
  area.setFrameShape(QFrame::NoFrame);
  area.setFocusPolicy(Qt::NoFocus);
  area.setWidgetResizable(true);
}

// All of a control that can be shown, from its top on.
void ShowWhole(QScrollArea& area, const QWidget& control) {
  QScrollBar& bar = *area.verticalScrollBar();
  const int top = control.mapTo(area.widget(), QPoint(0, 0)).y();
  const int bottom = top + control.height() - area.viewport()->height();
  bar.setValue(std::min(std::max(bar.value(), bottom), top));
}

}  // namespace

QScrollArea* InScrollArea(QWidget* contents, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  SetUp(*area);
  area->setMinimumSize(320, 200);
  area->setWidget(contents);
  return area;
}

// Of a list the toolkit shows no more than the current row. What the mouse has come to is in sight, and has to stay
// below the pointer.
void FollowFocus(QScrollArea& area) {
  QObject::connect(qApp, &QApplication::focusChanged, &area, [&area](const QWidget*, const QWidget* now) {
    if (now != nullptr && area.widget()->isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton)
      ShowWhole(area, *now);
  });
}

ScrollStrip::ScrollStrip(QWidget* row, QWidget* parent) : QScrollArea(parent) {
  SetUp(*this);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setWidget(row);  // which is watched from now on
  FitHeight();
}

QSize ScrollStrip::minimumSizeHint() const { return {fontMetrics().averageCharWidth() * 20, height()}; }

QSize ScrollStrip::sizeHint() const { return {widget()->sizeHint().width(), height()}; }

void ScrollStrip::FitHeight() {
  const bool scrolled = widget()->minimumSizeHint().width() > width();
  setFixedHeight(widget()->sizeHint().height() + (scrolled ? horizontalScrollBar()->sizeHint().height() : 0));
}

void ScrollStrip::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  FitHeight();
}

bool ScrollStrip::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) FitHeight();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace Ui
