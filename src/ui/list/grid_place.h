// Where a grid was left, to come back to it: its first visible row, the current cell, and the selected rows with a
// fingerprint of what stands in them, as none may be selected that holds something else by then.
#pragma once

#include "edit/list_operations.h"

#include <QString>

#include <cstdint>

namespace Ui {

struct GridPlace {
  int top = 1;       // rows count from 1
  int sideways = 0;  // pixels
  int row = 1;
  int column = 1;  // from 0
  Edit::Slots selected = {};
  std::uint32_t fingerprint = 0;
};

// As text for a settings file, and back; from anything else the start of a list comes.
QString PlaceText(const GridPlace& place);
GridPlace PlaceFrom(const QString& text);

}  // namespace Ui
