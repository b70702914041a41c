// Editing in the grid: the right editor for each cell, and what happens to what was typed.
#pragma once

#include <QStyledItemDelegate>

class QComboBox;

namespace Ui {

enum class CellKind { Fixed, Name, Number, OpenList, ClosedList, Toggle };

// The cells behind a grid. `slot` counts from 1, `column` is one of the header's.
class CellEdits {
 public:
  virtual ~CellEdits() = default;

  [[nodiscard]] virtual CellKind KindOf(int column) const = 0;
  // What a list offers; the first word or the whole of an entry is what the cell shows.
  [[nodiscard]] virtual QStringList Choices(int column) const = 0;
  // Stores what was typed. Empty, or the reason why the cell keeps what it had.
  virtual QString Take(int slot, int column, const QString& typed) = 0;
};

class CellDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  CellDelegate(CellEdits& edits, QObject* parent) : QStyledItemDelegate(parent), edits_(edits) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  QComboBox* MakeList(QWidget* parent, const QModelIndex& index, bool open) const;
  bool Finish(QWidget& editor, EndEditHint hint);

  CellEdits& edits_;
};

}  // namespace Ui
