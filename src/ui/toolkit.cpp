#include "ui/toolkit.h"

#include "ui/readable_style.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStyle>
#include <QTranslator>

#include <csignal>

// Icons and guide are in a library, which leaves them out unless they are asked for; the macro wants no namespace.
static void KeepResources() {
  Q_INIT_RESOURCE(icons);
  Q_INIT_RESOURCE(guida);
}

namespace Ui {

void SetUpToolkit(QApplication& application) {
  KeepResources();
  QApplication::setApplicationName("Trovalis");
  // The styles of desktops see to their colours themselves.
  if (QApplication::style()->name() == "fusion") QApplication::setStyle(new ReadableStyle("fusion"));
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  auto* italian = new QTranslator(&application);
  if (italian->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(italian);
  }
  std::signal(SIGXFSZ, SIG_IGN);
}

WaitCursor::WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }

WaitCursor::~WaitCursor() { QApplication::restoreOverrideCursor(); }

}  // namespace Ui
