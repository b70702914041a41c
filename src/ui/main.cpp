#include "ui/main_window.h"
#include "ui/program_folder.h"
#include "ui/toolkit.h"

#include <QApplication>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Ui::SetUpToolkit(application);
  Ui::CopiaTCSTPT window(Ui::ProgramFolder());
  window.show();
  if (!window.Start()) return 1;
  window.OfferKeptWork();
  return QApplication::exec();
}
