// The commands that give the selected channels other places in the list. The view stays where the user works; the result
// leads to where they went.
#pragma once

#include "edit/move.h"
#include "ui/session/actions.h"
#include "ui/session/session.h"

namespace Ui {

class MoveCommands {
 public:
  explicit MoveCommands(Session& session) : session_(session) {}

  void Connect(Actions& actions);

  // By one row up (-1) or down (1), each for itself.
  void MoveBy(int rows);
  // As one block: to a number that is asked for, to either end of the list, behind what was moved last.
  void SpostaA();
  void SpostaInCima();
  void SpostaInFondo();
  void SpostaDopoUltimo();

  void Scambia();
  // Among the selected rows, or from a channel on where no more than one is selected.
  void ChiudiVuoti();

  // Rows were dropped in front of slot `before`.
  void Drop(const Edit::Slots& slots, int before, bool copy);

 private:
  void Move(const Edit::Slots& slots, int to);
  // Goes to where the result says that rows are now.
  void ShowMoved(int slot);
  void InsertCopy(const Edit::Slots& slots, int before);
  void CloseGapsFrom(int start);
  void CloseGaps(const Edit::Slots& slots, const std::string& where);
  [[nodiscard]] int LastMoved() const;

  Session& session_;
  Edit::Slots stepped_;  // where the rows moved by one last are now
  int steppedBy_ = 0;    // and how far these have come
  int steppedRevision_ = 0;
  Edit::Slots moved_;  // where the rows moved as a block last are now
  int movedRevision_ = -1;
  int lastMoved_ = 0;                   // the slot of the last row moved as a block
  Routines::ChannelRecord lastRecord_;  // and what was in it
};

}  // namespace Ui
