// What the toolkit needs before the first window, in the program and in its tests alike.
#pragma once

class QApplication;

namespace Ui {

// Italian standard buttons; writes past a file-size limit fail with an error instead of ending the program.
void SetUpToolkit(QApplication& application);

}  // namespace Ui
