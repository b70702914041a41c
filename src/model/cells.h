// The text and the colour of every cell of the two lists, decoded from the tables when it is asked for.
#pragma once

#include "model/routines.h"

#include <cstdint>
#include <string>

namespace Routines {

// Blue, green and red, from the highest byte down.
using Colour = std::uint32_t;

namespace Colours {
inline constexpr Colour Header = 0xC0FFC0;
inline constexpr Colour EmptySlot = 0xE0E0E0;
inline constexpr Colour Inactive = 0xC0C0C0;
inline constexpr Colour Tv = 0x00FFFF;
inline constexpr Colour Radio = 0xFFFF80;
inline constexpr Colour Service = 0xFF80FF;
inline constexpr Colour Transponder = 0xFFFFFF;
inline constexpr Colour DoubtfulTransponder = 0x8080FF;
inline constexpr Colour NoFrequency = 0x008000;
inline constexpr Colour Found = 0x0080FF;     // by the search for a name
inline constexpr Colour Filtered = 0x80C8FF;  // by the filter above the grid
}  // namespace Colours

// Header format strings: columns divided by "|", "^" centres and "<" aligns left, the length sets the width.
inline constexpr std::string_view ChannelHeader =
    "^Prog.|<Canale                         |^Transponder|^SID      |^VPID  |^APID  |^AECM  |^VECM  |^PCR   "
    "|^Codifica|^Attivo";
inline constexpr std::string_view TransponderHeader =
    "^Num.  |^Frequenza     |^TID      |^NID      |^Canali  |^SR        |^FEC     |^Polarizzazione|^22KHz   "
    "|^Satellite  |  Bouquet                 ";

// Columns of the two headers.
namespace ChannelColumn {
enum : int { Number, Name, Transponder, Sid, Vpid, Apid, Aecm, Vecm, Pcr, Flags, Active };
}
namespace TransponderColumn {
enum : int { Number, Frequency, Tid, Nid, Channels, SymbolRate, Fec, Polarisation, Tone, Satellite, Bouquet };
}

// Texts are bytes of the code page. `slot` is a slot of the table, `column` one of its header's.
std::string ChannelCell(const State& state, int slot, int column);
Colour ChannelColour(const State& state, int slot);

std::string TransponderCell(const State& state, int slot, int column);
Colour TransponderColour(const State& state, int slot, int column);

}  // namespace Routines
