#include "ui/files/dropped_file.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace Ui {

DroppedFile FileIn(const QMimeData& data) {
  const QList<QUrl> files = data.urls();
  if (files.size() != 1) return {{}, {}, "Non aperti: si trascina un file alla volta"};
  const QFileInfo file(files.front().toLocalFile());
  const QString name = files.front().fileName();
  if (!files.front().isLocalFile()) return {{}, {}, "Non aperto: " + name + " non è su questo computer"};
  if (file.isDir()) return {{}, {}, "Non aperto: " + file.fileName() + " è una cartella"};
  return {file.filePath(), file.suffix().toLower(), {}};
}

}  // namespace Ui
