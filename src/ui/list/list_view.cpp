#include "ui/list/list_view.h"

#include "ui/kit/screen_fit.h"

#include <QAction>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Ui {

ListView::ListView(const Document& document, QAction& showChannels, QAction& showTransponders,
                   QWidget* parent)
    : QWidget(parent),
      document_(document),
      showChannels_(showChannels),
      showTransponders_(showTransponders),
      channels_(document, ListModel::Channels, this),
      transponders_(document, ListModel::Transponders, this),
      marker_(new QLabel(this)),
      filter_(new FilterBar(document, this)),
      hint_(new QLabel(this)),
      grid_(new Grid(this)),
      map_(new ListMap(document, this)),
      stack_(new QStackedWidget(this)) {
  marker_->setObjectName("Text1");
  QFont bold = marker_->font();
  bold.setBold(true);
  marker_->setFont(bold);
  marker_->setMinimumHeight(filter_->sizeHint().height());  // the grid stays where it is without the filter
  hint_->setObjectName("Suggerimento");
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setWordWrap(true);
  hint_->setText("Per vedere la lista: Utilities, Visualizza Canali o Visualizza Transponders.");
  grid_->setObjectName("Griglia");
  LayOut();

  connect(&document, &Document::Changed, filter_, &FilterBar::Refresh);
  connect(&document, &Document::Changed, this, &ListView::ShowHint);
  connect(filter_, &FilterBar::Changed, this, &ListView::MarkMatches);
  connect(filter_, &FilterBar::Step, this, &ListView::StepMatch);
  connect(filter_, &FilterBar::Left, grid_, qOverload<>(&QWidget::setFocus));
  connect(&channels_, &ListModel::Dropped, this, &ListView::Dropped, Qt::QueuedConnection);
  connect(&channels_, &ListModel::SdxDropped, this, &ListView::SdxDropped, Qt::QueuedConnection);
  connect(grid_, &Grid::SelectionMoved, this, [this] { map_->ShowSelection(grid_->Selected()); });
  connect(map_, &ListMap::Chosen, this, [this](int slot) {
    grid_->scrollTo(channels_.index(slot - 1, 1), QAbstractItemView::PositionAtCenter);
  });
  ShowFromStart(View::None);
}

void ListView::LayOut() {
  stack_->addWidget(hint_);
  stack_->addWidget(grid_);
  KeepLines(*stack_, 5);
  auto* head = new QHBoxLayout;
  head->addWidget(marker_);
  head->addWidget(filter_, 1);
  auto* body = new QHBoxLayout;
  body->setSpacing(3);
  body->addWidget(stack_, 1);
  body->addWidget(map_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  column->addLayout(head);
  column->addLayout(body, 1);
}

void ListView::Show(View view) {
  if (view == current_) {
    MarkMatches();
    RestoreTicks();
    return;
  }
  ShowFromStart(view);
}

void ListView::ShowFromStart(View view) {
  current_ = view;
  const bool channels = view == View::Channels;
  if (view == View::None) {
    marker_->clear();
    ShowHint();
  } else {
    marker_->setText(channels ? "Canali" : "Transponders");
    printHeading_ = channels ? "Stampa Canali" : "Stampa Transponder";
    grid_->setAccessibleName(marker_->text());
    channels_.ClearMarks();
    grid_->ShowList(channels ? &channels_ : &transponders_);
  }
  MarkMatches();
  marker_->setVisible(view != View::None);
  map_->setVisible(channels);
  RestoreTicks();
  Q_EMIT Shown(view);
  if (view == View::None) return;
  // Last of all, with everything that takes room beside it in its place: the grid is laid out once.
  stack_->setCurrentWidget(grid_);
  grid_->setFocus();
}

void ListView::StartWith(QWidget* page) {
  start_ = page;
  stack_->addWidget(page);
  ShowHint();
}

void ListView::ShowHint() {
  if (current_ == View::None)
    stack_->setCurrentWidget(start_ == nullptr || document_.Tables().Loaded ? hint_ : start_);
}

void ListView::ShowRows(FilterBar::Rows rows) {
  Show(rows.transponders ? View::Transponders : View::Channels);
  filter_->Show(std::move(rows));
  if (!filter_->Active()) return;
  grid_->clearSelection();
  grid_->selectionModel()->setCurrentIndex(grid_->model()->index(0, 1), QItemSelectionModel::NoUpdate);
  StepMatch(true);
}

void ListView::Toggle(View view) { Show(view == current_ ? View::None : view); }

void ListView::RestoreTicks() {
  showChannels_.setChecked(current_ == View::Channels);
  showTransponders_.setChecked(current_ == View::Transponders);
}

void ListView::EditWith(CellEdits& edits) {
  cells_ = new CellDelegate(edits, grid_);
  grid_->setItemDelegate(cells_);
  grid_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                         QAbstractItemView::AnyKeyPressed);
}

void ListView::FinishEditing() {
  for (auto* editor : grid_->findChildren<QWidget*>(CellEditorName)) {
    if (!editor->isHidden()) cells_->Close(*editor);  // one that is hidden waits to be deleted
  }
}

void ListView::GoToRow(View view, int slot) {
  Show(view);
  SelectInMiddle(slot);
}

void ListView::SelectInMiddle(int slot) {
  grid_->SelectRow(slot);
  grid_->scrollTo(grid_->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void ListView::ShowFound(int slot) {
  channels_.SetMark(slot, ListModel::Mark::Found);
  GoTo(slot);
}

// Rows selected elsewhere would be out of sight, and the next command would act on them.
void ListView::GoTo(int slot) {
  grid_->clearSelection();
  grid_->selectionModel()->setCurrentIndex(channels_.index(slot - 1, 1), QItemSelectionModel::NoUpdate);
  grid_->ScrollToTop(slot);
  Q_EMIT WentTo(slot);
}

void ListView::MarkMatches() {
  const View marked = filter_->ForTransponders() ? View::Transponders : View::Channels;
  for (ListModel* list : {&channels_, &transponders_}) list->ClearMarks();
  ListModel& list = marked == View::Channels ? channels_ : transponders_;
  for (const int slot : filter_->Matches()) list.SetMark(slot, ListModel::Mark::Filtered);
  const bool hadFocus = filter_->isAncestorOf(window()->focusWidget());
  filter_->setVisible(current_ == View::Channels || (current_ == marked && current_ != View::None));
  if (hadFocus && filter_->isHidden()) grid_->setFocus();
}

// Goes to the match behind the current row, or before it, and round at the ends.
void ListView::StepMatch(bool forward) {
  const std::vector<int>& matches = filter_->Matches();
  if (matches.empty()) return;
  if (filter_->ForTransponders()) Show(View::Transponders);
  if (!filter_->ForTransponders() && current_ != View::Channels) return;
  const int here = grid_->currentIndex().row() + 1;
  const bool onMatch = !grid_->Selected().empty();
  auto at = forward ? std::lower_bound(matches.begin(), matches.end(), onMatch ? here + 1 : here)
                    : std::lower_bound(matches.begin(), matches.end(), here);
  if (forward && at == matches.end()) at = matches.begin();
  if (!forward) at = (at == matches.begin() ? matches.end() : at) - 1;
  SelectInMiddle(*at);
}

}  // namespace Ui
