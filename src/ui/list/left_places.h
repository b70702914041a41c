// Where the views of each list were left, so that a list that is shown again, taken back or opened again is seen there.
#pragma once

#include "ui/list/grid_place.h"

#include <map>
#include <optional>
#include <string>

namespace Ui {

enum class View { None, Channels, Transponders };

class LeftPlaces {
 public:
  // The list with this number comes from a file; other lists of that file, opened before, are known by it.
  void SetFile(int list, const std::string& path);
  [[nodiscard]] std::string FileOf(int list) const;

  void Keep(int list, View view, GridPlace place);
  // Nothing where neither the list nor another one of its file has been left in that view.
  [[nodiscard]] std::optional<GridPlace> Of(int list, View view) const;

 private:
  struct Left {
    std::string path;
    std::map<View, GridPlace> places;
  };

  std::map<int, Left> lists_;  // by number, which rises
};

}  // namespace Ui
