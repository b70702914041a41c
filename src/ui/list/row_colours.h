// The colours of the grids: what a kind of row, or a mark on one, looks like.
#pragma once

#include "model/row_kind.h"

#include <QColor>

#include <cstdint>

namespace Ui {

// The ground of a cell, and whether light letters are needed on it.
struct Colour {
  std::uint32_t value = 0xFFFFFF;  // blue, green and red, from the highest byte down
  bool dark = false;

  friend bool operator==(const Colour&, const Colour&) = default;
};

namespace Colours {
inline constexpr Colour Header{0xC0FFC0};
inline constexpr Colour NoFrequency{0x008000, true};  // the frequency cell of a transponder that has none
inline constexpr Colour Found{0x0080FF};              // by the search for a name; at the edge, by the filter
inline constexpr Colour Wrong{0x8080FF};              // whatever should be looked at
inline constexpr Colour InList{0x006000};             // the tick of a row that the channel list has
}  // namespace Colours

// Of a row of the two lists, and of one of the SDX table, which are paler.
Colour ColourOf(Routines::RowKind kind);
Colour SdxColourOf(Routines::RowKind kind);

QColor ToColor(Colour colour);
// Of the letters on it.
inline QColor TextOn(Colour colour) { return colour.dark ? Qt::white : Qt::black; }

}  // namespace Ui
