// What a grid shows: a table with a header of its own.
#pragma once

#include "ui/list/header_format.h"
#include "ui/list/row_colours.h"

#include <QAbstractTableModel>

namespace Ui {

// Dragged rows, as "FIRST LAST" from 1 on: of the channel list and of the SDX table.
inline constexpr const char* SlotsType = "application/x-trovalis-slots";
inline constexpr const char* SdxRowsType = "application/x-trovalis-sdx";

class TableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  TableModel(std::string_view header, QObject* parent);

  [[nodiscard]] const std::vector<HeaderColumn>& Header() const { return header_; }
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 protected:
  // Text and colour of a cell; `row` counts from 1.
  [[nodiscard]] virtual QString CellText(int row, int column) const = 0;
  [[nodiscard]] virtual Colour CellColour(int row, int column) const = 0;

  // The rows of some cells as dragged data of a type.
  [[nodiscard]] static QMimeData* RowsAs(const char* type, const QModelIndexList& indexes);

 private:
  std::vector<HeaderColumn> header_;
};

}  // namespace Ui
