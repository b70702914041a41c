// userbouquet.* of Linux receivers: the order of a bouquet, whose services are described in lamedb.
#pragma once

#include "formats/order_list.h"

namespace Formats {

bool IsUserBouquet(std::string_view text);

// Services in the order of the file, each with its ids, its position and, where the file gives one, its name. Markers are
// left out; other bouquets and streams count as unreadable.
Order ReadUserBouquet(std::string_view text);

}  // namespace Formats
