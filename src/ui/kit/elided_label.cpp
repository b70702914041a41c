#include "ui/kit/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace Ui {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget* parent) : QLabel(parent), mode_(mode) {
  setTextFormat(Qt::PlainText);
}

void ElidedLabel::Show(const QString& text, const QString& tip) {
  QString line = text;
  // A file's name may have line breaks in it.
  for (QChar& c : line) {
    if (c < ' ' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) c = ' ';
  }
  setText(line);
  // A tip without a tag would show its escapes.
  setToolTip("<span>" + (tip.isEmpty() ? text : tip).toHtmlEscaped() + "</span>");
  setAccessibleDescription(tip.isEmpty() ? line : tip);  // it would be the tool tip, tags and all
}

QSize ElidedLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()) + contentsMargins().left() + contentsMargins().right() + 2,
          fontMetrics().height() + 4};
}

QSize ElidedLabel::minimumSizeHint() const {
  const QSize whole = sizeHint();
  return whole.boundedTo({fontMetrics().averageCharWidth() * 12, whole.height()});
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        fontMetrics().elidedText(text(), mode_, contentsRect().width()), foregroundRole());
}

}  // namespace Ui
