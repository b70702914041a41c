// The SDX table as a model.
#pragma once

#include "formats/satcodx.h"
#include "review/filter.h"
#include "ui/list/table_model.h"

namespace Ui {

class SdxModel : public TableModel {
  Q_OBJECT

 public:
  SdxModel(const Formats::SdxTable& table, QObject* parent);

  // The table holds other rows now.
  void Refresh();

  // The rows that a filter finds, in rising order, from 1.
  [[nodiscard]] Rows Matching(const Review::Filter& filter) const;

  // By row: the slot of the channel list that has its service too, 0 for none.
  void ShowSlots(std::vector<int> slots);
  [[nodiscard]] int SlotOf(int row) const;
  [[nodiscard]] bool InChannelList(int row) const override { return SlotOf(row) != 0; }
  [[nodiscard]] bool KnowsChannelList() const override { return true; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;

 protected:
  [[nodiscard]] QString CellText(int row, int column) const override;
  [[nodiscard]] Colour CellColour(int row, int column) const override;
  [[nodiscard]] QString Tip(int row) const override;
  [[nodiscard]] QString Spoken(int row) const override;

 private:
  const Formats::SdxTable& table_;
  int rows_ = 0;
  std::vector<int> slots_;  // may be shorter than the table
};

}  // namespace Ui
