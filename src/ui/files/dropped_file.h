// The files that were dropped on the window.
#pragma once

#include <QString>

#include <vector>

class QMimeData;

namespace Ui {

struct DroppedFile {
  QString path;
  QString ending;   // in small letters; may be empty
  QString refusal;  // why it cannot be opened, whatever it is; empty where it may be
};

std::vector<DroppedFile> FilesIn(const QMimeData& data);

}  // namespace Ui
