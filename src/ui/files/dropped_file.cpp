#include "ui/files/dropped_file.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace Ui {

namespace {

DroppedFile FileAt(const QUrl& url) {
  const QFileInfo file(url.toLocalFile());
  if (!url.isLocalFile()) return {{}, {}, "Non aperto: " + url.fileName() + " non è su questo computer"};
  if (file.isDir()) return {{}, {}, "Non aperto: " + file.fileName() + " è una cartella"};
  return {file.filePath(), file.suffix().toLower(), {}};
}

}  // namespace

std::vector<DroppedFile> FilesIn(const QMimeData& data) {
  std::vector<DroppedFile> files;
  for (const QUrl& url : data.urls()) files.push_back(FileAt(url));
  return files;
}

}  // namespace Ui
