#include "ui/edit/edit_commands.h"

#include "base/text.h"
#include "edit/changed_rows.h"
#include "ui/kit/text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>

namespace Ui {

using Edit::Slots;
using Routines::State;

namespace {

std::string CountText(std::integral auto count) { return Base::Counted(count, "canale", "canali"); }

}  // namespace

void EditCommands::Connect(Actions& actions) {
  actions.Connect("Annulla", [this] { Undo(); });
  actions.Connect("Ripeti", [this] { Redo(); });
  actions.Connect("Copia", [this] { Copy(); });
  actions.Connect("Taglia", [this] { Cut(); });
  actions.Connect("Incolla", [this] { Paste(); });
  actions.Connect("Elimina", [this] { Delete(); });
  session_.onChange.emplace_back([this, &actions] { ShowSteps(actions); });
}

void EditCommands::ShowSteps(Actions& actions) {
  const auto name = [&actions](CommandName command, const std::string& step) {
    actions[command].setText(Text(step.empty() ? command->caption : command->caption + (" " + step)));
  };
  name("Annulla", session_.document.Steps().UndoLabel());
  name("Ripeti", session_.document.Steps().RedoLabel());
}

bool EditCommands::MayReplaceClipboard() {
  return session_.clipboard.Count() == 0 ||
         session_.dialogs.YesNo("Esistono Canali Copiati e non ancora Scaricati - Continuo?");
}

void EditCommands::GiveToOthers(const Slots& slots) {
  QApplication::clipboard()->setText(CodePageText(Edit::TabSeparated(session_.document.Tables(), slots)));
}

void EditCommands::Copy() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty() || !MayReplaceClipboard()) return;
  GiveToOthers(slots);
  session_.document.Copy(Edit::CopyChannels(session_.document.Tables(), slots));
  session_.ShowList();
  session_.status.ShowResult("Copia " + Text(CountText(slots.size())));
}

void EditCommands::Cut() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty() || !MayReplaceClipboard()) return;
  GiveToOthers(slots);
  const std::string label = "Taglia " + CountText(slots.size());
  const auto lost = session_.document.Apply(label, [&](State& state, Edit::Clipboard& clipboard) {
    clipboard = Edit::CopyChannels(state, slots);
    return Edit::CutChannels(state, slots, clipboard);
  });
  session_.view.ListGrid().SelectNear(slots.front());
  session_.status.ShowResult(Text(label) + session_.Losses(lost));
}

void EditCommands::Delete() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty()) return;
  const std::string label = "Elimina " + CountText(slots.size());
  const auto lost =
      session_.document.Apply(label, [&](State& state) { return Edit::DeleteSlots(state, slots); });
  session_.view.ListGrid().SelectNear(slots.front());
  session_.status.ShowResult(Text(label) + session_.Losses(lost));
}

void EditCommands::Paste() {
  Dialogs& ask = session_.dialogs;
  const int count = session_.clipboard.Count();
  if (count == 0) {
    ask.Message("Messun canale copiato", {});
    return;
  }
  const auto answer = ask.AskLine("Inserire il numero di canale da cui inserire");
  if (!answer) return;
  const int position = Base::LeadingNumber(answer->toStdString());
  if (!Edit::IsPosition(session_.document.Tables(), position, count)) {
    ask.Message(Text(Edit::InvalidPosition), {});
    return;
  }
  const Answer way = ask.YesNoCancel(QString("Sposto o sovrascrivo i canali a partire dal %1 per %2 Canali?\n"
                                             "Rispondere SI per spostare NO per sovrascrivere")
                                         .arg(position)
                                         .arg(count));
  if (way == Answer::Cancel) return;
  const auto pasted =
      session_.document.Apply("Incolla " + CountText(count), [&](State& state, Edit::Clipboard& clipboard) {
        auto report = Edit::Paste(state, clipboard, position,
                                  way == Answer::Yes ? Edit::PasteWay::Move : Edit::PasteWay::Overwrite,
                                  session_.bouquets.tables);
        if (report) clipboard = {};
        return report;
      });
  if (!pasted) {
    session_.Message(pasted.error());
    return;
  }
  TellPasted(count, position, *pasted);
}

void EditCommands::TellPasted(int count, int position, const Edit::PasteReport& report) {
  session_.view.ListGrid().Select(Edit::SlotRun(position, position + count - 1));
  session_.view.ListGrid().ScrollToTop(position);
  QString text = "Incolla " + Text(CountText(count)) + QString(" dal %1").arg(position);
  if (report.favouritesBack > 0) text += QString(", preferiti rimessi: %1").arg(report.favouritesBack);
  if (report.favouritesFull > 0) text += QString(", senza posto nelle liste: %1").arg(report.favouritesFull);
  text += session_.Losses(report.lost);
  if (report.withoutTransponder > 0)
    text += QString(", senza transponder: %1").arg(report.withoutTransponder);
  session_.status.ShowResult(text);
}

void EditCommands::Undo() {
  session_.status.ForgetLossOf(session_.document.Steps().LastStep());
  TakeStep(&Document::Undo, "Annullato: " + Text(session_.document.Steps().UndoLabel()));
}

void EditCommands::Redo() {
  TakeStep(&Document::Redo, "Ripetuto: " + Text(session_.document.Steps().RedoLabel()));
}

// A list that came back is shown from its start; one that went away no longer is.
void EditCommands::TakeStep(void (Document::*step)(), const QString& result) {
  Document& document = session_.document;
  const auto before = std::make_unique<State>(document.Tables());
  (document.*step)();
  const State& state = document.Tables();
  if (state.ListNumber != before->ListNumber) {
    session_.view.ShowFromStart(state.Loaded ? View::Channels : View::None);
  } else if (session_.view.Current() != View::None) {
    const bool channels = session_.view.Current() == View::Channels;
    const Slots changed =
        channels ? Edit::ChannelsToShow(*before, state) : Edit::TranspondersToShow(*before, state);
    if (!changed.empty()) session_.view.ListGrid().Select(changed);
  }
  session_.status.ShowResult(result);
}

}  // namespace Ui
