// The channel list and the transponder list as models: a cell is decoded when it is painted.
#pragma once

#include "model/cells.h"
#include "ui/list/document.h"
#include "ui/list/table_model.h"

#include <functional>
#include <set>

namespace Ui {

class ListModel : public TableModel {
  Q_OBJECT

 public:
  // One of the two lists, told by what it shows and how.
  struct Kind {
    std::string_view header;
    int (*rows)(const Routines::State&);
    std::string (*cell)(const Routines::State&, int slot, int column);
    Routines::RowKind (*rowKind)(const Routines::State&, int slot);
    bool (*used)(const Routines::State&, int slot);
    bool movable;  // rows can be dragged to other places
  };
  static const Kind Channels;
  static const Kind Transponders;

  ListModel(const Document& document, const Kind& kind, QObject* parent);

  [[nodiscard]] bool OfChannels() const { return &kind_ == &Channels; }

  // What the tips of the rows say; may be empty.
  std::function<QString(int slot)> tip;

  // Rows that the search for a name has found are painted in a colour of their own until the list changes.
  void Paint(int slot);
  void ClearPaint();

  [[nodiscard]] bool Used(int slot) const override { return kind_.used(document_.Tables(), slot); }
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] Qt::DropActions supportedDropActions() const override;
  [[nodiscard]] QStringList mimeTypes() const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 Q_SIGNALS:
  // Rows were dropped in front of slot `before`; those of the SDX table have their numbers there.
  void Dropped(const Rows& slots, int before, bool copy);
  void SdxDropped(const Rows& rows, int before);

 protected:
  [[nodiscard]] QString CellText(int slot, int column) const override;
  [[nodiscard]] Colour CellColour(int slot, int column) const override;
  [[nodiscard]] QString Spoken(int slot) const override;
  [[nodiscard]] QString Tip(int slot) const override { return tip ? tip(slot) : QString(); }

 private:
  void Refresh();

  const Document& document_;
  const Kind& kind_;
  int rows_ = 0;
  std::set<int> painted_;
};

}  // namespace Ui
