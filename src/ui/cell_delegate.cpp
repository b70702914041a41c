#include "ui/cell_delegate.h"

#include "model/channel.h"
#include "ui/name_edit.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QTimer>
#include <QToolTip>

namespace Ui {
namespace {

constexpr const char* CellProperty = "cella";

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

}  // namespace

QComboBox* CellDelegate::MakeList(QWidget* parent, const QModelIndex& index, bool open) const {
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
  } else {
    QTimer::singleShot(0, list, &QComboBox::showPopup);
  }
  auto* self = const_cast<CellDelegate*>(this);  // the toolkit makes editors through a const interface
  connect(list, &QComboBox::activated, self, [self, list] { self->Finish(*list, NoHint); });
  return list;
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
  QWidget* editor = nullptr;
  switch (edits_.KindOf(index.column())) {
    case CellKind::Fixed:
      edits_.Take(index.row() + 1, index.column(), {});
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
  editor->setObjectName("ModificaCella");
  editor->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
  editor->setAutoFillBackground(true);
  editor->setProperty(CellProperty, QVariant::fromValue(QPersistentModelIndex(index)));
  return editor;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString cell = index.data(Qt::DisplayRole).toString();
  if (auto* field = qobject_cast<QLineEdit*>(editor)) {
    field->setText(cell);
  } else if (auto* list = qobject_cast<QComboBox*>(editor)) {
    list->setCurrentIndex(EntryOf(*list, cell));
    if (!list->isEditable()) return;
    list->setEditText(cell);
    list->lineEdit()->selectAll();
  }
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
  edits_.Take(index.row() + 1, index.column(), TextIn(*editor));
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
bool CellDelegate::Finish(QWidget& editor, EndEditHint hint) {
  const auto index = editor.property(CellProperty).value<QPersistentModelIndex>();
  const QString reason =
      index.isValid() ? edits_.Take(index.row() + 1, index.column(), TextIn(editor)) : QString();
  if (reason.isEmpty()) {
    Q_EMIT closeEditor(&editor, hint);
    return true;
  }
  QToolTip::showText(editor.mapToGlobal(editor.rect().bottomLeft()), reason.toHtmlEscaped(), &editor);
  return false;
}

bool CellDelegate::eventFilter(QObject* watched, QEvent* event) {
  auto* editor = qobject_cast<QWidget*>(watched);
  if (editor == nullptr || event->type() != QEvent::KeyPress)
    return QStyledItemDelegate::eventFilter(watched, event);
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Finish(*editor, NoHint);
      return true;
    case Qt::Key_Tab:
      Finish(*editor, EditNextItem);
      return true;
    case Qt::Key_Backtab:
      Finish(*editor, EditPreviousItem);
      return true;
    default:
      return QStyledItemDelegate::eventFilter(watched, event);
  }
}

// A cell of two values changes with a double click.
bool CellDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                               const QModelIndex& index) {
  const bool toggle =
      event->type() == QEvent::MouseButtonDblClick && edits_.KindOf(index.column()) == CellKind::Toggle;
  if (!toggle) return QStyledItemDelegate::editorEvent(event, model, option, index);
  const QString cell = index.data(Qt::DisplayRole).toString();
  const QStringList values = edits_.Choices(index.column());
  if (!cell.isEmpty())
    edits_.Take(index.row() + 1, index.column(), cell == values.front() ? values.back() : values.front());
  return true;
}

}  // namespace Ui
