#include "ui/scroll_strip.h"

#include <QEvent>
#include <QScrollBar>

namespace Ui {
namespace {

void SetUp(QScrollArea& area) {
  area.setFrameShape(QFrame::NoFrame);
  area.setFocusPolicy(Qt::NoFocus);
  area.setWidgetResizable(true);
}

}  // namespace

QScrollArea* InScrollArea(QWidget* contents, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  SetUp(*area);
  area->setMinimumSize(320, 200);
  area->setWidget(contents);
  return area;
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
