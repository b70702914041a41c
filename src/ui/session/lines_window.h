// A window of lines that can be read beside the list, copied and saved.
#pragma once

#include "ui/session/session.h"
#include "ui/session/tool_window.h"

namespace Ui {

class LinesWindow : public ToolWindow {
  Q_OBJECT

 public:
  // `name` is the control name, "Elenco" and what is listed; its controls end in the same.
  LinesWindow(const char* name, const QString& title, const QString& text, Session& session, QWidget* parent);

 private:
  void Save();

  Session& session_;
  QString text_;
};

}  // namespace Ui
