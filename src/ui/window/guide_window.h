// The guide as a page of the program, with its sections at the side and a field to search it.
#pragma once

#include "ui/session/tool_window.h"

class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace Ui {

class GuideWindow : public ToolWindow {
  Q_OBJECT

 public:
  explicit GuideWindow(QWidget* parent);

 private:
  void ListSections();
  void GoToSection(int row);
  void Find();

  QListWidget* sections_;
  QTextBrowser* page_;
  QLineEdit* field_;
};

}  // namespace Ui
