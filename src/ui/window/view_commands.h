// How the lists are looked at: what the user has made of it is kept from one session to the next, and taken back by the
// commands of the menu "Vista".
#pragma once

#include "ui/list/tree_pane.h"
#include "ui/session/actions.h"
#include "ui/session/session.h"
#include "ui/sources/sdx_pane.h"

#include <QTimer>

#include <array>

namespace Ui {

class ViewCommands : public QObject {
  Q_OBJECT

 public:
  // Brings back what the last session has kept.
  ViewCommands(Session& session, SdxPane& pane, std::vector<TreePane*> trees, Actions& actions);

  // Keeps how everything looks now, and where the list and the rows beside it are left.
  void Write();

 private:
  // A list, and the grid that shows it.
  struct Shown {
    const char* name;
    Grid& grid;
    const TableModel& list;
  };

  void ConnectMenus(Actions& actions);
  void TellSorted(Grid& grid, const QString& text);
  void Read();
  void ResetWidths();
  void SetLetters(int steps);
  void ChangeLetters(int steps);
  void ShowSoft(bool soft);

  Session& session_;
  SdxPane& pane_;
  std::array<Shown, 3> lists_;
  std::vector<TreePane*> trees_;
  int letters_ = 0;  // points more than the desktop's
  QTimer write_;
};

}  // namespace Ui
