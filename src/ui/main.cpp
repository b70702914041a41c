#include "ui/main_window.h"
#include "ui/program_folder.h"
#include "ui/toolkit.h"

#include <QApplication>
#include <QFileInfo>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Ui::SetUpToolkit(application);
  Ui::CopiaTCSTPT window(Ui::ProgramFolder());
  window.show();
  if (!window.Start()) return 1;
  window.OfferKeptWork();
  if (const QStringList arguments = QApplication::arguments(); arguments.size() > 1) {
    window.OpenWhenChosen(Ui::PathBytes(QFileInfo(arguments[1]).absoluteFilePath()));
  }
  return QApplication::exec();
}
