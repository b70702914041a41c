// Menus answer to the first letters of their commands.
#pragma once

#include <QObject>

class QMenu;

namespace Ui {

class MenuLetters : public QObject {
  Q_OBJECT

 public:
  // A letter goes to the next command of the menu that begins with it, round at the end; Enter runs it. Commands with a
  // letter marked in their caption are left to the toolkit.
  static void Follow(QMenu& menu);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using QObject::QObject;
};

}  // namespace Ui
