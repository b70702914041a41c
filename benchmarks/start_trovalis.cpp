// The program as it starts, up to its first picture.
#include "first_paint.h"
#include "ui/main_window.h"
#include "ui/program_folder.h"
#include "ui/toolkit.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Bench::FirstPaint first(application);
  Ui::SetUpToolkit(application);
  Ui::CopiaTCSTPT window(Ui::ProgramFolder());
  window.show();
  if (!window.Start()) return 1;
  window.OfferKeptWork();
  return QApplication::exec();
}
