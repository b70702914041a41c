// One change of many channels, shown whole before it is confirmed.
#pragma once

#include "ui/session/preview_model.h"

#include <QDialog>

namespace Ui {

struct PreviewText {
  const char* name;  // control name
  QString title;
  QStringList columns;       // behind the number
  std::vector<int> letters;  // widths of the columns but the last
  QString outcome;           // below the table
  QString confirm;           // on the button
  bool anythingToDo = true;  // else it can only be closed
};

// Whether the user confirms it.
bool ConfirmsPreview(const PreviewText& text, std::vector<PreviewLine> lines, QWidget* parent);

}  // namespace Ui
