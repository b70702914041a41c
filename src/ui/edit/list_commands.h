// The commands that change the list as a whole or go to a place in it.
#pragma once

#include "ui/session/actions.h"
#include "ui/session/session.h"

namespace Ui {

class ListCommands {
 public:
  explicit ListCommands(Session& session) : session_(session) {}

  void Connect(Actions& actions);

  void OrdinaPerBouquet();
  void SpostaRadio();
  void Azzera();
  void InvertiSatelliti();
  void RiportaAB();
  void CanaliXTransponder();

  void VaiAlCanale();
  void CercaCanale();
  // The next match of the filter, or of the name last searched for, without a box.
  void CercaSuccessivo();
  void SelezionaTrovati();

 private:
  void ChangeTransponders(const char* label, void (*operation)(Routines::State&));
  std::optional<int> AskStart(int last);

  Session& session_;
  std::string wanted_;  // bytes of the code page
};

}  // namespace Ui
