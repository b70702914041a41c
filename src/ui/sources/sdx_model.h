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

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;

 protected:
  [[nodiscard]] QString CellText(int row, int column) const override;
  [[nodiscard]] Colour CellColour(int row, int column) const override;

 private:
  const Formats::SdxTable& table_;
  int rows_ = 0;
};

}  // namespace Ui
