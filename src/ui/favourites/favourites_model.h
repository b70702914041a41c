// The entries of one favourites list, "0012 NAME" each, in the colour that the channel has in the grid.
#pragma once

#include "ui/list/document.h"

#include <QAbstractListModel>

namespace Ui {

// Dragged entries: the number of their list and their places in it, all from 0.
inline constexpr const char* FavouritesType = "application/x-trovalis-preferiti";

class FavouritesModel : public QAbstractListModel {
  Q_OBJECT

 public:
  FavouritesModel(const Document& document, std::size_t list, QObject* parent);

  [[nodiscard]] int Slot(int row) const { return entries_[static_cast<std::size_t>(row)]; }

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] Qt::DropActions supportedDropActions() const override;
  [[nodiscard]] QStringList mimeTypes() const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 Q_SIGNALS:
  // Entries at `places` of a list were dropped in front of `before`.
  void Dropped(std::size_t list, std::vector<std::size_t> places, std::size_t before);
  // Rows of the channel grid were.
  void ChannelsDropped(const std::vector<int>& slots, std::size_t before);

 private:
  void Refresh();

  const Document& document_;
  std::size_t list_;
  std::vector<int> entries_;
};

}  // namespace Ui
