#include "ui/kit/text.h"

#include "base/code_page.h"

#include <QFile>

namespace Ui {

QString CodePageText(std::string_view bytes) { return Text(Base::ToUtf8(bytes)); }

#ifdef Q_OS_WIN
// The core's paths are UTF-8, which is not what the toolkit takes for a name's bytes there.
QString PathText(const std::string& path) { return QString::fromStdString(path); }

std::string PathBytes(const QString& path) { return path.toStdString(); }
#else
QString PathText(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

std::string PathBytes(const QString& path) { return QFile::encodeName(path).toStdString(); }
#endif

}  // namespace Ui
