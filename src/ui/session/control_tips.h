// What buttons, options and the items of popup menus do, in one line.
#pragma once

class QWidget;

namespace Ui {

// Gives every control of a window its line: as a tooltip, and to the status bar where the window has one. Controls
// whose caption leaves nothing to say ("Chiudi") have none.
void ShowTips(QWidget& window);

}  // namespace Ui
