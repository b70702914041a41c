// The program as it starts, up to its first picture.
#include "first_paint.h"
#include "ui/kit/toolkit.h"
#include "ui/session/program_folder.h"
#include "ui/window/main_window.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Bench::FirstPaint first(application);
  Ui::SetUpToolkit(application);
  Ui::MainWindow window(Ui::ProgramFolder());
  window.show();
  if (!window.Start()) return 1;
  window.OfferKeptWork();
  return QApplication::exec();
}
