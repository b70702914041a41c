#include "ui/session/actions.h"

#include "ui/kit/patience.h"
#include "ui/session/session.h"

#include <QAction>
#include <QMainWindow>

namespace Ui {

Actions::Actions(Session& session, QMainWindow& window) : session_(session) {
  for (const Command& command : Commands) {
    QAction& action = CommandAction(window, command);
    commands_.push_back({&action, {}});
    QObject::connect(&action, &QAction::triggered, &context_, [this, &command] { Choose(command); });
    if (command.Is(OnRows)) session.view.ListGrid().addAction(&action);
  }
  for (const ToolbarButton& button : ToolbarButtons) {
    QAction& action = ButtonAction(window, button);
    buttons_.push_back({&action, {}});
    QObject::connect(&action, &QAction::triggered, &context_, [this, &button] { Push(button); });
  }
  session.onChange.emplace_back([this] { Refresh(); });
}

bool Actions::Allows(CommandName command) { return Offers(command) && Meets(session_, command->gate); }

// Until a box of Patiently() has gone nothing else begins.
bool Actions::Busy() const {
  if (UnderWay().isEmpty()) return false;
  session_.status.ShowResult(UnderWay() + ": prima attenderne la fine, o annullare l'operazione");
  return true;
}

bool Actions::Offers(CommandName command) {
  if (Busy()) return false;
  const char* why = WhyDisabled(session_, command->gate.enabled);
  if (*why != '\0') session_.status.ShowResult(why);
  return *why == '\0';
}

// First of all a command does: what is being typed is no longer open to doubt.
void Actions::Choose(CommandName command) {
  const auto& [action, run] = commands_[command.Index()];
  const bool free = !Busy();
  if (free) session_.FinishTyping();
  if (free && Meets(session_, command->gate)) {
    run();
  } else if (action->isCheckable()) {
    action->toggle();  // back to what it was before the click
  }
}

void Actions::Push(ButtonName button) {
  if (Busy()) return;
  session_.FinishTyping();
  if (!Meets(session_, button->need)) return;
  if (!button->command) {
    buttons_[button.Index()].run();
  } else if (button->press == Press::Follow) {
    (*this)[button->command].trigger();
  } else if (Allows(button->command)) {
    commands_[button->command.Index()].run();
  }
}

// What nobody runs stays disabled.
void Actions::Refresh() {
  for (const Command& command : Commands) Enable(command);
  for (const ButtonName button : ToolbarButtons) {
    const auto& [action, run] = buttons_[button.Index()];
    action->setEnabled(run || (button->command && commands_[button->command.Index()].run));
  }
}

void Actions::Enable(CommandName command) {
  const auto& [action, run] = commands_[command.Index()];
  action->setEnabled(run && Holds(session_, command->gate.enabled));
  const char* why = WhyDisabled(session_, command->gate.enabled);
  action->setStatusTip(*why == '\0' ? command->tip : why);
}

}  // namespace Ui
