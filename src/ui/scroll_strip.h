// A row of controls as high as it needs to be, which is scrolled sideways where the window is too narrow for it.
#pragma once

#include <QScrollArea>

namespace Ui {

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
