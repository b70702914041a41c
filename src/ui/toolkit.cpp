#include "ui/toolkit.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <csignal>

// The icons are in a library, which leaves them out unless they are asked for; the macro wants no namespace.
static void KeepIcons() { Q_INIT_RESOURCE(icons); }

namespace Ui {

void SetUpToolkit(QApplication& application) {
  KeepIcons();
  QApplication::setApplicationName("Trovalis");
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  auto* italian = new QTranslator(&application);
  if (italian->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(italian);
  }
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace Ui
