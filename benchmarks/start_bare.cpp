#include "bare_look.h"
#include "first_paint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  Bench::FirstPaint first(application);
  Bench::BareLook window;
  window.show();
  return QApplication::exec();
}
