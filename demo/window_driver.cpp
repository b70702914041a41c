#include "window_driver.h"

#include "ui/list/grid.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QToolButton>

#include <utility>

namespace Demo {
namespace {

const QString AnyText = "*";

void Click(QWidget& widget, QPoint place = {}) {
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
}

void ClickStandardButton(QDialog& dialog, QMessageBox::StandardButton button) {
  auto* box = qobject_cast<QMessageBox*>(&dialog);
  if (box != nullptr && box->button(button) != nullptr) {
    Click(*box->button(button));
  } else {
    dialog.reject();
  }
}

// What a box says or asks; nothing for a file dialog.
QString TextIn(QDialog& dialog) {
  if (const auto* message = qobject_cast<QMessageBox*>(&dialog)) return message->text();
  if (const auto* input = qobject_cast<QInputDialog*>(&dialog)) return input->labelText();
  return {};
}

void EnterPath(QDialog& dialog, const QString& path) {
  auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
  if (edit == nullptr) {
    dialog.reject();
    return;
  }
  edit->setText(path);
  QTest::keyClick(edit, Qt::Key_Return);
}

// Opens the menus one in another on the way to `action`.
bool ClickThroughMenus(QMenuBar& bar, QAction& action) {
  std::vector<QMenu*> way;
  for (QObject* at = action.associatedObjects().value(0); at != nullptr;) {
    auto* menu = qobject_cast<QMenu*>(at);
    if (menu == nullptr) break;
    way.insert(way.begin(), menu);
    at = menu->menuAction()->associatedObjects().value(0);
  }
  if (way.empty()) return false;
  Click(bar, bar.actionGeometry(way.front()->menuAction()).center());
  for (std::size_t i = 1; i < way.size(); ++i) {
    QTest::mouseMove(way[i - 1], way[i - 1]->actionGeometry(way[i]->menuAction()).center());
    Click(*way[i - 1], way[i - 1]->actionGeometry(way[i]->menuAction()).center());
    if (!QTest::qWaitFor([&way, i] { return way[i]->isVisible(); }, 2000)) return false;
  }
  QTest::mouseMove(way.back(), way.back()->actionGeometry(&action).center());
  Click(*way.back(), way.back()->actionGeometry(&action).center());
  return true;
}

}  // namespace

WindowDriver::WindowDriver(Ui::MainWindow& window) : window_(window) {
  connect(&timer_, &QTimer::timeout, this, &WindowDriver::AnswerBox);
  timer_.start(20);
}

void WindowDriver::ExpectMessage(const QString& text, const QString& title) {
  expected_.push_back({title, text, [](QDialog& box) { ClickStandardButton(box, QMessageBox::Ok); }});
}

void WindowDriver::ExpectQuestion(const QString& text, bool yes) {
  const auto button = yes ? QMessageBox::Yes : QMessageBox::No;
  expected_.push_back({"Trovalis", text, [button](QDialog& box) { ClickStandardButton(box, button); }});
}

void WindowDriver::ExpectCancelledQuestion(const QString& text) {
  expected_.push_back(
      {"Trovalis", text, [](QDialog& box) { ClickStandardButton(box, QMessageBox::Cancel); }});
}

void WindowDriver::ExpectLine(const QString& question, const QString& answer) {
  expected_.push_back({"Trovalis", question, [answer](QDialog& box) {
                         if (auto* input = qobject_cast<QInputDialog*>(&box)) {
                           input->setTextValue(answer);
                           QTest::keyClick(input->findChild<QLineEdit*>(), Qt::Key_Return);
                         } else {
                           box.reject();
                         }
                       }});
}

void WindowDriver::ExpectFile(const QString& title, const QString& path) {
  expected_.push_back({title, {}, [path](QDialog& box) { EnterPath(box, path); }});
}

void WindowDriver::ExpectDialog(const QString& title, const std::function<void(QDialog&)>& answer) {
  expected_.push_back({title, AnyText, answer});
}

void WindowDriver::ExpectFileCancelled(const QString& title) {
  expected_.push_back({title, {}, [](QDialog& box) { box.reject(); }});
}

void WindowDriver::AnswerBox() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible() || dialog == answering_) return;
  if (dialog->objectName() == "OperazioneInCorso")
    return;  // goes by itself; a slow disk has it come up anywhere
  const QString text = TextIn(*dialog);
  if (expected_.empty()) {
    failures_ += "unexpected box: " + dialog->windowTitle() + ": " + text;
    dialog->reject();
    return;
  }
  timer_.stop();
  const Expected expected = expected_.front();
  expected_.pop_front();
  Check("title", expected.title, dialog->windowTitle());
  if (expected.text != AnyText) Check("text", expected.text, text);
  if (onBox) onBox(dialog->windowTitle());
  timer_.start();
  QDialog* const outer = std::exchange(answering_, dialog);
  expected.answer(*dialog);
  answering_ = outer;
}

void WindowDriver::Check(const QString& what, const QString& wanted, const QString& seen) {
  if (wanted != seen) failures_ += QString("box %1: wanted \"%2\", saw \"%3\"").arg(what, wanted, seen);
}

bool WindowDriver::Choose(const char* command) {
  auto* action = window_.findChild<QAction*>(command);
  if (action == nullptr || !action->isEnabled()) return false;
  return ClickThroughMenus(*window_.menuBar(), *action);
}

bool WindowDriver::Press(const char* toolbarButton) {
  auto* button = window_.findChild<QToolButton*>(toolbarButton);
  if (button == nullptr || !button->isEnabled()) return false;
  Click(*button);
  return true;
}

bool WindowDriver::Pick(const char* radioButton) {
  auto* button = window_.findChild<QAbstractButton*>(radioButton);
  if (button == nullptr) return false;
  Click(*button, QPoint(10, button->height() / 2));
  return button->isChecked();
}

QString WindowDriver::TextOf(const char* label) const {
  const auto* found = window_.findChild<QLabel*>(label);
  return found == nullptr ? QString() : found->text();
}

QString WindowDriver::Cell(int row, int column) const {
  return Grid().model()->index(row - 1, column).data().toString();
}

Ui::Grid& WindowDriver::Grid() const { return *window_.findChild<Ui::Grid*>("Griglia"); }

void WindowDriver::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  window_.activateWindow();
  if (!QTest::qWaitForWindowActive(&window_)) failures_ += "the window does not get active";
  QWidget* focus = QApplication::focusWidget();
  QTest::keyClick(focus == nullptr ? &window_ : focus, key, modifiers);
}

void WindowDriver::OpenMenu() {
  const QPoint place = Grid().rect().center();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, place, Grid().mapToGlobal(place));
  QApplication::sendEvent(&Grid(), &event);
}

void WindowDriver::SelectRows(int from, int to) {
  Ui::Grid& grid = Grid();
  grid.clearSelection();
  const auto place = [&grid](int row) { return grid.visualRect(grid.model()->index(row - 1, 1)).center(); };
  grid.scrollTo(grid.model()->index(std::min(from, to) - 1, 1), QAbstractItemView::PositionAtTop);
  QTest::mousePress(grid.viewport(), Qt::LeftButton, Qt::NoModifier, place(from));
  QTest::mouseMove(grid.viewport(), place(to));
  QTest::mouseRelease(grid.viewport(), Qt::LeftButton, Qt::NoModifier, place(to));
}

QStringList WindowDriver::Failures() const {
  QStringList all = failures_;
  for (const Expected& missing : expected_) all += "never came: " + missing.title + ": " + missing.text;
  return all;
}

}  // namespace Demo
