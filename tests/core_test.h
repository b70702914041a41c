// What the tests of the core have in common: records to make lists and images of, and files in a folder of their own.
#pragma once

#include "image_builder.h"
#include "model/favourites.h"
#include "model/flash_image.h"
#include "model/symbol_rates.h"
#include "support/test_folder.h"

#include <gtest/gtest.h>

#include <memory>

namespace Tests {

// With nothing but the two rates that every list has.
inline std::string UsualRates(Routines::Sr22000 place = Routines::Sr22000::Come2) {
  std::string table = Routines::EmptySymbolRateTable();
  PlaceUsualRates(table, place);
  return table;
}

}  // namespace Tests
