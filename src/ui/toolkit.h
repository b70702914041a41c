// What the toolkit needs before the first window, in the program and in its tests alike.
#pragma once

class QApplication;

namespace Ui {

// Italian standard buttons; writes past a file-size limit fail with an error instead of ending the program.
void SetUpToolkit(QApplication& application);

// While it lives the pointer says that the program waits for a disk, which may be far away.
class WaitCursor {
 public:
  WaitCursor();
  ~WaitCursor();
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace Ui
