// The window of the eight favourites lists, side by side beside the main window.
#pragma once

#include "ui/favourites_list.h"

#include <QDialog>

class QMainWindow;
class QToolButton;

namespace Ui {

class ElidedLabel;

class ListePreferiti : public QDialog {
  Q_OBJECT

 public:
  ListePreferiti(const Document& document, FavouritesCommands& commands, QMainWindow& window);

  void ShowResult(const QString& text);

 private:
  void AddLists(const Document& document, QWidget& place);
  QLayout* Buttons();
  QToolButton* MenuButton(const QString& caption, const char* name);
  void FillMoveMenu();
  void ShowCurrent();
  [[nodiscard]] FavouritesList& Current() const { return *lists_[current_]; }

  FavouritesCommands& commands_;
  std::vector<FavouritesList*> lists_;
  std::size_t current_ = 0;  // that buttons work on
  ElidedLabel* target_;
  ElidedLabel* result_;
  QToolButton* move_ = nullptr;
};

}  // namespace Ui
