// SR.INI, the receiver's symbol rates. Plain text; blanks around a line do not count:
//   a line with INPUT or OUTPUT in it   begins a section; lines before the first one are ignored
//   NN=rate                             in the input section: code NN ("00" to "15") has that rate
//   anything                            in the output section: ignored
#pragma once

#include "base/result.h"
#include "model/symbol_rates.h"

#include <string>
#include <string_view>

namespace Support {

// The table that a file's text gives, with 22000 and 27500 at their places in the second and fourth cell
// whatever the text says there. A malformed line of the input section is an error that ends the program.
Base::Result<std::string> SymbolRatesOf(std::string_view text, Routines::Sr22000 place);

struct SymbolRates {
  std::string table;
  // Sentence to show where the file is not there or cannot be read; the table has only the two usual rates then.
  std::string missing;
};

// Reads SR.INI of the program's folder.
Base::Result<SymbolRates> CaricaTabelleSR(const std::string& folder, Routines::Sr22000 place);

}  // namespace Support
