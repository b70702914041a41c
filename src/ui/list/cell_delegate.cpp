#include "ui/list/cell_delegate.h"

#include "model/channel.h"
#include "ui/kit/name_edit.h"

#include <QComboBox>
#include <QCompleter>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QTableView>
#include <QTimer>
#include <QToolTip>

namespace Ui {
namespace {

// What an editor carries: the cell, and what it held when it was opened. A list's popup carries the editor.
constexpr const char* CellProperty = "cella";
constexpr const char* BeforeProperty = "prima";
constexpr const char* EditorProperty = "editor";

QString TextIn(const QWidget& editor) {
  if (const auto* list = qobject_cast<const QComboBox*>(&editor)) return list->currentText();
  const auto* field = qobject_cast<const QLineEdit*>(&editor);
  return field == nullptr ? QString() : field->text();
}

int EntryOf(const QComboBox& list, const QString& cell) {
  for (int i = 0; i < list.count(); ++i) {
    if (list.itemText(i) == cell || list.itemText(i).startsWith(cell + ' ')) return i;
  }
  return -1;
}

// The row that is seen below another one (1) or above it (-1); -1 at the end.
int RowBeside(const QTableView& view, int row, int step) {
  const QHeaderView& rows = *view.verticalHeader();
  int place = rows.visualIndex(row) + step;
  while (place >= 0 && place < rows.count() && rows.isSectionHidden(rows.logicalIndex(place))) place += step;
  return rows.logicalIndex(place);
}

}  // namespace

CellDelegate::CellDelegate(CellEdits& edits, QTableView* view)
    : RowDelegate(view), edits_(edits), view_(*view) {}

QComboBox* CellDelegate::MakeList(QWidget* parent, const QModelIndex& index, bool open) const {
  auto* self = const_cast<CellDelegate*>(this);  // the toolkit makes editors through a const interface
  auto* list = new QComboBox(parent);
  list->addItems(edits_.Choices(index.column()));
  list->setMaxVisibleItems(15);
  // As wide as what it offers: what pops up below it is no wider.
  constexpr int ArrowAndMargins = 50;
  int widest = 0;
  for (const QString& choice : edits_.Choices(index.column()))
    widest = std::max(widest, list->fontMetrics().horizontalAdvance(choice));
  list->setMinimumWidth(std::min(widest + ArrowAndMargins, parent->width()));
  if (open) {
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->completer()->setFilterMode(Qt::MatchContains);
    list->completer()->setCompletionMode(QCompleter::PopupCompletion);
    list->completer()->popup()->setProperty(EditorProperty, QVariant::fromValue<QWidget*>(list));
    list->completer()->popup()->installEventFilter(self);
  } else {
    QTimer::singleShot(0, list, &QComboBox::showPopup);
  }
  connect(list, &QComboBox::activated, self, [self, list] { self->Finish(*list); });
  return list;
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
  QWidget* editor = nullptr;
  switch (edits_.KindOf(index.column())) {
    case CellKind::Fixed:
      edits_.Take(index, {});
      return nullptr;
    case CellKind::Name:
      editor = new NameEdit(static_cast<int>(Routines::ChannelRecord::NameSize), parent);
      break;
    case CellKind::Number:
      editor = new QLineEdit(parent);
      break;
    case CellKind::OpenList:
      editor = MakeList(parent, index, true);
      break;
    case CellKind::ClosedList:
    case CellKind::Toggle:
      editor = MakeList(parent, index, false);
      break;
  }
  editor->setObjectName(CellEditorName);
  editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
  editor->setAccessibleDescription(editor->accessibleName());
  editor->setAutoFillBackground(true);
  editor->setProperty(CellProperty, QVariant::fromValue(QPersistentModelIndex(index)));
  return editor;
}

// Once: a change of the list does not take away what is being typed.
void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (editor->property(BeforeProperty).isValid()) return;
  Fill(*editor, index.data(Qt::DisplayRole).toString());
  editor->setProperty(BeforeProperty, TextIn(*editor));
}

void CellDelegate::Fill(QWidget& editor, const QString& cell) const {
  if (auto* field = qobject_cast<QLineEdit*>(&editor)) {
    field->setText(cell);
  } else if (auto* list = qobject_cast<QComboBox*>(&editor)) {
    list->setCurrentIndex(EntryOf(*list, cell));
    if (!list->isEditable()) return;
    list->setEditText(cell);
    list->lineEdit()->selectAll();
  }
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
  const QString typed = TextIn(*editor);
  if (typed != editor->property(BeforeProperty).toString()) edits_.Take(index, typed);
}

void CellDelegate::Close(QWidget& editor) {
  Q_EMIT commitData(&editor);
  Q_EMIT closeEditor(&editor, NoHint);
}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const {
  QRect place = option.rect;
  place.setWidth(std::max(place.width(), editor->minimumWidth()));
  const int outside = place.right() - editor->parentWidget()->width() + 1;
  if (outside > 0) place.translate(-std::min(outside, place.left()), 0);
  editor->setGeometry(place);
}

// Takes what is in the editor and closes it; where it is refused the editor stays open and says why.
bool CellDelegate::Finish(QWidget& editor) {
  const auto index = editor.property(CellProperty).value<QPersistentModelIndex>();
  const QString typed = TextIn(editor);
  const bool changed = index.isValid() && typed != editor.property(BeforeProperty).toString();
  const QString reason = changed ? edits_.Take(index, typed) : QString();
  if (reason.isEmpty()) {
    Q_EMIT closeEditor(&editor, NoHint);
    return true;
  }
  QToolTip::showText(editor.mapToGlobal(editor.rect().bottomLeft()), reason.toHtmlEscaped(), &editor);
  return false;
}

// Goes on with the next cell (1) or the one before (-1) that can be edited, in the next row where this one ends.
void CellDelegate::FinishAndStep(QWidget& editor, int step) {
  const auto index = editor.property(CellProperty).value<QPersistentModelIndex>();
  if (!Finish(editor) || !index.isValid()) return;
  const int columns = index.model()->columnCount();
  int row = index.row();
  int column = index.column();
  do {
    column += step;
    if (column < 0 || column >= columns) {
      row = RowBeside(view_, row, step);
      column = step > 0 ? 0 : columns - 1;
    }
    if (row < 0) return;
  } while (edits_.KindOf(column) == CellKind::Fixed || view_.isColumnHidden(column));
  const QModelIndex next = index.model()->index(row, column);
  view_.setCurrentIndex(next);
  view_.edit(next);
}

// What stands in the field counts when nothing of the list that has popped up is chosen.
bool CellDelegate::PopupKey(QWidget& popup, int key) {
  const auto& list = static_cast<QAbstractItemView&>(popup);
  auto* editor = popup.property(EditorProperty).value<QWidget*>();
  if ((key != Qt::Key_Return && key != Qt::Key_Enter) || list.currentIndex().isValid()) return false;
  popup.hide();
  Finish(*editor);
  return true;
}

bool CellDelegate::eventFilter(QObject* watched, QEvent* event) {
  auto* editor = qobject_cast<QWidget*>(watched);
  const bool popup = editor != nullptr && editor->property(EditorProperty).isValid();
  if (editor == nullptr || event->type() != QEvent::KeyPress)
    return popup ? false : RowDelegate::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (popup) return PopupKey(*editor, key);
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Finish(*editor);
      return true;
    case Qt::Key_Tab:
      FinishAndStep(*editor, 1);
      return true;
    case Qt::Key_Backtab:
      FinishAndStep(*editor, -1);
      return true;
    default:
      return RowDelegate::eventFilter(watched, event);
  }
}

// A cell of two values changes with a double click.
bool CellDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                               const QModelIndex& index) {
  const bool toggle =
      event->type() == QEvent::MouseButtonDblClick && edits_.KindOf(index.column()) == CellKind::Toggle;
  if (!toggle) return RowDelegate::editorEvent(event, model, option, index);
  const QString cell = index.data(Qt::DisplayRole).toString();
  const QStringList values = edits_.Choices(index.column());
  if (!cell.isEmpty()) edits_.Take(index, cell == values.front() ? values.back() : values.front());
  return true;
}

}  // namespace Ui
