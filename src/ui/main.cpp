#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"
#include "ui/session/program_folder.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QFileInfo>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Ui::SetUpToolkit(application);
  Ui::MainWindow window(Ui::ProgramFolder());
  window.show();
  if (!window.Start()) return 1;
  window.OfferKeptWork();
  if (const QStringList arguments = QApplication::arguments(); arguments.size() > 1) {
    window.OpenWhenChosen(Ui::PathBytes(QFileInfo(arguments[1]).absoluteFilePath()));
  }
  return QApplication::exec();
}
