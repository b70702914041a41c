#include "ui/list/finder.h"

#include <algorithm>

namespace Ui {

Finder::Finder(FilterBar& bar, Grid& grid, QObject* parent) : QObject(parent), bar_(bar), grid_(grid) {
  connect(&bar, &FilterBar::Step, this, &Finder::Step);
  connect(&bar, &FilterBar::Typed, this, &Finder::GoToFirst);
  connect(&bar, &FilterBar::SelectWanted, this, &Finder::SelectAll);
  connect(&bar, &FilterBar::Left, &grid, qOverload<>(&QWidget::setFocus));
  connect(&grid, &Grid::SelectionMoved, this, &Finder::ShowPlace);
  connect(&grid, &Grid::HiddenWanted, this, [this] {
    bar_.SetOnly(false);
    Q_EMIT LeftOnly();
  });
}

void Finder::Show(bool here) {
  here_ = here;
  grid_.ShowOnly(here && bar_.Only() ? std::optional(bar_.Matches()) : std::nullopt);
  ShowPlace();
  if (std::exchange(hidden_, grid_.HiddenRows()) != hidden_) Q_EMIT HiddenChanged(hidden_);
}

bool Finder::OnSelected() const {
  const QModelIndex here = grid_.currentIndex();
  return here.isValid() && grid_.selectionModel()->isRowSelected(here.row());
}

// As places in the view, which are the rows themselves unless it is sorted.
FilterBar::Found Finder::Places() const {
  FilterBar::Found places = bar_.Matches();
  if (!grid_.IsSorted()) return places;
  for (int& place : places) place = grid_.PlaceOf(place);
  std::sort(places.begin(), places.end());
  return places;
}

void Finder::ShowPlace() {
  const FilterBar::Found matches = Places();
  const int row = grid_.PlaceOf(grid_.currentIndex().row() + 1);
  const auto at = std::lower_bound(matches.begin(), matches.end(), row);
  const bool onHit = here_ && at != matches.end() && *at == row && OnSelected();
  bar_.ShowPlace(onHit ? static_cast<std::size_t>(at - matches.begin()) + 1 : 0);
}

// It alone is selected then, and nothing where there is none, so that what is done next is done to what was found last.
void Finder::GoToFirst() {
  if (!here_ || !bar_.Asks()) return;
  if (bar_.Matches().empty()) return grid_.clearSelection();
  grid_.SelectInMiddle(grid_.RowAt(Places().front()));
}

void Finder::Step(bool forward) {
  if (bar_.Matches().empty() || !bring()) return;
  const FilterBar::Found matches = Places();
  const int here = grid_.PlaceOf(grid_.currentIndex().row() + 1);
  auto at = std::lower_bound(matches.begin(), matches.end(), forward && OnSelected() ? here + 1 : here);
  if (forward && at == matches.end()) at = matches.begin();
  if (!forward) at = (at == matches.begin() ? matches.end() : at) - 1;
  grid_.SelectInMiddle(grid_.RowAt(*at));
}

void Finder::SelectAll() {
  if (bar_.Matches().empty() || !bring()) return;
  grid_.Select(bar_.Matches());
  grid_.setFocus();
}

}  // namespace Ui
