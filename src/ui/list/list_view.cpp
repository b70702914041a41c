#include "ui/list/list_view.h"

#include "ui/kit/elided_label.h"
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
      filter_(new FilterBar(
          {}, "Nome, numero, sat:A, radio… (Ctrl+Shift+F)",
          [&document](const Review::Filter& words) {
            return Review::MatchingSlots(document.Tables(), words);
          },
          this)),
      hint_(new QLabel(this)),
      grid_(new Grid(this)),
      hits_(new Finder(*filter_, *grid_, this)),
      map_(new ListMap(document, this)),
      stack_(new QStackedWidget(this)),
      whereabouts_(document),
      where_(new ElidedLabel(Qt::ElideRight, this)) {
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
  where_->setObjectName("DoveSta");
  where_->setAccessibleName("Dove sta il canale");
  channels_.tip = [this](int slot) { return "<span>" + whereabouts_.Of(slot).toHtmlEscaped() + "</span>"; };
  LayOut();

  connect(&document, &Document::AboutToReplace, this, &ListView::KeepPlace);
  connect(&document, &Document::Changed, grid_, &Grid::SortAgain);
  connect(&document, &Document::Changed, this, &ListView::FindAgain);
  connect(&document, &Document::Changed, this, &ListView::ShowHint);
  connect(&document, &Document::Changed, this, &ListView::TellWhere);
  connect(grid_, &Grid::CurrentMoved, this, &ListView::TellWhere);
  connect(filter_, &FilterBar::Changed, this, &ListView::MarkMatches);
  hits_->bring = [this] {
    if (filter_->ForTransponders()) Show(View::Transponders);
    return filter_->ForTransponders() || current_ == View::Channels;
  };
  connect(&channels_, &ListModel::Dropped, this, &ListView::Dropped, Qt::QueuedConnection);
  connect(&channels_, &ListModel::SdxDropped, this, &ListView::SdxDropped, Qt::QueuedConnection);
  connect(grid_, &Grid::SelectionMoved, this, [this] { map_->ShowSelection(grid_->Selected()); });
  connect(map_, &ListMap::Chosen, grid_, &Grid::ShowInMiddle);
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
  column->setSpacing(2);
  column->addLayout(head);
  column->addLayout(body, 1);
  column->addWidget(where_);
}

void ListView::Show(View view) {
  if (view == current_) {
    MarkMatches();
    RestoreTicks();
    return;
  }
  KeepPlace();
  ShowFromStart(view);
  ComeBack();
}

void ListView::ShowOpened(const std::string& path) {
  if (!path.empty()) places_.SetFile(document_.Tables().ListNumber, path);
  ShowFromStart(View::Channels);
  ComeBack();
}

void ListView::KeepPlace() {
  if (current_ != View::None) places_.Keep(document_.Tables().ListNumber, current_, grid_->Place());
}

void ListView::ComeBack() {
  const auto place = places_.Of(document_.Tables().ListNumber, current_);
  if (place) grid_->ComeBackTo(*place);
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
    channels_.ClearPaint();
    grid_->ShowList(channels ? &channels_ : &transponders_);
  }
  MarkMatches();
  TellWhere();
  where_->setVisible(view != View::None);
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
  if (filter_->Matches().empty()) return;
  grid_->clearSelection();
  grid_->selectionModel()->setCurrentIndex(grid_->model()->index(0, 1), QItemSelectionModel::NoUpdate);
  hits_->Step(true);
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
  grid_->SelectInMiddle(slot);
}

void ListView::ShowFound(int slot) {
  channels_.Paint(slot);
  GoTo(slot);
}

void ListView::GoTo(int slot) {
  grid_->SelectRow(slot);
  grid_->ScrollToTop(slot);
}

void ListView::TellWhere() {
  const int slot = current_ == View::Channels ? grid_->currentIndex().row() + 1 : 0;
  where_->Show(slot == 0 ? QString() : whereabouts_.Of(slot));
}

// Another list is seen whole and in its order, whatever was done to see the one before.
void ListView::FindAgain() {
  if (std::exchange(listNumber_, document_.Tables().ListNumber) != listNumber_) {
    filter_->SetOnly(false);
    grid_->ShowListOrder();
  }
  filter_->Refresh();
}

void ListView::MarkMatches() {
  const View marked = filter_->ForTransponders() ? View::Transponders : View::Channels;
  const FilterBar::Found& matches = filter_->Matches();
  channels_.SetFound(marked == View::Channels ? matches : FilterBar::Found());
  transponders_.SetFound(marked == View::Transponders ? matches : FilterBar::Found());
  map_->ShowFound(marked == View::Channels ? matches : FilterBar::Found());
  const bool hadFocus = filter_->isAncestorOf(window()->focusWidget());
  filter_->setVisible(current_ == View::Channels || (current_ == marked && current_ != View::None));
  if (hadFocus && filter_->isHidden()) grid_->setFocus();
  hits_->Show(current_ == marked);
}

}  // namespace Ui
