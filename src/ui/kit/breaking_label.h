// A text that breaks its lines between words, and inside a word where that is longer than a line, as paths are.
#pragma once

#include <QLabel>
#include <QTextDocument>

namespace Ui {

class BreakingLabel : public QLabel {
  Q_OBJECT

 public:
  // No line is wider than `widest` pixels.
  BreakingLabel(const QString& text, int widest, QWidget* parent);

  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  mutable QTextDocument lines_;
  int widest_;
};

}  // namespace Ui
