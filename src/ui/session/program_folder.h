// The program's own folder, where SR.INI, Bouquets.txt, SDX.INI, POS.ini and trovalis.ini are kept.
#pragma once

#include <string>

namespace Ui {

// The executable's folder when it can be written to and nothing is installed beside it; else the user's data
// folder, which is made with the shipped defaults the first time. Needs a QCoreApplication.
std::string ProgramFolder();

// Copies what is shipped into a new `folder`: the support files, and the demo lists, which the file dialogs start
// with. Where any of the support files is there already nothing happens.
void FillProgramFolder(const std::string& shipped, const std::string& folder);

}  // namespace Ui
