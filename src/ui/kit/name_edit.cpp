#include "ui/kit/name_edit.h"

#include "base/code_page.h"

#include <QPainter>

namespace Ui {
namespace {

constexpr int HintMargin = 4;

}  // namespace

NameEdit::NameEdit(int most, QWidget* parent) : QLineEdit(parent), most_(most) {
  connect(this, &QLineEdit::textChanged, this, &NameEdit::MakeRoom);
  MakeRoom();
}

// One byte of the code page is one character.
QString NameEdit::Hint() const {
  if (!Base::FromUtf8(text().toStdString())) return "carattere non ammesso";
  const int left = most_ - static_cast<int>(text().size());
  if (left < 0) return QString("%1 di troppo").arg(-left);
  return left == 1 ? "resta 1" : QString("restano %1").arg(left);
}

// For the hint, while it is shown.
void NameEdit::MakeRoom() {
  setTextMargins(0, 0, hasFocus() ? fontMetrics().horizontalAdvance(Hint()) + HintMargin : 0, 0);
}

void NameEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  MakeRoom();
}

void NameEdit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  MakeRoom();
}

void NameEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!hasFocus()) return;
  const QString hint = Hint();
  const bool wrong = !hint.startsWith("rest");
  QPainter painter(this);
  const bool dark = palette().color(QPalette::Base).lightness() < 128;
  const QColor red = dark ? QColor(255, 130, 130) : QColor(200, 0, 0);
  painter.setPen(wrong ? red : palette().color(QPalette::PlaceholderText));
  painter.drawText(rect().adjusted(0, 0, -HintMargin - 2, 0), Qt::AlignRight | Qt::AlignVCenter, hint);
}

}  // namespace Ui
