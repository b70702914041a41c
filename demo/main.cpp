// Plays a session of the real window:
//   trovalis_demo DEMO.dat SUPPORT_FOLDER OUTPUT_FOLDER
// Its exit code is 1 where a step came out wrong.
#include "session.h"
#include "ui/kit/toolkit.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv) {
  Ui::PrepareToolkit();
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 4) {
    std::fputs("trovalis_demo DEMO.dat SUPPORT_FOLDER OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  Ui::SetUpToolkit(application);
  return Demo::Session(arguments[1], arguments[2], arguments[3]).Run();
}
