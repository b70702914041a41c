// What the windows beside the main one have in common: how they are opened, their buttons and their keys.
#pragma once

#include "ui/session/commands.h"

#include <QDialog>

#include <functional>
#include <initializer_list>

class QLayout;
class QPushButton;

namespace Ui {

class ToolWindow : public QDialog {
  Q_OBJECT

 public:
  // `name` is the control name. A window that is closed goes away.
  ToolWindow(const char* name, const QString& title, QWidget* parent);

  // Shows it in front of the others.
  void BringUp();

 protected:
  // Undo, redo and `more` commands work here by their keys, as they do in the main window.
  void TakeKeys(const QMainWindow& window, std::initializer_list<CommandName> more = {});

  // A button that Enter leaves alone; what it is pressed for may be connected later.
  QPushButton* AddButton(QLayout& row, const char* name, const QString& caption,
                         const std::function<void()>& run = {});
  // `left`, and behind it the button that closes the window.
  QLayout* WithClose(QLayout* left, const char* name);

  // Gives its controls their tips.
  void showEvent(QShowEvent* event) override;
};

// The window of a kind that is open beside `parent`; none where there is none, or one that is about to go away.
template <class Window>
Window* OpenWindow(const QWidget& parent) {
  for (Window* window : parent.findChildren<Window*>(Qt::FindDirectChildrenOnly)) {
    if (window->isVisible()) return window;
  }
  return nullptr;
}

}  // namespace Ui
