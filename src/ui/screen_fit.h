// Sizes that go by the letters and by the screen.
#pragma once

#include <QSize>

class QWidget;

namespace Ui {

// The room that `count` letters of usual width take in a widget's font.
int Letters(const QWidget& widget, int count);

// Gives a window the size that looks right with the toolkit's usual letters, more where letters are larger, and never
// more than the screen has.
void ResizeOnScreen(QWidget& window, QSize usual);

}  // namespace Ui
