// What a filter finds, in the grid below it: marks, steps from one hit to the next, all of them selected, or nothing else
// in view.
#pragma once

#include "ui/list/filter_bar.h"
#include "ui/list/grid.h"

namespace Ui {

class Finder : public QObject {
  Q_OBJECT

 public:
  Finder(FilterBar& bar, Grid& grid, QObject* parent);

  // Brings the list that the hits are of into the grid; false where it stays another one.
  std::function<bool()> bring = [] { return true; };

  // Shows the hits that there are now. `here` says whether the grid shows the list that they are of.
  void Show(bool here);
  // Goes to the hit behind the current row, or before it, and round at the ends.
  void Step(bool forward);
  void SelectAll();

 Q_SIGNALS:
  // How many rows are hidden.
  void HiddenChanged(int rows);
  // All rows are shown again, as one that was hidden is wanted.
  void LeftOnly();

 private:
  void GoToFirst();
  [[nodiscard]] FilterBar::Found Places() const;
  void ShowPlace();
  // Whether the current row is a selected one.
  [[nodiscard]] bool OnSelected() const;

  FilterBar& bar_;
  Grid& grid_;
  bool here_ = false;
  int hidden_ = 0;
};

}  // namespace Ui
