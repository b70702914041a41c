#include "ui/session/program_folder.h"

#include "support/pos_ini.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

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
  FillProgramFolder(PathBytes(installed ? shipped : own), PathBytes(data));
  return PathBytes(data);
}

void FillProgramFolder(const std::string& shipped, const std::string& folder) {
  const QString from = PathText(shipped) + "/";
  const QString to = PathText(folder) + "/";
  QDir().mkpath(to);
  const QStringList support = {"Bouquets.txt", "SR.INI", "SDX.INI"};
  if (!QDir(to).entryList(support).isEmpty()) return;
  const QString demo = "demo.dat";
  QStringList copied;
  for (const QString& name : support + QStringList{demo, "demo.sdx", "demo.csv"}) {
    if (!QFile::exists(from + name)) continue;
    if (!QFile::copy(from + name, to + name)) {
      // On a full disk nothing is better than a part, which the next start would take for what the user wants.
      for (const QString& part : copied) QFile::remove(to + part);
      return;
    }
    QFile::setPermissions(to + name, QFile::permissions(to + name) | QFile::WriteOwner);
    copied += name;
  }
  if (!copied.contains(demo)) return;
  for (const auto kind :
       {Support::FolderKind::Input, Support::FolderKind::Foreign, Support::FolderKind::Output}) {
    Support::SaveFolderOf(folder, kind, PathBytes(to + demo));
  }
}

}  // namespace Ui
