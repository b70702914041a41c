// What a grid shows: a table with a header of its own.
#pragma once

#include "ui/list/header_format.h"
#include "ui/list/row_colours.h"

#include <QAbstractTableModel>

#include <cstdint>

namespace Ui {

// Dragged rows, their numbers from 1 on divided by blanks: of the channel list and of the SDX table.
inline constexpr const char* SlotsType = "application/x-trovalis-slots";
inline constexpr const char* SdxRowsType = "application/x-trovalis-sdx";

// The rows that dragged data of a type names, in rising order; none where there is no such data.
std::vector<int> RowsIn(const QMimeData& data, const char* type);

class TableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Rows = std::vector<int>;  // in rising order

  TableModel(std::string_view header, QObject* parent);

  [[nodiscard]] const std::vector<HeaderColumn>& Header() const { return header_; }
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  // Whether there is anything in a row, which counts from 1; "everything" is all such rows.
  [[nodiscard]] virtual bool Used(int /*row*/) const { return true; }
  // Whether it is a row of another list that the channel list has too, and whether there may be any.
  [[nodiscard]] virtual bool InChannelList(int /*row*/) const { return false; }
  [[nodiscard]] virtual bool KnowsChannelList() const { return false; }

  // A number that tells what the cells of some rows say from anything else that they may say later.
  [[nodiscard]] std::uint32_t Fingerprint(const Rows& rows) const;

  // The rows that the filter finds, which have a mark at their edge; the rows whose mark changes are painted anew.
  void SetFound(const Rows& rows);
  [[nodiscard]] bool Found(int row) const;

 protected:
  // What the tip of a row's cells says; nothing where it is empty.
  [[nodiscard]] virtual QString Tip(int /*row*/) const { return {}; }
  // Text and colour of a cell; `row` counts from 1.
  [[nodiscard]] virtual QString CellText(int row, int column) const = 0;
  [[nodiscard]] virtual Colour CellColour(int row, int column) const = 0;
  // What colours and marks of a row say, for those who do not see them; told once a row, with its name.
  [[nodiscard]] virtual QString Spoken(int row) const { return Found(row) ? "trovato" : ""; }

  // The rows of some cells as dragged data of a type.
  [[nodiscard]] static QMimeData* RowsAs(const char* type, const QModelIndexList& indexes);

 private:
  std::vector<HeaderColumn> header_;
  std::vector<bool> found_;  // by row; may be shorter than the list
};

}  // namespace Ui
