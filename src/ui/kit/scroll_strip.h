// What is scrolled only where the window is too small for it: a whole window's contents, or a row of controls.
#pragma once

#include <QScrollArea>

namespace Ui {

QScrollArea* InScrollArea(QWidget* contents, QWidget* parent);

// The area shows all of the control that gets the focus, or its upper part.
void FollowFocus(QScrollArea& area);

// A row of controls as high as it needs to be, which is scrolled sideways.
class ScrollStrip : public QScrollArea {
 public:
  // Takes the row over.
  ScrollStrip(QWidget* row, QWidget* parent);

  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FitHeight();
};

}  // namespace Ui
