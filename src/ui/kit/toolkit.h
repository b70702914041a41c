// What the toolkit needs before the first window, in the program and in its tests alike.
#pragma once

class QApplication;

namespace Ui {

// What has to be settled before there is an application: on Windows dark colours, where the user has chosen them.
void PrepareToolkit();

// Italian standard buttons; writes past a file-size limit fail with an error instead of ending the program.
void SetUpToolkit(QApplication& application);

// While it lives the pointer asks for patience.
class WaitCursor {
 public:
  WaitCursor();
  ~WaitCursor();
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

// What the work gives, which may take a while: a disk may be far away.
template <class Work>
auto Waiting(Work work) {
  const WaitCursor wait;
  return work();
}

}  // namespace Ui
