#include "ui/kit/late_part.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

namespace Ui {

// Beside the program, or where an installation has libraries, which is told from the program's own folder.
Base::Result<QFunctionPointer> FunctionOf(const char* part, const char* function) {
  const QString folder = QCoreApplication::applicationDirPath() + "/";
  const QString name = QString(part) + TROVALIS_PART_ENDING;
  const bool beside = QFileInfo::exists(folder + name);
  QLibrary library(folder + (beside ? "" : TROVALIS_PARTS "/") + name);
  if (const QFunctionPointer found = library.resolve(function)) return found;
  return Base::Error{"Manca una parte del programma: " + library.errorString().toStdString()};
}

}  // namespace Ui
