// What a file dropped on the window is good for, told by its ending.
#pragma once

#include <QString>

class QMimeData;

namespace Ui {

struct DroppedFile {
  QString path;
  QString ending;   // "dat", "sdx", "txt" or "fls"; empty where the file cannot be opened
  QString refusal;  // why not
};

DroppedFile FileIn(const QMimeData& data);

}  // namespace Ui
