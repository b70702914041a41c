// The file that was dropped on the window.
#pragma once

#include <QString>

class QMimeData;

namespace Ui {

struct DroppedFile {
  QString path;
  QString ending;   // in small letters; may be empty
  QString refusal;  // why it cannot be opened, whatever it is; empty where it may be
};

DroppedFile FileIn(const QMimeData& data);

}  // namespace Ui
