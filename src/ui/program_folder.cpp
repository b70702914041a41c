#include "ui/program_folder.h"

#include "ui/dialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Ui {

std::string ProgramFolder() {
  const QString own = QCoreApplication::applicationDirPath();
  const QString shipped = own + "/../share/trovalis";
  const bool installed = QFileInfo::exists(shipped);
  if (!installed && QFileInfo(own).isWritable()) return PathBytes(own);

  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/trovalis";
  QDir().mkpath(data);
  const QStringList names = {"Bouquets.txt", "SR.INI", "SDX.INI"};
  const bool first = QDir(data).entryList(names).isEmpty();
  for (qsizetype i = 0; first && i < names.size(); ++i) {
    const QString copy = data + "/" + names[i];
    QFile::copy((installed ? shipped : own) + "/" + names[i], copy);
    QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
  }
  return PathBytes(data);
}

}  // namespace Ui
