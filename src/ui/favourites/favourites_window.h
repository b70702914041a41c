// The window of the eight favourites lists, side by side beside the main window.
#pragma once

#include "ui/favourites/favourites_list.h"
#include "ui/session/tool_window.h"

namespace Ui {

class ElidedLabel;

class FavouritesWindow : public ToolWindow {
  Q_OBJECT

 public:
  FavouritesWindow(const Document& document, FavouritesEdits& edits, QMainWindow& window);

  void ShowResult(const QString& text);
  // Makes a list the one that the buttons work on.
  void Enter(std::size_t list);

 private:
  void AddLists(const Document& document, QWidget& place);
  QLayout* Buttons(const QMainWindow& window);
  void FillMoveMenu();
  void ShowCurrent();
  [[nodiscard]] FavouritesList& Current() const { return *lists_[current_]; }

  FavouritesEdits& edits_;
  std::vector<FavouritesList*> lists_;
  std::size_t current_ = 0;  // that buttons work on
  ElidedLabel* target_;
  ElidedLabel* result_;
  QPushButton* move_ = nullptr;
};

}  // namespace Ui
