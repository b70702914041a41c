// The text of every cell of the two lists, decoded from the tables when it is asked for.
#pragma once

#include "model/routines.h"

#include <string>

namespace Routines {

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
std::string TransponderCell(const State& state, int slot, int column);

// The same of a record that is in no table, but for its number and its bouquet. `rates` is its list's symbol-rate table.
std::string CellOf(const ChannelRecord& channel, int column);
std::string CellOf(const TransponderRecord& record, std::string_view rates, int column);

// Whether a transponder's frequency cell shows that it has none, "0". Only that cell goes by the first byte: a slot is free
// when all four are 0.
inline bool ShowsNoFrequency(const TransponderRecord& transponder) { return transponder.bytes[0] == 0; }

}  // namespace Routines
