// The commands that compare the list with another flash, with what is on the disk, or with the list on the right.
#pragma once

#include "ui/review/other_side.h"
#include "ui/session/actions.h"

class QMainWindow;

namespace Ui {

class CompareCommands {
 public:
  CompareCommands(Session& session, QMainWindow& window) : session_(session), window_(window) {}

  void Connect(Actions& actions);

 private:
  void Confronta();
  void ConfrontaDisco();
  void ConfrontaSDX();
  void DaCSV();
  void OrdinaCome();
  void SalvaOrdine();
  // The order in a file: a text, a list of another program, or a flash.
  void OrderByFile();
  [[nodiscard]] QString Title(std::size_t list) const;
  // Shows the window, or says that there is nothing to show.
  void Compare(OtherSide other);

  Session& session_;
  QMainWindow& window_;
};

}  // namespace Ui
