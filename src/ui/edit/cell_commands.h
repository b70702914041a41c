// The commands that change fields of channels and transponders: in the cells of the grid, and for all selected rows.
#pragma once

#include "ui/list/cell_delegate.h"
#include "ui/session/session.h"

namespace Ui {

class CellCommands : public CellEdits {
 public:
  explicit CellCommands(Session& session) : session_(session) {}

  [[nodiscard]] CellKind KindOf(int column) const override;
  [[nodiscard]] QStringList Choices(int column) const override;
  QString Take(const QModelIndex& cell, const QString& typed) override;

  // Opens the editor of the current row's name.
  void Rename();
  // Puts an empty row in front of each run of selected rows for every row in it.
  void InsertRows();
  // Sets a column of the selected channels; those for a transponder and another coding ask for it.
  void SetColumn(int column, const QString& value);
  void AskTransponder();
  void AskCoding();
  // Shows the transponder of the current channel.
  void GoToTransponder();

 private:
  [[nodiscard]] bool Channels() const { return session_.view.Current() == View::Channels; }
  // The selected channels; none while another list is shown.
  [[nodiscard]] Edit::Slots Rows() const;
  [[nodiscard]] std::string ToldEdit(bool channel, int slot) const;

  Session& session_;
};

}  // namespace Ui
