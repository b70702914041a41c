// The windows that are measured: the program's own, and a plain table that shows constant cells in its place.
#pragma once

#include "ui/list/document.h"
#include "ui/list/grid.h"
#include "ui/window/main_window.h"

#include <QAbstractTableModel>
#include <QTemporaryDir>

#include <memory>

namespace Bench {

// Where the toolkit's events have done all that they are going to do.
void Settle();

// Does `work` and waits for the next picture of `view`.
void UntilPainted(QWidget& view, const std::function<void()>& work);

// Paints every cell in view, the fixed column's too.
void RepaintCells(QTableView& table);

// Every cell has the same text, alignment and colours, ready made.
class ConstantModel : public QAbstractTableModel {
 public:
  ConstantModel(int rows, int columns) : rows_(rows), columns_(columns) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  int rows_;
  int columns_;
};

// A window with a plain table whose rows and columns are as many and as large as those of a grid with a list.
class PlainWindow {
 public:
  explicit PlainWindow(const Ui::Grid& like);

  void ShowList() { table_->setModel(&model_); }
  [[nodiscard]] QTableView& Table() const { return *table_; }

 private:
  ConstantModel model_;
  QMainWindow window_;
  QTableView* table_;
};

// The program's window with its settings chosen, answering its own questions.
class ListWindow {
 public:
  explicit ListWindow(int channels);

  void OpenFlash();
  [[nodiscard]] Ui::Grid& Grid() const;
  [[nodiscard]] Ui::MainWindow& Window() const { return *window_; }

 private:
  QTemporaryDir folder_;
  std::unique_ptr<Ui::MainWindow> window_;
};

}  // namespace Bench
