// The eight favourites lists: all of them side by side or, in a narrow place, as many as have room.
#pragma once

#include "ui/favourites/favourites_list.h"

class QGridLayout;

namespace Ui {

class FavouritesPages : public QWidget {
  Q_OBJECT

 public:
  // `narrow`: in a place where only those are shown that have room, always with the current one among them.
  FavouritesPages(const Document& document, FavouritesEdits& edits, bool narrow, QWidget* parent);

  [[nodiscard]] std::size_t Current() const { return current_; }
  [[nodiscard]] FavouritesList& CurrentList() const { return *lists_[current_]; }
  void SetCurrent(std::size_t list);

 Q_SIGNALS:
  void CurrentChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  // Which lists are shown, and in how many columns.
  struct Page {
    std::size_t first;
    std::size_t count;
    std::size_t columns;

    friend bool operator==(const Page&, const Page&) = default;
  };
  [[nodiscard]] Page PageOf(std::size_t list) const;
  void Arrange();

  std::vector<FavouritesList*> lists_;
  QGridLayout* grid_;
  std::size_t current_ = 0;  // that was entered last: the commands are for it
  bool narrow_;
  Page page_ = {0, 0, 0};
};

}  // namespace Ui
