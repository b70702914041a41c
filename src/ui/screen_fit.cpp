#include "ui/screen_fit.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace Ui {

int Letters(const QWidget& widget, int count) { return widget.fontMetrics().averageCharWidth() * count; }

void ResizeOnScreen(QWidget& window, QSize usual) {
  constexpr double UsualHeight = 15;  // of a line of text
  const double scale = std::max(window.fontMetrics().height() / UsualHeight, 1.0);
  // The frame stands around the size given.
  const QSize room = window.screen()->availableGeometry().size() -
                     QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
  window.resize((usual * scale).boundedTo(room));
}

}  // namespace Ui
