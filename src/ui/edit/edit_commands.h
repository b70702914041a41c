// The commands that change the channel list by its rows: clipboard and delete.
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

 private:
  bool MayReplaceClipboard();
  // As text, for other programs.
  void GiveToOthers(const Edit::Slots& slots);
  void TellPasted(QString text, const Edit::PasteReport& report);

  Session& session_;
};

}  // namespace Ui
