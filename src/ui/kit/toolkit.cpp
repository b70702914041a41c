#include "ui/kit/toolkit.h"

#include "ui/kit/readable_style.h"
#include "ui/kit/screen_fit.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QStyle>
#include <QTranslator>

#include <csignal>

// Icons and guide are in a library, which leaves them out unless they are asked for; the macro wants no namespace.
static void KeepResources() {
  Q_INIT_RESOURCE(icons);
  Q_INIT_RESOURCE(guida);
}

namespace Ui {

void PrepareToolkit() {
#ifdef Q_OS_WIN
  const QSettings colours(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)",
                          QSettings::NativeFormat);
  const bool dark = colours.value("AppsUseLightTheme", 1).toInt() == 0;
  if (!dark || qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
  // The toolkit's copy of the system's style paints light whatever the system does.
  qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
  qputenv("QT_STYLE_OVERRIDE", "fusion");
#endif
}

void SetUpToolkit(QApplication& application) {
  KeepResources();
  QApplication::setApplicationName("Trovalis");
  // The styles of desktops see to their colours themselves.
  if (QApplication::style()->name() == "fusion") QApplication::setStyle(new ReadableStyle("fusion"));
  application.installEventFilter(new ScreenFit(&application));
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  auto* italian = new QTranslator(&application);
  // The second name is the one of the file that goes beside a program on Windows.
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (italian->load("qtbase_it", folder) || italian->load("qt_it", folder)) {
    QApplication::installTranslator(italian);
  }
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
}

WaitCursor::WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }

WaitCursor::~WaitCursor() { QApplication::restoreOverrideCursor(); }

}  // namespace Ui
