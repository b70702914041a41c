// The place of the window that shows the channel list, the transponder list or neither, and the two menu commands
// that switch it. Beside the channel list stand its filter field and its map.
#pragma once

#include "ui/list/cell_delegate.h"
#include "ui/list/filter_bar.h"
#include "ui/list/finder.h"
#include "ui/list/grid.h"
#include "ui/list/left_places.h"
#include "ui/list/list_map.h"
#include "ui/list/list_model.h"
#include "ui/list/whereabouts.h"

#include <QWidget>

class QAction;
class QLabel;
class QStackedWidget;

namespace Ui {

class ListView : public QWidget {
  Q_OBJECT

 public:
  ListView(const Document& document, QAction& showChannels, QAction& showTransponders, QWidget* parent);

  [[nodiscard]] View Current() const { return current_; }
  [[nodiscard]] Grid& ListGrid() const { return *grid_; }
  [[nodiscard]] FilterBar& Filter() const { return *filter_; }
  [[nodiscard]] Finder& Hits() const { return *hits_; }
  // "Stampa Canali" or "Stampa Transponder", as the list last shown asks for.
  [[nodiscard]] QString PrintHeading() const { return printHeading_; }

  // Shows a list, marker and ticks included: where it was left, or from its start where it has not been seen yet. One
  // that is shown already keeps its place, unless it is to start anew.
  void Show(View view);
  void ShowFromStart(View view);
  // Shows the channels of the list that has come from a file: where they were left when it was last open, be it in an
  // earlier session, else from their start. An empty path stands for a list that was there before and has come back.
  void ShowOpened(const std::string& path);
  // Keeps in mind where the list is left that another one is about to take the place of.
  void KeepPlace();
  [[nodiscard]] LeftPlaces& Places() { return places_; }

  [[nodiscard]] const TableModel& ListOf(View view) const {
    return view == View::Transponders ? transponders_ : channels_;
  }
  // The menu commands: a list that is shown is closed, else it is shown.
  void Toggle(View view);
  // Sets the ticks to what is shown, for a command that was refused.
  void RestoreTicks();

  // What stands in the place of a list while none is loaded.
  void StartWith(QWidget* page);

  // Marks rows of the list that they belong to, which is shown, and makes the first of them current.
  void ShowRows(FilterBar::Rows rows);

  // Lets the user edit the cells of both lists.
  void EditWith(CellEdits& edits);
  // Takes what is in an open editor, or drops it where it is refused.
  void FinishEditing();

  // Shows a list with one of its rows selected and in the middle.
  void GoToRow(View view, int slot);
  // Selects a channel and makes it the first visible one.
  void GoTo(int slot);
  // Does so with a channel that a search has found, and paints its row.
  void ShowFound(int slot);

 Q_SIGNALS:
  // Rows were dropped in front of slot `before`; those of the SDX table have their numbers there.
  void Dropped(const Edit::Slots& slots, int before, bool copy);
  void SdxDropped(const Edit::Slots& rows, int before);
  // A list is shown anew, or none is.
  void Shown(View view);

 private:
  void LayOut();
  void ComeBack();
  void ShowHint();
  void MarkMatches();
  void FindAgain();
  void TellWhere();

  const Document& document_;
  QAction& showChannels_;
  QAction& showTransponders_;
  ListModel channels_;
  ListModel transponders_;
  QLabel* marker_;  // Text1: "Canali", "Transponders" or nothing
  FilterBar* filter_;
  QLabel* hint_;  // while no list is shown
  QWidget* start_ = nullptr;
  Grid* grid_;
  Finder* hits_;
  CellDelegate* cells_ = nullptr;
  ListMap* map_;
  QStackedWidget* stack_;
  Whereabouts whereabouts_;
  ElidedLabel* where_;  // of the current channel, under the grid
  View current_ = View::None;
  LeftPlaces places_;
  int listNumber_ = 0;
  QString printHeading_;
};

}  // namespace Ui
