// The program's own folder, as the toolkit knows the system's.
#pragma once

#include <string>

namespace Ui {

// It is made with the shipped defaults the first time. Needs a QCoreApplication.
std::string ProgramFolder();

}  // namespace Ui
