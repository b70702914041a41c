#include "ui/session/program_folder.h"

#include "base/system_file.h"
#include "support/program_folder.h"
#include "ui/kit/text.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace Ui {

std::string ProgramFolder() {
  const QString own = QCoreApplication::applicationDirPath();
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const auto found =
      Support::FindProgramFolder({PathBytes(own), Base::WriteRefusal(PathBytes(own)) == 0, PathBytes(data)});
  if (!found.shipped.empty()) Support::FillProgramFolder(found.shipped, found.folder);
  return found.folder;
}

}  // namespace Ui
