// One of the favourites lists in their window: its name, how full it is, its entries.
#pragma once

#include "ui/favourites/favourites_edits.h"
#include "ui/favourites/favourites_model.h"

#include <QWidget>

class QLabel;
class QListView;

namespace Ui {

class NameEdit;

class FavouritesList : public QWidget {
  Q_OBJECT

 public:
  FavouritesList(const Document& document, FavouritesEdits& edits, std::size_t list, QWidget* parent);

  [[nodiscard]] std::size_t Number() const { return list_; }
  [[nodiscard]] QListView& Entries() const { return *entries_; }
  // Places of the selected entries, in order.
  [[nodiscard]] FavouritesEdits::Places Selected() const;
  void Select(std::size_t first, std::size_t count);

  void RemoveSelected();
  // Moves the selected entries one up (-1) or down (1).
  void MoveSelected(int rows);
  void GoToCurrent();

 Q_SIGNALS:
  // The user works in this list now.
  void Entered();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildEntries();
  [[nodiscard]] QString StoredName() const;
  void Refresh();
  void Rename();
  void TakeDrop(std::size_t list, const FavouritesEdits::Places& places, std::size_t before);

  const Document& document_;
  FavouritesEdits& edits_;
  std::size_t list_;
  FavouritesModel model_;
  NameEdit* name_;
  QLabel* count_;
  QListView* entries_;
};

}  // namespace Ui
