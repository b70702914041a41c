// The columns of each kind of line of the text format, for its writer and its reader alike.
#pragma once

#include "base/columns.h"
#include "model/channel.h"
#include "model/transponder.h"

#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

namespace Formats::TextColumns {

namespace ChannelField = Routines::ChannelField;
namespace TransponderField = Routines::TransponderField;
using Base::Column;
using Routines::ChannelRecord;
using Routines::Field;
using Routines::TransponderRecord;
using Routines::TransponderRow;

namespace ChannelLine {
inline constexpr Column Slot{1, 4}, Name{6, 16}, Coding{63, 2}, Active{66, 1};
inline constexpr std::size_t Width = 66;
struct NumberField {
  Column column;
  Field<ChannelRecord> field;
};
inline constexpr NumberField Numbers[] = {{{23, 3}, ChannelField::Transponder}, {{27, 5}, ChannelField::Sid},
                                          {{33, 5}, ChannelField::Vpid},        {{39, 5}, ChannelField::Apid},
                                          {{45, 5}, ChannelField::Aecm},        {{51, 5}, ChannelField::Vecm},
                                          {{57, 5}, ChannelField::Pcr}};
}  // namespace ChannelLine

namespace TransponderLine {
inline constexpr Column Number{1, 3}, Frequency{5, 5}, Rate{29, 5}, Fec{35, 3}, Polarisation{39, 1},
    Tone{41, 3}, ToneOn{41, 2}, SatelliteWord{44, 5}, Satellite{49, 1}, Bouquet{51, Base::ToLineEnd};
inline constexpr std::size_t Width = Bouquet.first - 1 + TransponderRow::BouquetNameSize;
struct NumberField {
  Column column;
  Field<TransponderRecord> field;
};
inline constexpr NumberField Numbers[] = {{{11, 5}, TransponderField::Tid},
                                          {{17, 5}, TransponderField::Nid},
                                          {{23, 5}, TransponderField::ChannelCount}};
}  // namespace TransponderLine

namespace FavouriteLine {
inline constexpr Column List{1, 2}, Name{5, Base::ToLineEnd}, Slot{1, 4};
}  // namespace FavouriteLine

// What ends a section, wherever in a line it stands.
inline constexpr std::string_view ChannelsEnd = "[END CANALI]", TranspondersEnd = "[END TRANSPONDERS]",
                                  FavouritesEnd = "[END PREFERITI]";

// Hands over each entry of a table with its numbers known when the program is built, which makes a line's columns
// as cheap as if they were spelled out.
template <const auto& Table, class Work>
void ForEach(Work work) {
  [&work]<std::size_t... Index>(std::index_sequence<Index...>) { (work(Table[Index]), ...); }
  (std::make_index_sequence<std::size(Table)>());
}

}  // namespace Formats::TextColumns
