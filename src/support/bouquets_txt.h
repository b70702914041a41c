// Bouquets.txt, the user's satellites and bouquets. Lines end with CR LF; of each kind:
//   # anything            comment, only with the # in the first column
//   NAME,anything,SAT=B   satellite: the line has "SAT=" in it and ends with its letter
//   NAME,FREQUENCY,NN     bouquet of the satellite above it: exactly two commas; MHz; two digits
#pragma once

#include "model/bouquets.h"

#include <string>
#include <string_view>
#include <vector>

namespace Support {

struct BouquetDefinitions {
  Routines::BouquetTables tables;
  std::vector<std::string> errors;  // UTF-8, one a bad line, in the order of the file
};

BouquetDefinitions BouquetsOf(std::string_view text);

// Reads Bouquets.txt of the program's folder; without one the tables are empty and nothing is said.
BouquetDefinitions LoadBouquets(const std::string& folder);

}  // namespace Support
