#include "ui/kit/screen_fit.h"

#include "ui/kit/scroll_strip.h"

#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace Ui {
namespace {

// The frame stands around a window's size.
QSize RoomFor(const QWidget& window) {
  return window.screen()->availableGeometry().size() -
         QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

// The least that shows all of a dialog at a width.
QSize Wanted(const QLayout& layout, int width) {
  const QSize least = layout.totalMinimumSize();
  if (!layout.hasHeightForWidth()) return least;
  return {least.width(),
          std::max(least.height(), layout.totalMinimumHeightForWidth(std::max(least.width(), width)))};
}

void Scroll(QDialog& dialog, QSize room) {
  const QSize size = dialog.size();
  QWidget* focus = dialog.focusWidget();
  auto* contents = new QWidget(&dialog);
  contents->setLayout(dialog.layout());  // which takes the controls along
  auto* area = InScrollArea(contents, &dialog);
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(area);
  dialog.setMinimumSize(0, 0);
  dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  const QSize fitting = size.expandedTo(contents->sizeHint()).boundedTo(room);
  // A message box takes no more room than it has to.
  if (qobject_cast<QMessageBox*>(&dialog) != nullptr) area->setMinimumSize(fitting);
  dialog.resize(fitting);
  if (focus != nullptr) focus->setFocus();
}

void Fit(QDialog& dialog) {
  if (dialog.layout() == nullptr) return;
  const QSize room = RoomFor(dialog);
  const QSize wanted = Wanted(*dialog.layout(), std::min(dialog.width(), room.width()));
  if (wanted.boundedTo(room) != wanted) Scroll(dialog, room);
}

}  // namespace

// Where there is no font at all letters have no width, which widths are in proportion to.
int Letters(const QWidget& widget, int count) {
  return std::max(widget.fontMetrics().averageCharWidth(), 1) * count;
}

void ResizeOnScreen(QWidget& window, QSize usual) {
  constexpr double UsualHeight = 15;  // of a line of text
  const double scale = std::max(window.fontMetrics().height() / UsualHeight, 1.0);
  window.resize((usual * scale).boundedTo(RoomFor(window)));
}

void KeepLines(QWidget& list, int lines) {
  constexpr int AroundText = 6;
  list.setMinimumHeight(lines * (list.fontMetrics().height() + AroundText) +
                        list.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void NameMoreButton(const QWidget& shown) {
  for (auto* more : shown.findChildren<QToolButton*>("qt_toolbar_ext_button")) {
    more->setAccessibleName("Altri pulsanti");
    more->setToolTip("Altri pulsanti");
  }
}

bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show || event->spontaneous()) return false;
  auto* dialog = qobject_cast<QDialog*>(watched);
  if (dialog == nullptr || !dialog->isWindow()) return false;
  if (qobject_cast<QMessageBox*>(dialog) != nullptr) {
    // It breaks its lines while it is being shown.
    QMetaObject::invokeMethod(
        dialog, [dialog] { Fit(*dialog); }, Qt::QueuedConnection);
  } else {
    Fit(*dialog);
  }
  return false;
}

}  // namespace Ui
