// The commands that change the channel list by its rows: clipboard, delete and undo.
#pragma once

#include "edit/clipboard.h"
#include "ui/session/actions.h"
#include "ui/session/session.h"

namespace Ui {

class EditCommands {
 public:
  explicit EditCommands(Session& session) : session_(session) {}

  void Connect(Actions& actions);

  void Copy();
  void Cut();
  void Delete();
  void Paste();

  void Undo();
  void Redo();

 private:
  // Names the step that would be undone, and the one that would be done again.
  void ShowSteps(Actions& actions);
  bool MayReplaceClipboard();
  // As text, for other programs.
  void GiveToOthers(const Edit::Slots& slots);
  void TellPasted(int count, int position, const Edit::PasteReport& report);
  void TakeStep(void (Document::*step)(), const QString& result);

  Session& session_;
};

}  // namespace Ui
