// The line above a pane: its caption in bold letters, what the pane puts behind that, and the button that closes it.
#pragma once

#include <QHBoxLayout>

class QToolButton;

namespace Ui {

class ElidedLabel;

class PaneHead : public QHBoxLayout {
 public:
  // `name` is the control name of what the pane shows. The widgets are the pane's.
  PaneHead(const QString& name, const QString& caption, QWidget* pane);

  // Puts a widget between caption and button, which takes the room that is left.
  void Add(QWidget* widget, int stretch = 0);

  [[nodiscard]] ElidedLabel& Caption() const { return *caption_; }
  [[nodiscard]] QToolButton& Close() const { return *close_; }

 private:
  ElidedLabel* caption_;
  QToolButton* close_;
};

}  // namespace Ui
