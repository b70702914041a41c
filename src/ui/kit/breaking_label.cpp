#include "ui/kit/breaking_label.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextOption>

#include <cmath>

namespace Ui {

BreakingLabel::BreakingLabel(const QString& text, int widest, QWidget* parent)
    : QLabel(text, parent), widest_(widest) {
  setTextFormat(Qt::PlainText);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  lines_.setDefaultFont(font());
  lines_.setDocumentMargin(0);
  QTextOption breaks;
  breaks.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  lines_.setDefaultTextOption(breaks);
  lines_.setPlainText(text);
}

int BreakingLabel::heightForWidth(int width) const {
  lines_.setTextWidth(width);
  return static_cast<int>(std::ceil(lines_.size().height()));
}

QSize BreakingLabel::sizeHint() const {
  lines_.setTextWidth(-1);
  const int width = std::min(static_cast<int>(std::ceil(lines_.idealWidth())), widest_);
  return {width, heightForWidth(width)};
}

void BreakingLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette = palette();
  context.palette.setColor(QPalette::Text, palette().color(foregroundRole()));
  lines_.setTextWidth(width());
  lines_.documentLayout()->draw(&painter, context);
}

}  // namespace Ui
