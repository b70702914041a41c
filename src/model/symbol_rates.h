// A transponder keeps a code 0..15 for its symbol rate. The table gives each code a cell of six characters:
// five digits (kBd) and a backslash, or six backslashes where the receiver has no rate for the code.
#pragma once

#include "model/routines.h"

#include <string>
#include <string_view>

namespace Routines {

inline constexpr std::size_t SymbolRateCodes = 16;
inline constexpr std::size_t SymbolRateCell = 6;

// Where a receiver has 22000: in the second cell ("come 2") or in the fourth ("come 0"). 27500 is in the
// other.
enum class Sr22000 { Come2, Come0 };

std::string EmptySymbolRateTable();

// A rate that is not five digits long is cut, or filled up with backslashes. `code` is 0..15.
void SetSymbolRate(std::string& table, std::size_t code, std::string_view rate);

void PlaceUsualRates(std::string& table, Sr22000 place);

// The five characters shown for a code; empty for a code above 15.
std::string_view SymbolRateText(std::string_view table, std::size_t code);

// The code that a rate of the input table has in the output table; the same one where that has no such rate.
std::size_t RecodedRate(std::string_view input, std::string_view output, std::size_t code);

// Whether two tables have 22000 and 27500 in the same cells.
bool SamePlaces(std::string_view one, std::string_view other);

// Recodes transponders 1..TransponderCount for a receiver that has 22000 at `place`: the input table with its
// second and fourth cells set so becomes the table in force. A rate that this table lacks, and a code whose
// cell was never filled, keep their code. Returns how many transponders have another code now.
int ConvertiSR(State& state, Sr22000 place);

}  // namespace Routines
