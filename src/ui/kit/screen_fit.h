// Sizes that go by the letters and by the screen.
#pragma once

#include <QObject>
#include <QSize>

class QDialog;
class QWidget;

namespace Ui {

// The room that `count` letters of usual width take in a widget's font.
int Letters(const QWidget& widget, int count);

// Gives a window the size that looks right with the toolkit's usual letters, more where letters are larger, and never
// more than the screen has.
void ResizeOnScreen(QWidget& window, QSize usual);

// Keeps room for that many lines, a heading among them, in a list that its window would press together.
void KeepLines(QWidget& list, int lines);

// Says what the toolkit's own button is for that leads to the tools for which a toolbar in `shown` has no room.
void NameMoreButton(const QWidget& shown);

// Large letters on a small screen may want more room than there is: the contents of such a dialog are scrolled, so that
// its last button is within reach. Watches a whole application.
class ScreenFit : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace Ui
