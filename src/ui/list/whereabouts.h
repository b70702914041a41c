// What the line under the grid and the tips of its cells say of a channel.
#pragma once

#include "ui/list/document.h"

#include <QString>

namespace Ui {

class Whereabouts {
 public:
  explicit Whereabouts(const Document& document) : document_(document) {}

  [[nodiscard]] QString Of(int slot) const;

 private:
  const Document& document_;
  // Looked for anew only where the list has changed since.
  mutable std::vector<std::vector<int>> doubles_;
  mutable int revision_ = -1;
};

}  // namespace Ui
