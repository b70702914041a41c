// The eight favourites lists, in a window beside the main one or docked in it.
#pragma once

#include "ui/favourites/favourites_pages.h"
#include "ui/session/tool_window.h"

#include <functional>

class QMenu;
class QTabBar;
class QVBoxLayout;

namespace Ui {

class ElidedLabel;

class FavouritesWindow : public ToolWindow {
  Q_OBJECT

 public:
  // `docked` in a shape for a narrow place, where as many lists are seen as have room and the commands are a menu.
  FavouritesWindow(const Document& document, FavouritesEdits& edits, QMainWindow& window, bool docked);

  [[nodiscard]] bool Docked() const { return docked_; }
  void ShowResult(const QString& text);
  // The list that the commands are for; it takes the focus.
  [[nodiscard]] std::size_t Current() const { return pages_->Current(); }
  void Enter(std::size_t list);

 Q_SIGNALS:
  // The user wants the other form.
  void DockWanted(bool docked);

 private:
  // A command, or a menu of some.
  struct Entry {
    const char* name;
    QString caption;
    std::function<void()> run;
    QMenu* menu = nullptr;
  };
  [[nodiscard]] std::vector<Entry> Entries(const QMainWindow& window);
  QMenu* MoveMenu();
  QMenu* OrderMenu();
  void LayOutDocked(QVBoxLayout& column, const QMainWindow& window);
  void LayOutLoose(QVBoxLayout& column, const QMainWindow& window);
  QLayout* Buttons(const QMainWindow& window);
  QTabBar* Chooser();
  QMenu* CommandMenu(const QMainWindow& window);
  void ShowCurrent();

  FavouritesEdits& edits_;
  bool docked_;
  FavouritesPages* pages_;
  QTabBar* chooser_;  // docked
  ElidedLabel* target_;
  ElidedLabel* result_;
};

}  // namespace Ui
