#include "ui/files/dropped_file.h"

#include <QFileInfo>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace Ui {

DroppedFile FileIn(const QMimeData& data) {
  const QList<QUrl> files = data.urls();
  if (files.size() != 1) return {{}, {}, "Non aperti: si trascina un file alla volta"};
  const QFileInfo file(files.front().toLocalFile());
  const QString name = files.front().fileName();
  if (!files.front().isLocalFile()) return {{}, {}, "Non aperto: " + name + " non è su questo computer"};
  if (file.isDir()) return {{}, {}, "Non aperto: " + file.fileName() + " è una cartella"};
  const QString ending = file.suffix().toLower();
  if (!QStringList{"dat", "sdx", "txt", "fls"}.contains(ending))
    return {{}, {}, "Non aperto: " + name + " non è un file .dat, .sdx, .txt o .fls"};
  return {file.filePath(), ending, {}};
}

}  // namespace Ui
