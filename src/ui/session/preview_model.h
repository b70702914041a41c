// What a command for many channels would do, a line for each, before it does it.
#pragma once

#include "model/per_slot.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

class QDialog;
class QDialogButtonBox;
class QPushButton;
class QTableView;

namespace Ui {

struct PreviewLine {
  int slot = 0;       // 0 for what has none
  QStringList cells;  // those behind the number
  QString fault;      // why the line cannot be done; empty where it can
};

// The channels of `slots` where a map puts them: number to be, name, number now where that is another one. Those that find
// no place come first, as lines that cannot be done.
std::vector<PreviewLine> LinesOf(const Routines::State& state, const Routines::SlotMap& map,
                                 const std::vector<int>& slots);

class PreviewModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // `titles` are those of the cells behind the number; with ticks each line can be left out.
  PreviewModel(QStringList titles, bool ticks, QObject* parent);

  // A line that was left out stays so as long as its channel has one.
  void Show(std::vector<PreviewLine> lines);

  [[nodiscard]] const std::vector<PreviewLine>& Lines() const { return lines_; }
  // Whether a line, by its place, is to be done.
  [[nodiscard]] bool Ticked(std::size_t line) const;
  [[nodiscard]] int TickedLines() const;
  void TickAll(bool ticked);
  [[nodiscard]] bool HasTicks() const { return ticks_; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role = Qt::DisplayRole) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 Q_SIGNALS:
  void TicksChanged();

 private:
  QStringList titles_;
  bool ticks_;
  std::vector<PreviewLine> lines_;
  std::vector<int> leftOut_;  // slots, rising
};

// The buttons below a preview: one that follows it, one that cancels, and, where it has ticks, two that set and take off
// all of them.
struct PreviewButtons {
  PreviewButtons(QDialog& dialog, PreviewModel& preview, const QString& caption);

  QDialogButtonBox* box;
  QPushButton* confirm;
};

// Shows a preview in a table with columns as wide as that many letters; the last one takes the rest.
void ShowPreview(QTableView& table, PreviewModel& preview, const std::vector<int>& letters);

}  // namespace Ui
