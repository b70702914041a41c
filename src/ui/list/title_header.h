// The titles of a grid's columns, on the system's colour for them.
#pragma once

#include <QHeaderView>

namespace Ui {

class Grid;

// It paints itself: a style sheet would bring the toolkit's whole machinery for them into the start.
class TitleHeader : public QHeaderView {
 public:
  TitleHeader(QWidget* parent, const Grid& grid);

 protected:
  [[nodiscard]] QSize sectionSizeFromContents(int column) const override;
  void paintSection(QPainter* painter, const QRect& section, int column) const override;

 private:
  [[nodiscard]] QString Title(int column) const;

  const Grid& grid_;
};

}  // namespace Ui
