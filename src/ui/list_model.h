// The channel list and the transponder list as models: a cell is decoded when it is painted.
#pragma once

#include "model/cells.h"
#include "ui/document.h"
#include "ui/header_format.h"

#include <QAbstractTableModel>
#include <QColor>

namespace Ui {

QColor ToColor(Routines::Colour colour);

class ListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // One of the two lists, told by what it shows and how.
  struct Kind {
    std::string_view header;
    int (*rows)(const Routines::State&);
    std::string (*cell)(const Routines::State&, int slot, int column);
    Routines::Colour (*colour)(const Routines::State&, int slot, int column);
  };
  static const Kind Channels;
  static const Kind Transponders;

  ListModel(const Document& document, const Kind& kind, QObject* parent);

  [[nodiscard]] const std::vector<HeaderColumn>& Header() const { return header_; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void Refresh();

  const Document& document_;
  const Kind& kind_;
  std::vector<HeaderColumn> header_;
  int rows_ = 0;
};

}  // namespace Ui
