// How the rows of a list look: on the colour that their model gives them or, where the user wants colours that tire less, on
// a tint of it.
#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace Ui {

// What the user wants, in all windows.
class RowLook : public QObject {
  Q_OBJECT

 public:
  static RowLook& OfProgram();

  [[nodiscard]] bool Soft() const { return soft_; }
  void SetSoft(bool soft);

  // What a colour of the system's is shown as: behind text, where a tint is close enough to the palette's own ground for
  // the palette's letters, and as a mark, where a glaring one is darker.
  [[nodiscard]] QColor Ground(const QColor& colour, const QPalette& palette) const;
  [[nodiscard]] QColor Mark(const QColor& colour, const QPalette& palette) const;

 Q_SIGNALS:
  void Changed();

 private:
  using QObject::QObject;

  bool soft_ = false;
};

// Paints rows so. The selection is a frame then, which lets the tint be seen.
class RowDelegate : public QStyledItemDelegate {
 public:
  explicit RowDelegate(QAbstractItemView* view);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  static constexpr int StripWidth = 5;

  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
  [[nodiscard]] const RowLook& Look() const { return look_; }
  // A tint alone tells the kinds of rows badly: their colour at the right edge of a cell. `cell` is one that has it.
  void PaintStrip(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& cell) const;

 private:
  const RowLook& look_;
};

}  // namespace Ui
