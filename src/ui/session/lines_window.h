// A window of lines that can be read beside the list, copied and saved.
#pragma once

#include "ui/session/session.h"
#include "ui/session/tool_window.h"

namespace Ui {

// Asks for a file and writes the lines into it as text of the code page.
void SaveLines(Session& session, const QString& text);

class LinesWindow : public ToolWindow {
  Q_OBJECT

 public:
  // `name` is the control name, "Elenco" and what is listed; its controls end in the same.
  LinesWindow(const char* name, const QString& title, const QString& text, Session& session, QWidget* parent);
};

}  // namespace Ui
