// An order of channels without their data: from a text, a userbouquet, or any list of services.
#pragma once

#include "formats/listed_service.h"
#include "model/order.h"

namespace Formats {

using Routines::Order;
using Routines::OrderEntry;

// "number;name;NID-TID-SID" a line, ids decimal or with "0x" hexadecimal, any field empty; or a name alone. A line that begins
// with "#" is a comment. `text` is bytes of the code page or UTF-8. A line whose number or ids cannot be read counts as
// unreadable as a whole.
Order ReadOrderText(std::string_view text);
// Whether lines have those fields; names alone could be any text.
bool IsOrderText(std::string_view text);

// The text that reads as the same order, but for positions: lines end with CR LF, bytes are UTF-8 behind a byte-order mark.
std::string WriteOrderText(const Order& order);

// The services of a list, from where the reader stands.
Order OrderOf(ServiceReader& reader);

}  // namespace Formats
