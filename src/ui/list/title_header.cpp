#include "ui/list/title_header.h"

#include "ui/list/grid.h"
#include "ui/list/row_colours.h"
#include "ui/list/row_look.h"

#include <QPainter>

namespace Ui {
namespace {

constexpr int Beside = 4;
constexpr int Above = 5;
constexpr int Line = 1;

}  // namespace

TitleHeader::TitleHeader(QWidget* parent, const Grid& grid)
    : QHeaderView(Qt::Horizontal, parent), grid_(grid) {
  setSectionsClickable(true);
  connect(&RowLook::OfProgram(), &RowLook::Changed, viewport(), qOverload<>(&QWidget::update));
}

QString TitleHeader::Title(int column) const {
  if (model() == nullptr) return {};  // on the way from one list to another
  return grid_.SortMark(column) + model()->headerData(column, Qt::Horizontal).toString();
}

QSize TitleHeader::sectionSizeFromContents(int column) const {
  return {fontMetrics().horizontalAdvance(Title(column)) + 2 * Beside + Line,
          fontMetrics().height() + 2 * Above + Line};
}

// A title that is wider than its column keeps its beginning: in the middle it would lose both its ends.
void TitleHeader::paintSection(QPainter* painter, const QRect& section, int column) const {
  const RowLook& look = RowLook::OfProgram();
  const QColor line = look.Mark(QColor(0x7f, 0xb9, 0x7f), palette());
  painter->fillRect(section, look.Ground(ToColor(Colours::Header), palette()));
  painter->fillRect(QRect(section.right(), section.top(), Line, section.height()), line);
  painter->fillRect(QRect(section.left(), section.bottom(), section.width(), Line), line);

  const QRect room = section.adjusted(Beside, Above, -Beside - Line, -Above - Line);
  const int alignment = model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
  painter->setPen(look.Soft() ? palette().color(QPalette::Text) : TextOn(Colours::Header));
  painter->drawText(room, alignment | Qt::AlignVCenter,
                    fontMetrics().elidedText(Title(column), Qt::ElideRight, room.width()));
}

}  // namespace Ui
