// Opens a flash in the real window and deletes its first channel over and over, until it is killed:
//   edit_until_killed PROGRAM_FOLDER FLASH.dat
// Writes a line for every deletion.
#include "ui/kit/text.h"
#include "ui/kit/toolkit.h"
#include "window_driver.h"

#include <QApplication>
#include <QTest>

#include <cstdio>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  Ui::SetUpToolkit(application);
  const QStringList arguments = QApplication::arguments();
  Ui::MainWindow window(Ui::PathBytes(arguments.value(1)));
  Demo::WindowDriver driver(window);
  window.show();
  driver.ExpectFile("Selezionare la flash di input", arguments.value(2));
  if (!window.Start() || !driver.Pick("QuantiCanali_2") || !driver.Choose("ApriFlashInput")) return 1;
  for (;;) {
    driver.SelectRows(1, 1);
    if (!driver.Press("Toolbar1_Delete")) return 1;
    std::puts("deleted");
    std::fflush(stdout);
    QTest::qWait(15);
  }
}
