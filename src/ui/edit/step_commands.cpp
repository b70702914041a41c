#include "ui/edit/step_commands.h"

#include "edit/changed_rows.h"
#include "ui/kit/text.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace Ui {

using Routines::State;

namespace {

// An ampersand in a channel's name is none that marks a letter.
QString ForMenu(const std::string& label) { return Text(label).replace('&', "&&"); }

// "Annullato: Eliminati 7 canali" or "Annullate 3 modifiche, fino a: Eliminati 7 canali"
QString Told(const char* one, const char* more, const std::vector<std::string>& labels, int steps) {
  const auto taken = std::min(labels.size(), static_cast<std::size_t>(std::max(steps, 1)));
  if (taken == 0) return {};
  const QString last = Text(labels[taken - 1]);
  return taken == 1 ? QString("%1: %2").arg(one, last)
                    : QString("%1 %2 modifiche, fino a: %3").arg(more).arg(taken).arg(last);
}

}  // namespace

void StepCommands::Connect(Actions& actions) {
  actions.Connect("Annulla", [this] { Undo(); });
  actions.Connect("Ripeti", [this] { Redo(); });
  QMenu* done =
      AddList(actions.Button("Undo"), "PassiFatti", &Edit::History::UndoLabels, &StepCommands::Undo);
  AddList(actions.Button("Redo"), "PassiAnnullati", &Edit::History::RedoLabels, &StepCommands::Redo);
  actions.Connect("AnnullaFino", [this, done] {
    const Grid& grid = session_.view.ListGrid();
    done->popup(grid.mapToGlobal(QPoint(grid.width() / 3, 0)));
  });
  session_.onChange.emplace_back([this, &actions] { ShowSteps(actions); });
}

void StepCommands::ShowSteps(Actions& actions) {
  const auto name = [&actions](CommandName command, const std::string& step) {
    const QString caption = command->caption;
    actions[command].setText(step.empty() ? caption : caption + ": " + ForMenu(step));
  };
  name("Annulla", session_.document.Steps().UndoLabel());
  name("Ripeti", session_.document.Steps().RedoLabel());
}

QMenu* StepCommands::AddList(QAction& button, const char* name,
                             std::vector<std::string> (Edit::History::*labels)() const, Take take) {
  auto* menu = new QMenu(&session_.view);
  menu->setObjectName(name);
  button.setMenu(menu);
  for (QObject* shown : button.associatedObjects()) {
    if (auto* tool = qobject_cast<QToolButton*>(shown)) tool->setPopupMode(QToolButton::MenuButtonPopup);
  }
  QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu, labels, take] {
    session_.FinishTyping();
    menu->clear();
    int steps = 0;
    for (const std::string& label : (session_.document.Steps().*labels)()) {
      ++steps;
      // The first ones have a digit to be chosen by.
      const QString number = steps < 10 ? QString("&%1  ").arg(steps) : QString(steps == 10 ? "1&0  " : "");
      menu->addAction(number + ForMenu(label), menu, [this, steps, take] { (this->*take)(steps); });
    }
  });
  return menu;
}

void StepCommands::Undo(int steps) {
  const Edit::History& history = session_.document.Steps();
  const int last = history.LastStep();
  TakeSteps(&Document::Undo, steps, Told("Annullato", "Annullate", history.UndoLabels(), steps));
  for (int step = history.LastStep() + 1; step <= last; ++step) session_.status.ForgetLossOf(step);
}

void StepCommands::Redo(int steps) {
  TakeSteps(&Document::Redo, steps,
            Told("Ripetuto", "Ripetute", session_.document.Steps().RedoLabels(), steps));
}

// A list that came back is shown where it was left; one that went away no longer is.
void StepCommands::TakeSteps(void (Document::*take)(int), int steps, const QString& result) {
  Document& document = session_.document;
  const auto before = std::make_unique<State>(document.Tables());
  session_.view.KeepPlace();
  (document.*take)(steps);
  const State& state = document.Tables();
  if (state.ListNumber != before->ListNumber) {
    state.Loaded ? session_.view.ShowOpened({}) : session_.view.ShowFromStart(View::None);
  } else if (session_.view.Current() != View::None) {
    const bool channels = session_.view.Current() == View::Channels;
    const Edit::Slots changed =
        channels ? Edit::ChannelsToShow(*before, state) : Edit::TranspondersToShow(*before, state);
    if (!changed.empty()) session_.view.ListGrid().Select(changed);
  }
  session_.status.ShowResult(result);
}

}  // namespace Ui
