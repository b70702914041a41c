// Editing the favourites lists, from the grid and from their own window. Lists are 0..7.
#pragma once

#include "edit/favourites_edit.h"
#include "ui/session/session.h"

#include <string>
#include <vector>

namespace Ui {

class FavouritesEdits {
 public:
  explicit FavouritesEdits(Session& session) : session_(session) {}

  // Adds channels of the grid: the selected ones at a list's end, or some slots in front of `place`.
  void AddSelected(std::size_t list);
  void AddSlots(std::size_t list, const Edit::Slots& slots, std::size_t place);

  // What the filter has found, and what a file lists, at the end of a list; both are shown before.
  void AddFound(std::size_t list, QWidget* parent);
  void AddFromFile(std::size_t list, QWidget* parent);
  // Puts the channels of a list into its order, or shows why they cannot be; shown before as well.
  void OrderChannels(std::size_t list, Edit::OrderPlace place, QWidget* parent);

  using Places = std::vector<std::size_t>;
  void Remove(std::size_t list, const Places& places);
  // In front of `before` of a list, the same or another one. Returns the first place moved to.
  std::size_t Move(std::size_t list, const Places& places, std::size_t target, std::size_t before);
  void Sort(std::size_t list, Edit::FavouriteOrder order);
  // False where the name is refused.
  bool Rename(std::size_t list, const QString& name);
  // Shows a channel in the grid.
  void GoTo(int slot);

  [[nodiscard]] QString Title(std::size_t list) const;

 private:
  // `missing` are names that the list on the disk has and this one has not, `unreadable` says what else it has.
  void AddSeen(std::size_t list, const std::vector<int>& slots, const QStringList& missing,
               const QString& unreadable, QWidget* parent);
  void Add(std::size_t list, const std::vector<int>& slots, std::size_t place);
  [[nodiscard]] std::string ToldEntries(std::size_t list, const Places& places, const char* one,
                                        const char* more, const QString& where) const;
  void Tell(const QString& text);
  bool Any(const Places& places);

  Session& session_;
};

}  // namespace Ui
