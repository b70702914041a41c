#include "ui/griglia.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace Ui {
namespace {

constexpr int CellMargin = 14;

QString HeaderStyle() {
  return QString(
             "QHeaderView::section { background-color: %1; color: black; padding: 3px 4px;"
             " border: 0; border-right: 1px solid #7fb97f; border-bottom: 1px solid #7fb97f; }")
      .arg(ToColor(Routines::Colours::Header).name());
}

}  // namespace

Griglia::Griglia(QWidget* parent) : QTableView(parent), frozen_(new QTableView(this)) {
  SetUp(*this);
  SetUp(*frozen_);
  setHorizontalScrollMode(ScrollPerPixel);

  frozen_->setObjectName("ColonnaFissa");
  frozen_->setFocusPolicy(Qt::NoFocus);
  frozen_->setFrameShape(NoFrame);
  frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, frozen_->verticalScrollBar(),
          &QScrollBar::setValue);
  connect(frozen_->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
          &QScrollBar::setValue);
  viewport()->stackUnder(frozen_);
}

void Griglia::SetUp(QTableView& view) {
  view.verticalHeader()->hide();
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  view.horizontalHeader()->setStyleSheet(HeaderStyle());
  view.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.horizontalHeader()->setHighlightSections(false);
  view.setSelectionBehavior(SelectRows);
  view.setSelectionMode(ContiguousSelection);
  view.setEditTriggers(NoEditTriggers);
  view.setVerticalScrollMode(ScrollPerItem);
  view.setWordWrap(false);
  view.setCornerButtonEnabled(false);
}

void Griglia::ShowList(ListModel* list) {
  setModel(list);
  frozen_->setModel(list);
  frozen_->setSelectionModel(selectionModel());
  header_ = list->Header();
  for (int column = 0; column < list->columnCount(); ++column) frozen_->setColumnHidden(column, column != 0);
  FitColumns();
  scrollToTop();
  selectionModel()->clear();
  selectionModel()->setCurrentIndex(list->index(0, 1), QItemSelectionModel::NoUpdate);
}

void Griglia::FitColumns() {
  if (header_.empty()) return;
  std::vector<int> widths;
  for (const HeaderColumn& column : header_) {
    widths.push_back(fontMetrics().horizontalAdvance(column.widthText) + CellMargin);
  }
  int spare = viewport()->width();
  for (const int width : widths) spare -= width;
  *std::max_element(widths.begin(), widths.end()) += std::max(spare, 0);
  for (std::size_t i = 0; i < widths.size(); ++i) setColumnWidth(static_cast<int>(i), widths[i]);
  frozen_->setColumnWidth(0, widths[0]);
  PlaceFrozen();
}

void Griglia::PlaceFrozen() {
  const int header = horizontalHeader()->height();
  frozen_->horizontalHeader()->setFixedHeight(header);
  frozen_->setGeometry(frameWidth(), frameWidth(), columnWidth(0), viewport()->height() + header);
}

void Griglia::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitColumns();
}

void Griglia::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  for (QTableView* view : {static_cast<QTableView*>(this), frozen_}) {
    if (view != nullptr) view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  }
  FitColumns();
}

// A cell must not come to lie behind the frozen column.
QModelIndex Griglia::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex index = QTableView::moveCursor(action, modifiers);
  if (index.column() > 0 && visualRect(index).left() < columnWidth(0)) {
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + visualRect(index).left() -
                                    columnWidth(0));
  }
  return index;
}

void Griglia::scrollTo(const QModelIndex& index, ScrollHint hint) {
  const int sideways = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  if (index.column() == 0) horizontalScrollBar()->setValue(sideways);
}

}  // namespace Ui
