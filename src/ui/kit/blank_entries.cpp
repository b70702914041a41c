#include "ui/kit/blank_entries.h"

#include <QComboBox>
#include <QListWidget>
#include <QStyledItemDelegate>

namespace Ui {
namespace {

constexpr const char* Blank = "(vuota)";

class BlankNamed : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!option->text.trimmed().isEmpty()) return;
    option->text = Blank;
    option->features |= QStyleOptionViewItem::HasDisplay;
  }
};

void NameBlanks(QAbstractItemModel& entries) {
  for (int row = 0; row < entries.rowCount(); ++row) {
    const QModelIndex entry = entries.index(row, 0);
    if (entry.data().toString().trimmed().isEmpty()) entries.setData(entry, Blank, Qt::AccessibleTextRole);
  }
}

}  // namespace

void NameBlankEntries(QListWidget& list) {
  list.setItemDelegate(new BlankNamed(&list));
  NameBlanks(*list.model());
}

void NameBlankEntries(QComboBox& list) {
  list.setItemDelegate(new BlankNamed(&list));
  NameBlanks(*list.model());
}

}  // namespace Ui
