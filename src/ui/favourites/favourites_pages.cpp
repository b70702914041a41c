#include "ui/favourites/favourites_pages.h"

#include "model/favourites.h"
#include "ui/kit/screen_fit.h"

#include <QGridLayout>
#include <QListView>

#include <algorithm>
#include <utility>

namespace Ui {

FavouritesPages::FavouritesPages(const Document& document, FavouritesEdits& edits, bool narrow,
                                 QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)), narrow_(narrow) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(10);
  grid_->setVerticalSpacing(8);
  for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
    auto* widget = new FavouritesList(document, edits, list, this);
    connect(widget, &FavouritesList::Entered, this, [this, list] { SetCurrent(list); });
    lists_.push_back(widget);
  }
  // With as many columns as are shown now the place could not be made narrower again.
  if (narrow) setMinimumSize(lists_.front()->minimumSizeHint());
  Arrange();
}

void FavouritesPages::SetCurrent(std::size_t list) {
  if (list == current_) return;
  const bool hadFocus = isAncestorOf(window()->focusWidget());
  current_ = list;
  // From a list that is hidden the focus would go anywhere.
  CurrentList().show();
  if (hadFocus && !CurrentList().isAncestorOf(window()->focusWidget())) CurrentList().Entries().setFocus();
  Arrange();
  Q_EMIT CurrentChanged();
}

FavouritesPages::Page FavouritesPages::PageOf(std::size_t list) const {
  constexpr std::size_t PerRow = 4;
  if (!narrow_) return {0, lists_.size(), PerRow};
  const auto fitting = [](int room, int each) { return static_cast<std::size_t>(std::max(room / each, 1)); };
  const std::size_t columns = std::min(fitting(width(), Letters(*this, 26)), PerRow);
  const std::size_t count = columns * fitting(height(), 18 * fontMetrics().height());
  return {list / count * count, count, columns};
}

// The current list stands out.
void FavouritesPages::Arrange() {
  for (std::size_t list = 0; list < lists_.size(); ++list)
    lists_[list]->Entries().setFrameStyle(list == current_ ? QFrame::Box | QFrame::Plain
                                                           : QFrame::StyledPanel | QFrame::Sunken);
  const Page page = PageOf(current_);
  if (std::exchange(page_, page) == page) return;
  for (std::size_t list = 0; list < lists_.size(); ++list) {
    const std::size_t place = list - page.first;  // a large number in front of the first one
    if (place < page.count)
      grid_->addWidget(lists_[list], static_cast<int>(place / page.columns),
                       static_cast<int>(place % page.columns));
    lists_[list]->setVisible(place < page.count);
  }
}

void FavouritesPages::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (narrow_) Arrange();
}

}  // namespace Ui
