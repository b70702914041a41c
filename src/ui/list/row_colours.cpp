#include "ui/list/row_colours.h"

namespace Ui {

using Routines::RowKind;

Colour ColourOf(RowKind kind) {
  switch (kind) {
    case RowKind::Tv:
      return {0x00FFFF};
    case RowKind::Radio:
      return {0xFFFF80};
    case RowKind::Service:
      return {0xFF80FF};
    case RowKind::Inactive:
      return {0xC0C0C0};
    case RowKind::EmptySlot:
      return {0xE0E0E0};
    case RowKind::DoubtfulTransponder:
      return Colours::Wrong;
    case RowKind::Transponder:
    case RowKind::FreeTransponder:
      break;
  }
  return {0xFFFFFF};
}

Colour SdxColourOf(RowKind kind) {
  return kind == RowKind::Tv      ? Colour{0x80FFFF}
         : kind == RowKind::Radio ? Colour{0xFFFFC0}
                                  : Colour{0xFFC0FF};
}

QColor ToColor(Colour colour) {
  return {static_cast<int>(colour.value & 255U), static_cast<int>(colour.value >> 8U & 255U),
          static_cast<int>(colour.value >> 16U & 255U)};
}

}  // namespace Ui
