// Makes the commands of the table work: each is connected once, by whoever runs it, and from then on enabled, asked for
// what it needs, and run, in the same way by its menu, its key and its toolbar button.
#pragma once

#include "ui/session/commands.h"

#include <QObject>

#include <functional>
#include <vector>

namespace Ui {

struct Session;

class Actions {
 public:
  using Slot = std::function<void()>;

  // Of a window that has its menus and its toolbar; session and window outlive this.
  Actions(Session& session, QMainWindow& window);
  Actions(const Actions&) = delete;
  Actions& operator=(const Actions&) = delete;

  // `run` is called when the command has been chosen and has what it needs.
  void Connect(CommandName command, Slot run) { commands_[command.Index()].run = std::move(run); }
  // For a button that does something of its own.
  void ConnectButton(ButtonName button, Slot run) { buttons_[button.Index()].run = std::move(run); }

  // Whether a command can be run now; tells the user why where it can not.
  bool Allows(CommandName command);
  // The same as far as it is enabled: what it needs beside that is another matter.
  bool Offers(CommandName command);
  // Whether work is going on that a command would come in the way of; tells the user so.
  [[nodiscard]] bool Busy() const;

  [[nodiscard]] QAction& operator[](CommandName command) const { return *commands_[command.Index()].action; }
  [[nodiscard]] QAction& Button(ButtonName button) const { return *buttons_[button.Index()].action; }

 private:
  struct Bound {
    QAction* action;
    Slot run;
  };

  void Choose(CommandName command);
  void Push(ButtonName button);
  void Refresh();
  void Enable(CommandName command);

  Session& session_;
  QObject context_;              // of the connections to the window's actions
  std::vector<Bound> commands_;  // in the order of the tables
  std::vector<Bound> buttons_;
};

}  // namespace Ui
