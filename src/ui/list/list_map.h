// A narrow strip beside the grid that shows the whole channel list at a glance: a band for every few slots in the
// colour of most of them, at the left which rows are selected, at the right which the filter finds.
#pragma once

#include "ui/list/document.h"

#include <QImage>
#include <QWidget>

#include <vector>

class QPainter;

namespace Ui {

class ListMap : public QWidget {
  Q_OBJECT

 public:
  ListMap(const Document& document, QWidget* parent);

  void ShowSelection(std::vector<int> slots);
  void ShowFound(std::vector<int> slots);

  [[nodiscard]] QSize sizeHint() const override { return {16, 0}; }

 Q_SIGNALS:
  // The user points at a slot.
  void Chosen(int slot);

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void Draw();
  void DrawAnew();
  [[nodiscard]] int SlotAt(int y) const;
  void PaintSlots(QPainter& painter, const std::vector<int>& slots, int left, const QColor& colour) const;
  void Choose(const QMouseEvent& event);

  const Document& document_;
  QImage bands_;  // one pixel wide; made anew when the list or the height changes
  std::vector<int> selected_;
  std::vector<int> found_;
};

}  // namespace Ui
