// Drives the real window as a user does: by its menus, its controls and the toolkit's own boxes.
#pragma once

#include "ui/window/main_window.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

namespace Ui {
class Grid;
}

class QDialog;
class QFileDialog;
class QMessageBox;
class QWidget;

namespace Demo {

class WindowDriver : public QObject {
  Q_OBJECT

 public:
  explicit WindowDriver(Ui::MainWindow& window);

  // What the next box is answered with, in the order they come up. A box that nobody expected is closed and
  // told in Failures().
  void ExpectMessage(const QString& text, const QString& title = "Trovalis");
  void ExpectQuestion(const QString& text, bool yes);
  void ExpectCancelledQuestion(const QString& text);
  void ExpectLine(const QString& question, const QString& answer);
  void ExpectFile(const QString& title, const QString& path);
  // A box answered as the caller likes, whatever it says.
  void ExpectDialog(const QString& title, const std::function<void(QDialog&)>& answer);
  void ExpectFileCancelled(const QString& title);

  // Chooses a menu command with the mouse. False where it is disabled or missing.
  bool Choose(const char* command);
  bool Press(const char* toolbarButton);
  bool Pick(const char* radioButton);

  // The text of a control that has one.
  [[nodiscard]] QString TextOf(const char* label) const;
  // A cell of the grid, counted as the user does: row 1 is slot 1, column 0 its number.
  [[nodiscard]] QString Cell(int row, int column) const;

  // Types a key where the focus of the active window is.
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  // Opens the popup menu of the grid's current row, as the menu key does.
  void OpenMenu();
  // Selects rows as a user does, with the mouse from one to the other.
  void SelectRows(int from, int to);
  [[nodiscard]] Ui::Grid& Grid() const;

  // Whether every box expected so far has come.
  [[nodiscard]] bool Idle() const { return expected_.empty(); }
  // Everything that was not as expected, and boxes that never came.
  [[nodiscard]] QStringList Failures() const;

  // Called before a box is answered, with its title.
  std::function<void(const QString&)> onBox;

 private:
  struct Expected {
    QString title;
    QString text;
    std::function<void(QDialog&)> answer;
  };

  void AnswerBox();
  void Check(const QString& what, const QString& wanted, const QString& seen);

  Ui::MainWindow& window_;
  QTimer timer_;
  QDialog* answering_ = nullptr;  // whose answer goes on; another one may come up on its way
  std::deque<Expected> expected_;
  QStringList failures_;
};

}  // namespace Demo
