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
  if (!QFileInfo::exists(data) && QDir().mkpath(data)) {
    for (const char* name : {"Bouquets.txt", "SR.INI", "SDX.INI"}) {
      const QString copy = data + "/" + name;
      QFile::copy((installed ? shipped : own) + "/" + name, copy);
      QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
    }
  }
  return PathBytes(data);
}

}  // namespace Ui
