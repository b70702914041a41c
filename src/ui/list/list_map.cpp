#include "ui/list/list_map.h"

#include "ui/list/row_colours.h"
#include "ui/list/row_look.h"

#include <QMouseEvent>
#include <QPainter>

#include <map>

namespace Ui {
namespace {

constexpr int MarkWidth = 6;

// What most of the slots are.
Routines::RowKind MostlyIn(const Routines::State& state, int first, int end) {
  std::map<Routines::RowKind, int> counts;
  Routines::RowKind most = Routines::RowKind::EmptySlot;
  for (int slot = first; slot < end; ++slot) {
    const Routines::RowKind kind = Routines::ChannelRowKind(state, slot);
    if (++counts[kind] > counts[most]) most = kind;
  }
  return most;
}

}  // namespace

ListMap::ListMap(const Document& document, QWidget* parent) : QWidget(parent), document_(document) {
  setObjectName("MappaLista");
  setAccessibleName("Mappa della lista");
  setToolTip("Mappa della lista: un clic porta alla riga");
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
  setCursor(Qt::PointingHandCursor);
  connect(&document, &Document::Changed, this, &ListMap::DrawAnew);
  connect(&RowLook::OfProgram(), &RowLook::Changed, this, &ListMap::DrawAnew);
}

void ListMap::DrawAnew() {
  bands_ = {};
  update();
}

void ListMap::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) DrawAnew();
  QWidget::changeEvent(event);
}

void ListMap::ShowSelection(std::vector<int> slots) {
  selected_ = std::move(slots);
  update();
}

void ListMap::ShowFound(std::vector<int> slots) {
  found_ = std::move(slots);
  update();
}

int ListMap::SlotAt(int y) const {
  const int count = document_.Tables().ChannelCount;
  return std::clamp(1 + y * count / std::max(height(), 1), 1, std::max(count, 1));
}

void ListMap::Draw() {
  bands_ = QImage(1, height(), QImage::Format_RGB32);
  const Routines::State& state = document_.Tables();
  const RowLook& look = RowLook::OfProgram();
  for (int y = 0; y < height(); ++y) {
    const int first = SlotAt(y);
    const QColor colour = ToColor(ColourOf(MostlyIn(state, first, std::max(SlotAt(y + 1), first + 1))));
    bands_.setPixelColor(0, y, look.Mark(colour, palette()));
  }
}

void ListMap::paintEvent(QPaintEvent*) {
  const int count = document_.Tables().ChannelCount;
  if (count == 0 || height() < 1) return;
  if (bands_.height() != height()) Draw();
  QPainter painter(this);
  painter.drawImage(rect(), bands_);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  PaintSlots(painter, found_, width() - MarkWidth, ToColor(Colours::Found));
  PaintSlots(painter, selected_, 0, palette().color(QPalette::Highlight));
}

// As marks high enough to be seen, each line of the strip once.
void ListMap::PaintSlots(QPainter& painter, const std::vector<int>& slots, int left,
                         const QColor& colour) const {
  constexpr int Least = 3;
  const int count = document_.Tables().ChannelCount;
  int painted = 0;
  for (const int slot : slots) {
    const int top = std::max((slot - 1) * height() / count, painted);
    painted = std::max({slot * height() / count, (slot - 1) * height() / count + Least, painted});
    painter.fillRect(QRect(left, top, MarkWidth, painted - top), colour);
  }
}

void ListMap::mousePressEvent(QMouseEvent* event) { Choose(*event); }

void ListMap::mouseMoveEvent(QMouseEvent* event) { Choose(*event); }

void ListMap::Choose(const QMouseEvent& event) {
  if ((event.buttons() & Qt::LeftButton) != 0 && document_.Tables().ChannelCount > 0) {
    Q_EMIT Chosen(SlotAt(static_cast<int>(event.position().y())));
  }
}

}  // namespace Ui
