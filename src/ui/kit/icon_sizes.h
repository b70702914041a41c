// The sizes in which each icon is drawn, in two sets of colours, when the program is built (tools/make_icons).
#pragma once

namespace Ui {

// In pixels, rising: those that toolbar, menus and the about box ask for at scales of 1, 1.25, 1.5, 1.75, 2 and 3, and what
// lies between.
constexpr int IconSizes[] = {16, 20, 24, 28, 30, 32, 36, 42, 48, 64, 72, 96, 144};

}  // namespace Ui
