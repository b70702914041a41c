// The program from its arguments to its end, and what all commands work with.
#pragma once

#include "cli/console.h"
#include "cli/options.h"
#include "model/bouquets.h"
#include "support/program_folder.h"

#include <string>
#include <vector>

namespace Cli {

struct Work {
  const Options& options;
  Console& console;
  std::string folder;         // of the support files
  std::string keeping;        // that takes copies where an image's own folder takes none
  std::string rates;          // the symbol-rate table
  bool missingRates = false;  // it has but the usual two, as has been noted
  Routines::BouquetTables bouquets;

  // Whether it has all: without SR.INI no list is imported and nothing is written.
  [[nodiscard]] bool NeedsRates() const {
    if (missingRates) console.exit = Exit::Unreadable;
    return !missingRates;
  }
};

// `arguments` are those behind the program's name.
void Run(const std::vector<std::string>& arguments, const Support::ProgramPlaces& places, Console& console);

// The commands; each says what came of it to the console.
void Info(Work& work);
void List(Work& work);
void Check(Work& work);
void Diff(Work& work);
void Sdx(Work& work);
void Convert(Work& work);
void Write(Work& work);
void Apply(Work& work);
void Order(Work& work);
void Sort(Work& work);
void Rename(Work& work);

}  // namespace Cli
