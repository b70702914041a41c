// Undo and redo, one step or several at one go.
#pragma once

#include "ui/session/actions.h"
#include "ui/session/session.h"

class QMenu;

namespace Ui {

class StepCommands {
 public:
  explicit StepCommands(Session& session) : session_(session) {}

  void Connect(Actions& actions);

  // That many steps, the last ones first; the result names the last that is taken.
  void Undo(int steps = 1);
  void Redo(int steps = 1);

 private:
  // Names the step that would be undone, and the one that would be done again.
  void ShowSteps(Actions& actions);
  using Take = void (StepCommands::*)(int steps);
  // Gives a button of the toolbar a list of the steps, the next one on top.
  QMenu* AddList(QAction& button, const char* name, std::vector<std::string> (Edit::History::*labels)() const,
                 Take take);
  void TakeSteps(void (Document::*take)(int), int steps, const QString& result);

  Session& session_;
};

}  // namespace Ui
