// The program's own folder, where SR.INI, Bouquets.txt, SDX.INI, POS.ini and trovalis.ini are kept.
#pragma once

#include <string>

namespace Support {

// What the system says of a running program.
struct ProgramPlaces {
  std::string executable;  // its folder
  bool writable = false;   // whether that can be written to
  std::string data;        // the user's folder for the data of all programs
};

struct ProgramFolder {
  std::string folder;
  std::string shipped;  // where its defaults are, empty where it is the executable's own
};

// The executable's folder when it can be written to and nothing is installed beside it; else `trovalis` in the user's
// folder, to be filled with the defaults. Neither is touched.
ProgramFolder FindProgramFolder(const ProgramPlaces& places);

// Whether a folder has any of the support files.
bool HasSupportFiles(const std::string& folder);

// Copies what is shipped into a new `folder`: the support files, and the demo lists, which the dialogs for files
// to be read start with. Where any of the support files is there already nothing happens.
void FillProgramFolder(const std::string& shipped, const std::string& folder);

}  // namespace Support
