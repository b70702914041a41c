// The commands that change the channel list by its rows: clipboard, delete, moving, and undo.
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

  // Moves the selected rows one up (-1) or down (1), or to a number that is asked for.
  void MoveBy(int rows);
  void SpostaA();
  // Rows were dropped in front of slot `before`.
  void Drop(const Edit::Slots& slots, int before, bool copy);

  void Undo();
  void Redo();

 private:
  // Names the step that would be undone, and the one that would be done again.
  void ShowSteps(Actions& actions);
  // The selected slots; says so where there are none.
  Edit::Slots SelectedChannels();
  bool MayReplaceClipboard();
  // As text, for other programs.
  void GiveToOthers(const Edit::Slots& slots);
  void Move(const Edit::Slots& slots, int to);
  void Moved(const Edit::Slots& slots);
  void InsertCopy(const Edit::Slots& slots, int before);
  void TellPasted(int count, int position, const Edit::PasteReport& report);
  void TakeStep(void (Document::*step)(), const QString& result);

  Session& session_;
  Edit::Slots moved_;  // where the rows moved last are now
};

}  // namespace Ui
