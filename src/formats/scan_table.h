// Lists of transponders, to check a list's own by: scan tables, and the .ini files that web sites give away.
#pragma once

#include "formats/listed_service.h"

#include <set>
#include <tuple>

namespace Formats {

// [SATTYPE] with position and name, [DVB] with lines "62=11919,V,27500,23,S2,8PSK". Position and name are the whole file's.
bool IsTransponderIni(std::string_view text);
TransponderList ReadTransponderIni(std::string_view text);

// The position at the end of a scan table's file name, "Hotbird-13.0E"; nothing where there is none.
std::optional<int> PositionInFileName(std::string_view name);

// Transponders, each once by position, frequency and polarisation; those without a frequency not at all.
class DistinctTransponders {
 public:
  void Add(const ListedTransponder& transponder);
  std::vector<ListedTransponder> list;  // in the order in which they came

 private:
  std::set<std::tuple<int, int, Polarisation>> seen_;
};

// The transponders of a list's services, each once, in the order of their first services.
TransponderList TranspondersOf(ServiceReader& reader);

}  // namespace Formats
