// A label that cuts its text to the room it has, with dots, and shows the whole of it in its tip.
#pragma once

#include <QLabel>

namespace Ui {

class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  ElidedLabel(Qt::TextElideMode mode, QWidget* parent);

  // Plain text; `tip` is shown instead of the text where it says more.
  void Show(const QString& text, const QString& tip = {});

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Qt::TextElideMode mode_;
};

}  // namespace Ui
