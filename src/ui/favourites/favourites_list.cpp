#include "ui/favourites/favourites_list.h"

#include "model/favourites.h"
#include "ui/kit/name_edit.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/list/row_look.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QVBoxLayout>

namespace Ui {
namespace {

// As wide as the list is, so that a long name is cut with dots.
class NarrowRows : public RowDelegate {
 public:
  using RowDelegate::RowDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    RowDelegate::paint(painter, option, index);
    PaintStrip(*painter, option, index);
  }

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, RowDelegate::sizeHint(option, index).height()};
  }
};

}  // namespace

FavouritesList::FavouritesList(const Document& document, FavouritesEdits& edits, std::size_t list,
                               QWidget* parent)
    : QWidget(parent),
      document_(document),
      edits_(edits),
      list_(list),
      model_(document, list, this),
      name_(new NameEdit(static_cast<int>(Routines::FavouriteNameSize), this)),
      count_(new QLabel(this)),
      entries_(new QListView(this)) {
  const QString number = QString::number(list + 1);
  auto* label = new QLabel(number, this);
  label->setBuddy(name_);
  name_->setObjectName("NomePreferiti_" + number);
  name_->setAccessibleName("Nome della lista " + number);
  name_->setPlaceholderText("lista " + number);
  name_->installEventFilter(this);
  connect(name_, &QLineEdit::editingFinished, this, &FavouritesList::Rename);
  count_->setObjectName("ContaPreferiti_" + number);
  BuildEntries();

  auto* head = new QHBoxLayout;
  head->addWidget(label);
  head->addWidget(name_, 1);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(3);
  column->addLayout(head);
  column->addWidget(entries_, 1);
  column->addWidget(count_, 0, Qt::AlignRight);
  connect(&document, &Document::Changed, this, &FavouritesList::Refresh);
  Refresh();
}

void FavouritesList::BuildEntries() {
  const QString number = QString::number(list_ + 1);
  entries_->setObjectName("Preferiti_" + number);
  entries_->setAccessibleName("Preferiti, lista " + number);
  entries_->setModel(&model_);
  entries_->setUniformItemSizes(true);
  KeepLines(*entries_, 3);
  entries_->setMinimumWidth(Letters(*entries_, 14));
  entries_->setItemDelegate(new NarrowRows(entries_));
  entries_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  entries_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  entries_->setDragDropMode(QAbstractItemView::DragDrop);
  entries_->setDefaultDropAction(Qt::MoveAction);
  entries_->setTextElideMode(Qt::ElideRight);
  entries_->installEventFilter(this);
  entries_->viewport()->installEventFilter(this);
  connect(entries_, &QListView::doubleClicked, this, &FavouritesList::GoToCurrent);
  // The source of a drag waits for the drop: the list changes after it.
  connect(&model_, &FavouritesModel::Dropped, this, &FavouritesList::TakeDrop, Qt::QueuedConnection);
  connect(
      &model_, &FavouritesModel::ChannelsDropped, this,
      [this](const Edit::Slots& slots, std::size_t before) { edits_.AddSlots(list_, slots, before); },
      Qt::QueuedConnection);
}

QString FavouritesList::StoredName() const {
  return CodePageText(Routines::FavouriteNameOf(document_.Tables().FavouritesBlock, list_)).trimmed();
}

void FavouritesList::Refresh() {
  const Base::Bytes& block = document_.Tables().FavouritesBlock;
  const QString name = StoredName();
  if (!name_->isModified() && name_->text() != name) {
    name_->setText(name);
    name_->setCursorPosition(0);
  }
  count_->setText(QString("%1 di %2").arg(model_.rowCount()).arg(Routines::FavouriteRoom(block, list_)));
}

void FavouritesList::Rename() {
  const QString stored = StoredName();
  const bool typed = name_->isModified() && name_->text() != stored;
  name_->setModified(false);
  if (typed && !edits_.Rename(list_, name_->text())) name_->setText(stored);
}

FavouritesEdits::Places FavouritesList::Selected() const {
  FavouritesEdits::Places places;
  for (const QModelIndex& index : entries_->selectionModel()->selectedIndexes())
    places.push_back(static_cast<std::size_t>(index.row()));
  std::sort(places.begin(), places.end());
  return places;
}

void FavouritesList::Select(std::size_t first, std::size_t count) {
  if (count == 0 || static_cast<int>(first + count) > model_.rowCount()) return;
  const QModelIndex top = model_.index(static_cast<int>(first));
  const QModelIndex bottom = model_.index(static_cast<int>(first + count) - 1);
  entries_->selectionModel()->setCurrentIndex(top, QItemSelectionModel::NoUpdate);
  entries_->selectionModel()->select({top, bottom}, QItemSelectionModel::ClearAndSelect);
  entries_->scrollTo(bottom);
  entries_->scrollTo(top);
}

void FavouritesList::RemoveSelected() {
  const auto places = Selected();
  edits_.Remove(list_, places);
  const int left = model_.rowCount();
  if (left > 0 && !places.empty()) Select(std::min(places.front(), static_cast<std::size_t>(left) - 1), 1);
}

void FavouritesList::MoveSelected(int rows) {
  const auto places = Selected();
  if (places.empty()) return;
  const bool up = rows < 0;
  if (up ? places.front() == 0 : static_cast<int>(places.back()) + 1 == model_.rowCount()) return;
  TakeDrop(list_, places, up ? places.front() - 1 : places.back() + 2);
}

void FavouritesList::TakeDrop(std::size_t list, const FavouritesEdits::Places& places, std::size_t before) {
  const int rows = model_.rowCount();
  const std::size_t first = edits_.Move(list, places, list_, before);
  Select(first,
         list == list_ ? places.size() : static_cast<std::size_t>(std::max(model_.rowCount() - rows, 0)));
}

void FavouritesList::GoToCurrent() {
  if (entries_->currentIndex().isValid()) edits_.GoTo(model_.Slot(entries_->currentIndex().row()));
}

bool FavouritesList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) Q_EMIT Entered();
  // Rows of another program would be numbers of another list.
  if (event->type() == QEvent::DragEnter && static_cast<QDropEvent*>(event)->source() == nullptr) {
    event->ignore();
    return true;
  }
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* pressed = static_cast<QKeyEvent*>(event);
  const bool enter = pressed->key() == Qt::Key_Return || pressed->key() == Qt::Key_Enter;
  if (watched == name_) {
    // A dialog would take these for its own buttons.
    const bool leave = pressed->key() == Qt::Key_Escape && name_->isModified();
    if (enter) Rename();
    if (leave) name_->setText(StoredName());
    return enter || leave;
  }
  if (enter) {
    GoToCurrent();
  } else if (pressed->key() == Qt::Key_Delete) {
    RemoveSelected();
  } else if (pressed->modifiers() == Qt::AltModifier && pressed->key() == Qt::Key_Up) {
    MoveSelected(-1);
  } else if (pressed->modifiers() == Qt::AltModifier && pressed->key() == Qt::Key_Down) {
    MoveSelected(1);
  } else {
    return QWidget::eventFilter(watched, event);
  }
  return true;
}

}  // namespace Ui
