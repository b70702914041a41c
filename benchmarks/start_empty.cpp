// The least that a program with a window and a table can start with.
#include "first_paint.h"

#include <QMainWindow>
#include <QTableView>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Bench::FirstPaint first(application);
  QMainWindow window;
  window.setCentralWidget(new QTableView(&window));
  window.resize(1024, 700);
  window.show();
  return QApplication::exec();
}
