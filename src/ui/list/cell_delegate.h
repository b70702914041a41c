// Editing in the grid: the right editor for each cell, and what happens to what was typed.
#pragma once

#include "ui/list/row_look.h"

class QComboBox;
class QTableView;

namespace Ui {

inline constexpr const char* CellEditorName = "ModificaCella";

enum class CellKind { Fixed, Name, Number, OpenList, ClosedList, Toggle };

// The cells behind a grid. `column` is one of the header's.
class CellEdits {
 public:
  virtual ~CellEdits() = default;

  [[nodiscard]] virtual CellKind KindOf(int column) const = 0;
  // What a list offers; the first word or the whole of an entry is what the cell shows.
  [[nodiscard]] virtual QStringList Choices(int column) const = 0;
  // Stores what was typed. Empty, or the reason why the cell keeps what it had.
  virtual QString Take(const QModelIndex& cell, const QString& typed) = 0;
};

class CellDelegate : public RowDelegate {
  Q_OBJECT

 public:
  CellDelegate(CellEdits& edits, QTableView* view);

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  // Takes what is in an open editor, or drops it where it is refused, and closes the editor.
  void Close(QWidget& editor);
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  QComboBox* MakeList(QWidget* parent, const QModelIndex& index, bool open) const;
  void Fill(QWidget& editor, const QString& cell) const;
  bool Finish(QWidget& editor);
  void FinishAndStep(QWidget& editor, int step);
  bool PopupKey(QWidget& popup, int key);

  CellEdits& edits_;
  QTableView& view_;
};

}  // namespace Ui
