// Grid headers given as one string: "^Prog.|<Canale    |  Bouquet ".
#pragma once

#include <QString>
#include <Qt>

#include <string_view>
#include <vector>

namespace Ui {

struct HeaderColumn {
  QString title;      // without the blanks that only set the width
  QString widthText;  // as wide as the column is to be
  Qt::Alignment alignment;
};

// "^" centres a column and "<" aligns it left, as it is without either.
std::vector<HeaderColumn> ParseHeader(std::string_view format);

}  // namespace Ui
