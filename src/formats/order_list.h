// An order of channels without their data: from a text, a userbouquet, or any list of services.
#pragma once

#include "formats/listed_service.h"

namespace Formats {

struct OrderEntry {
  int number = 0;    // the channel's place in the list; 0 where the list gives none
  std::string name;  // bytes of the code page; may be empty where there are ids
  std::optional<int> position;
  int nid = NotSaid;
  int tid = NotSaid;
  int sid = NotSaid;

  friend bool operator==(const OrderEntry&, const OrderEntry&) = default;
};

struct Order {
  std::string name;  // of the list, where it has one; bytes of the code page
  std::vector<OrderEntry> entries;
  int unreadable = 0;  // lines that should be channels and are none that a satellite brings

  friend bool operator==(const Order&, const Order&) = default;
};

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
