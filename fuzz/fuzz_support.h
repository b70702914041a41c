// What the fuzz targets share: taking an input apart, and ending the run when something does not hold.
#pragma once

#include "base/bytes.h"
#include "formats/satcodx.h"
#include "model/bouquets.h"
#include "model/routines.h"

#include <array>
#include <memory>
#include <string>

namespace Fuzz {

// Ends the run, and so reports the input, unless `holds`.
void Require(bool holds, const char* what);

// Takes an input apart from its front; past its end every number is 0 and every run is empty.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }
  std::size_t Byte();
  std::size_t Word();  // two bytes, low byte first
  Base::ByteView Run(std::size_t most);
  std::string_view Text();  // all that is left

 private:
  Base::ByteView rest_;
};

// The capacities of the receivers; any number chooses one.
inline int CapacityOf(std::size_t number) { return std::array<int, 3>{999, 2000, 3996}[number % 3]; }

// A table with all sixteen rates, and bouquets for the first two satellites.
const std::string& SymbolRates();
const Routines::BouquetTables& Bouquets();

// An empty list with those symbol rates.
std::unique_ptr<Routines::State> EmptyList();

// The demo list under those symbol rates.
std::unique_ptr<Routines::State> DemoList();

// Whether the eight lists have the same entries and, but for blanks at their ends, the same names.
bool SameFavourites(const Routines::State& one, const Routines::State& other);

// What holds for every list, wherever it came from; reads some of its cells as a view would.
void CheckList(const Routines::State& state);

// What holds for rows from anywhere, and for the first of them carried into a list with so many transponder slots.
void CheckRows(const Formats::SdxTable& table);
void CheckRowImport(const Formats::SdxTable& table, int transponders);

}  // namespace Fuzz
