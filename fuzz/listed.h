// What has to hold of today's lists, whatever reader they come from.
#pragma once

#include "formats/order_list.h"
#include "fuzz_support.h"

#include <functional>

namespace Fuzz {

using OpenReader = std::function<std::unique_ptr<Formats::ServiceReader>()>;

// Takes options off the input's front and reads the services with them, each time with a new reader.
void CheckServices(Input& choices, const OpenReader& open);
void CheckTransponders(const Formats::TransponderList& list);
void CheckOrder(const Formats::Order& order);

}  // namespace Fuzz
