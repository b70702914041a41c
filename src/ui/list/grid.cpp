#include "ui/list/grid.h"

#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/list/row_look.h"
#include "ui/list/title_header.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>
#include <memory>

namespace Ui {
namespace {

// The numbers, with a mark at the edge of the rows that the filter finds, and a tick on those that the channel list has.
class NumberDelegate : public RowDelegate {
 public:
  using RowDelegate::RowDelegate;

  QWidget* createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const override {
    return nullptr;
  }
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int MarkWidth = 5;
    RowDelegate::paint(painter, option, index);
    PaintStrip(*painter, option, index.siblingAtColumn(ColumnOfRow));
    const auto& list = *static_cast<const TableModel*>(index.model());
    if (list.InChannelList(index.row() + 1)) PaintTick(*painter, option);
    if (!list.Found(index.row() + 1)) return;
    painter->fillRect(QRect(option.rect.topLeft(), QSize(MarkWidth, option.rect.height())),
                      ToColor(Colours::Found));
  }

 private:
  static constexpr int ColumnOfRow = 2;  // which has no colour of its own

  void PaintTick(QPainter& painter, const QStyleOptionViewItem& option) const {
    constexpr int Size = 6;
    constexpr int BesideStrip = 3;
    const bool soft = Look().Soft();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QPoint foot(option.rect.right() - 6 - (soft ? BesideStrip : 0),
                      option.rect.center().y() + Size / 2);
    const QColor onTint = option.palette.color(QPalette::Text);
    const QColor onColour =
        selected ? option.palette.color(QPalette::HighlightedText) : ToColor(Colours::InList);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(soft ? onTint : onColour, 2));
    painter.drawPolyline(QPolygon({foot - QPoint(3, 3), foot, foot + QPoint(4, -Size)}));
    painter.restore();
  }
};

}  // namespace

Grid::Grid(QWidget* parent, int frozen)
    : QTableView(parent),
      frozenColumns_(frozen),
      dropLine_(new QWidget(this)),
      letters_(Letters(*this, 100)) {
  SetUp(*this);
  setHorizontalScrollMode(ScrollPerPixel);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int, int width) { KeepWidth(column, width); });
  horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(horizontalHeader(), &QWidget::customContextMenuRequested, this, &Grid::AskForColumnMenu);
  // Many keyboards have no menu key.
  auto* menu = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), this);
  menu->setContext(Qt::WidgetShortcut);
  connect(menu, &QShortcut::activated, this, [this] {
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, {}, {});
    contextMenuEvent(&wanted);
  });
  setAcceptDrops(true);
  setDropIndicatorShown(false);
  dropLine_->setObjectName("LineaRilascio");
  dropLine_->setAttribute(Qt::WA_TransparentForMouseEvents);
  dropLine_->setAutoFillBackground(true);
  dropLine_->hide();
  setDragDropMode(DragDrop);
  setDragDropOverwriteMode(false);
  setDefaultDropAction(Qt::MoveAction);
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &Grid::ShowFrozen);
}

void Grid::SetUp(QTableView& view) {
  view.verticalHeader()->hide();
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  view.setHorizontalHeader(new TitleHeader(&view, *this));
  view.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.horizontalHeader()->setHighlightSections(false);
  view.setItemDelegate(new RowDelegate(&view));
  view.setItemDelegateForColumn(0, new NumberDelegate(&view));
  view.setSelectionBehavior(SelectRows);
  view.setSelectionMode(ExtendedSelection);
  view.setEditTriggers(NoEditTriggers);
  view.setVerticalScrollMode(ScrollPerItem);
  view.setWordWrap(false);
  view.setCornerButtonEnabled(false);
  view.setTabKeyNavigation(false);
}

void Grid::ShowList(TableModel* list) {
  ShowListOrder();
  if (list != model()) {
    ShowOnly(std::nullopt);
    const std::unique_ptr<QItemSelectionModel> oldSelection(selectionModel());
    setModel(list);
    if (frozen_ != nullptr && frozen_->model() != nullptr) frozen_->setModel(nullptr);  // until it is shown
  }
  ReadHeader();
  HideColumns();
  FitColumns();
  selectionModel()->clear();
  selectionModel()->setCurrentIndex(list->index(0, 1), QItemSelectionModel::NoUpdate);
  scrollToTop();
  horizontalScrollBar()->setValue(0);
}

// By the mouse on the row that it has just selected, by the keyboard beside the current one.
void Grid::contextMenuEvent(QContextMenuEvent* event) {
  const bool keyboard = event->reason() == QContextMenuEvent::Keyboard;
  const QModelIndex index = keyboard ? currentIndex() : indexAt(event->pos());
  if (!index.isValid()) return;
  if (!selectionModel()->isRowSelected(index.row())) SelectRow(index.row() + 1);
  Q_EMIT MenuWanted(keyboard ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}

// A drag that begins on a selected row carries the selection, any other selects.
void Grid::mousePressEvent(QMouseEvent* event) {
  setDragEnabled(selectionModel() != nullptr &&
                 selectionModel()->isSelected(indexAt(event->position().toPoint())));
  QTableView::mousePressEvent(event);
}

void Grid::startDrag(Qt::DropActions) {
  const Edit::Slots rows = Selected();
  if (rows.empty()) return;
  const QString text = Counted(rows.size(), "canale", "canali");
  QPixmap label(fontMetrics().horizontalAdvance(text) + 16, fontMetrics().height() + 8);
  label.fill(palette().color(QPalette::Highlight));
  QPainter painter(&label);
  painter.setPen(palette().color(QPalette::HighlightedText));
  painter.drawText(label.rect(), Qt::AlignCenter, text);
  painter.end();

  auto* drag = new QDrag(this);
  QModelIndexList indexes;
  for (const int row : rows) indexes.append(model()->index(row - 1, 0));
  drag->setMimeData(model()->mimeData(indexes));
  drag->setPixmap(label);
  drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
}

// Rows of another program would be numbers of another list.
void Grid::dragEnterEvent(QDragEnterEvent* event) {
  const bool ownSdx = event->source() != nullptr && event->mimeData()->hasFormat(SdxRowsType);
  if (event->source() == this || ownSdx) QTableView::dragEnterEvent(event);
}

void Grid::dragMoveEvent(QDragMoveEvent* event) {
  QTableView::dragMoveEvent(event);
  ShowDropLine(event->position().toPoint());
}

void Grid::dragLeaveEvent(QDragLeaveEvent* event) {
  QTableView::dragLeaveEvent(event);
  dropLine_->hide();
}

void Grid::dropEvent(QDropEvent* event) {
  QTableView::dropEvent(event);
  dropLine_->hide();
}

// Between the two rows that are nearest, or behind the last one.
void Grid::ShowDropLine(QPoint place) {
  const QModelIndex index = indexAt(place);
  const QRect row = visualRect(index.isValid() ? index : model()->index(model()->rowCount() - 1, 0));
  const bool above = index.isValid() && place.y() < row.center().y();
  const int y = viewport()->geometry().top() + (above ? row.top() : row.bottom() + 1);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, palette().color(QPalette::Highlight));
  dropLine_->setPalette(colours);
  dropLine_->setGeometry(frameWidth(), y - 2, viewport()->width(), 4);
  dropLine_->show();
  dropLine_->raise();
}

// Another list has no selection, and the view says nothing of the one that is gone.
void Grid::reset() {
  QTableView::reset();
  Q_EMIT SelectionMoved();
}

void Grid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  Q_EMIT SelectionMoved();
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  Q_EMIT CurrentMoved();
}

void Grid::MakeFrozen() {
  frozen_ = new QTableView(this);
  SetUp(*frozen_);
  frozen_->setObjectName("ColonnaFissa");
  frozen_->setFocusPolicy(Qt::NoFocus);
  frozen_->setAttribute(Qt::WA_TransparentForMouseEvents);  // its rows are those of the grid below it
  frozen_->setFrameShape(NoFrame);
  frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, frozen_->verticalScrollBar(),
          &QScrollBar::setValue);
  connect(frozen_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int row) {
    if (frozen_->isVisible()) verticalScrollBar()->setValue(row);
  });
}

// It stands over the grid only while the grid's own first column is out of view: the toolkit moves the picture of a
// view that is scrolled, but paints every cell of one that something stands over.
void Grid::ShowFrozen(int sideways) {
  if (IsFrozen() == (sideways != 0)) return;
  if (frozen_ == nullptr) MakeFrozen();
  frozen_->setVisible(sideways != 0);
  if (sideways == 0) return;
  if (frozen_->model() != model()) {
    frozen_->setModel(model());
    const std::unique_ptr<QItemSelectionModel> unused(frozen_->selectionModel());
    frozen_->setSelectionModel(selectionModel());
    for (int column = frozenColumns_; column < model()->columnCount(); ++column)
      frozen_->setColumnHidden(column, true);
    PlaceFrozen();
  }
  ArrangeRowsOf(*frozen_);
  HideRowsOf(*frozen_);
  // Hidden, it had no rows to scroll by.
  frozen_->doItemsLayout();
  frozen_->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

int Grid::FrozenWidth() const {
  int width = 0;
  for (int column = 0; column < frozenColumns_; ++column) width += columnWidth(column);
  return width;
}

void Grid::PlaceFrozen() {
  if (frozen_ == nullptr) return;
  for (int column = 0; column < frozenColumns_; ++column)
    frozen_->setColumnWidth(column, columnWidth(column));
  const int header = horizontalHeader()->height();
  frozen_->horizontalHeader()->setFixedHeight(header);
  frozen_->setGeometry(frameWidth(), frameWidth(), FrozenWidth(), viewport()->height() + header);
}

void Grid::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitColumns();
}

void Grid::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  FitColumns();
}

void Grid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  for (QTableView* view : {static_cast<QTableView*>(this), frozen_}) {
    if (view != nullptr) view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  }
  FollowLetters();
}

// A cell must not come to lie behind the frozen column; the first one is there to see all others from their start.
QModelIndex Grid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const QModelIndex index = QTableView::moveCursor(action, modifiers);
  QScrollBar& sideways = *horizontalScrollBar();
  if (index.column() == 0) {
    sideways.setValue(0);
  } else if (index.column() >= frozenColumns_ && visualRect(index).left() < FrozenWidth()) {
    sideways.setValue(sideways.value() + visualRect(index).left() - FrozenWidth());
  }
  return index;
}

void Grid::scrollTo(const QModelIndex& index, ScrollHint hint) {
  const int sideways = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  if (index.column() < frozenColumns_) horizontalScrollBar()->setValue(sideways);
}

}  // namespace Ui
