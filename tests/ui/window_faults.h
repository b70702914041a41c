// What must hold in the window whatever was done before.
#pragma once

#include "model/bouquets.h"
#include "ui/main_window.h"

#include <string>
#include <vector>

namespace Ui {

// What of it does not hold, empty where all does.
std::string FaultOf(const CopiaTCSTPT& window, const std::vector<Routines::Satellite>& satellites);

}  // namespace Ui
