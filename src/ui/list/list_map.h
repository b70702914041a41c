// A narrow strip beside the grid that shows the whole channel list at a glance: a band for every few slots in the
// colour of most of them, and which rows are selected.
#pragma once

#include "ui/list/document.h"

#include <QImage>
#include <QWidget>

namespace Ui {

class ListMap : public QWidget {
  Q_OBJECT

 public:
  ListMap(const Document& document, QWidget* parent);

  // Slots `first`..`last` are selected; 0, 0 for none.
  void ShowSelection(int first, int last);

  [[nodiscard]] QSize sizeHint() const override { return {16, 0}; }

 Q_SIGNALS:
  // The user points at a slot.
  void Chosen(int slot);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void Draw();
  [[nodiscard]] int SlotAt(int y) const;
  void Choose(const QMouseEvent& event);

  const Document& document_;
  QImage bands_;  // one pixel wide; made anew when the list or the height changes
  int first_ = 0;
  int last_ = 0;
};

}  // namespace Ui
