#include "ui/list/row_look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

#include <utility>

namespace Ui {
namespace {

QColor Mixed(const QColor& one, const QColor& other, double share) {
  const auto part = [share](int from, int to) { return qRound(from + (to - from) * share); };
  return {part(one.red(), other.red()), part(one.green(), other.green()), part(one.blue(), other.blue())};
}

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

QColor GroundOf(const QModelIndex& cell) { return cell.data(Qt::BackgroundRole).value<QBrush>().color(); }

}  // namespace

RowLook& RowLook::OfProgram() {
  auto* look = qApp->findChild<RowLook*>(QString(), Qt::FindDirectChildrenOnly);
  return look != nullptr ? *look : *new RowLook(qApp);
}

void RowLook::SetSoft(bool soft) {
  if (std::exchange(soft_, soft) != soft) Q_EMIT Changed();
}

// Greys, which say that a row holds less, lie between the ground and its letters.
QColor RowLook::Ground(const QColor& colour, const QPalette& palette) const {
  if (!soft_) return colour;
  const QColor& ground = palette.color(QPalette::Base);
  if (colour.hsvSaturation() != 0) return Mixed(ground, colour, IsDark(palette) ? 0.2 : 0.24);
  return Mixed(ground, palette.color(QPalette::Text), 0.5 * (255 - colour.value()) / 255);
}

QColor RowLook::Mark(const QColor& colour, const QPalette& palette) const {
  return soft_ ? colour.darker(IsDark(palette) ? 150 : 120) : colour;
}

RowDelegate::RowDelegate(QAbstractItemView* view) : QStyledItemDelegate(view), look_(RowLook::OfProgram()) {
  connect(&look_, &RowLook::Changed, view->viewport(), qOverload<>(&QWidget::update));
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  constexpr double WhereSelected = 0.1;
  const QColor text = look_.Soft() ? option->palette.color(QPalette::Text) : QColor();
  QStyledItemDelegate::initStyleOption(option, index);
  if (!look_.Soft() || option->backgroundBrush.style() == Qt::NoBrush) return;
  option->palette.setColor(QPalette::Text, text);  // the model's letters go with its own colours
  const QColor ground = look_.Ground(option->backgroundBrush.color(), option->palette);
  const bool selected = option->state.testFlag(QStyle::State_Selected);
  option->backgroundBrush = selected ? Mixed(ground, text, WhereSelected) : ground;
  option->state.setFlag(QStyle::State_Selected, false);
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  constexpr int Line = 2;
  QStyledItemDelegate::paint(painter, option, index);
  if (!look_.Soft() || !option.state.testFlag(QStyle::State_Selected)) return;
  const QColor frame = option.palette.color(QPalette::Highlight);
  const QRect& row = option.rect;
  painter->fillRect(QRect(row.topLeft(), QSize(row.width(), Line)), frame);
  painter->fillRect(QRect(row.left(), row.bottom() + 1 - Line, row.width(), Line), frame);
}

void RowDelegate::PaintStrip(QPainter& painter, const QStyleOptionViewItem& option,
                             const QModelIndex& cell) const {
  constexpr int Palest = 0xE0;  // of the greys
  if (!look_.Soft()) return;
  const QColor colour = GroundOf(cell);
  if (colour.hsvSaturation() == 0 && colour.value() >= Palest) return;
  const QRect& row = option.rect;
  painter.fillRect(QRect(row.right() + 1 - StripWidth, row.top(), StripWidth, row.height()),
                   look_.Mark(colour, option.palette));
}

}  // namespace Ui
