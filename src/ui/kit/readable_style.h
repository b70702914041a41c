// The toolkit's usual style, Fusion, made readable where it is not.
#pragma once

#include <QProxyStyle>

namespace Ui {

class ReadableStyle : public QProxyStyle {
 public:
  using QProxyStyle::polish;
  using QProxyStyle::QProxyStyle;

  // Keeps the text of selected rows and the hint in an empty field apart from what is behind them, and what is disabled in
  // sight.
  void polish(QPalette& palette) override;
  // Draws boxes, buttons and fields with an edge that shows on a dark ground, so that an unticked box does, and round
  // the current cell a frame instead of a veil over its text.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  // A menu that is higher than the screen scrolls; in columns it may be wider than the screen.
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  // The arrow to the buttons that a narrow window has no room for and the cross that empties a field: the style's own
  // are black also on a dark ground, and for their sake every reader of pictures would be loaded at each start.
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

// From 1 for colours that cannot be told apart to 21 for black on white; text wants 4.5.
double Contrast(const QColor& one, const QColor& other);

}  // namespace Ui
