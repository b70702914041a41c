#include "ui/kit/toolkit.h"

#include <QApplication>
#include <QStyle>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  // Tests need no display; the listing of tests at build time has no environment of its own.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  Ui::SetUpToolkit(application);
  if (qEnvironmentVariableIsSet("TROVALIS_DARK")) {
    QPalette dark(QColor(45, 45, 45));
    QApplication::style()->polish(dark);
    QApplication::setPalette(dark);
  }
  return RUN_ALL_TESTS();
}
