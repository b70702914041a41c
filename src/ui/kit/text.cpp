#include "ui/kit/text.h"

#include "base/code_page.h"

#include <QDir>
#include <QFile>

namespace Ui {

QString CodePageText(std::string_view bytes) { return Text(Base::ToUtf8(bytes)); }

#ifdef Q_OS_WIN
// The core's paths are UTF-8, which is not what the toolkit takes for a name's bytes there.
QString PathText(const std::string& path) { return QDir::toNativeSeparators(QString::fromStdString(path)); }

std::string PathBytes(const QString& path) { return QDir::toNativeSeparators(path).toStdString(); }

// "C:" alone is the folder that the drive stands in, whichever that is.
QString FolderText(const std::string& folder) {
  return folder.size() == 2 && folder[1] == ':' ? PathText(folder + "/") : PathText(folder);
}
#else
QString PathText(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

std::string PathBytes(const QString& path) { return QFile::encodeName(path).toStdString(); }

QString FolderText(const std::string& folder) { return PathText(folder); }
#endif

}  // namespace Ui
