#include "ui/edit/edit_commands.h"

#include "base/text.h"
#include "edit/told.h"
#include "ui/kit/text.h"
#include "ui/session/set_commands.h"

#include <QApplication>
#include <QClipboard>

namespace Ui {

using Edit::Slots;
using Routines::State;

namespace {

// ", sovrascritto RAI 1": the channels that stand in some slots; empty where there are none.
QString Overwritten(const State& state, Slots slots) {
  std::erase_if(slots, [&](int slot) { return state.Channel(slot).Empty(); });
  return slots.empty() ? QString() : ", " + Text(Edit::Told(state, slots, "sovrascritto", "sovrascritti"));
}

}  // namespace

void EditCommands::Connect(Actions& actions) {
  actions.Connect("Copia", [this] { Copy(); });
  actions.Connect("Taglia", [this] { Cut(); });
  actions.Connect("Incolla", [this] { Paste(); });
  actions.Connect("Elimina", [this] { Delete(); });
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
  session_.status.ShowResult(Text(Edit::Told(session_.document.Tables(), slots, "Copiato", "Copiati")));
}

void EditCommands::Cut() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty() || !MayReplaceClipboard()) return;
  GiveToOthers(slots);
  const std::string label = Edit::Told(session_.document.Tables(), slots, "Tagliato", "Tagliati");
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
  DeleteChannels(session_, slots);
  session_.view.ListGrid().SelectNear(slots.front());
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
  const Slots places = Edit::SlotRun(position, position + count - 1);
  const QString overwritten = way == Answer::No ? Overwritten(session_.document.Tables(), places) : QString();
  std::string label;
  const auto pasted = session_.document.Apply(label, [&](State& state, Edit::Clipboard& clipboard) {
    auto report = Edit::Paste(state, clipboard, position,
                              way == Answer::Yes ? Edit::PasteWay::Move : Edit::PasteWay::Overwrite,
                              session_.bouquets.tables);
    if (!report) return report;
    clipboard = {};
    label = Edit::Told(state, places, "Incollato", "Incollati",
                       (count == 1 ? " al " : " dal ") + std::to_string(position));
    return report;
  });
  if (!pasted) {
    session_.Message(pasted.error());
    return;
  }
  session_.view.ListGrid().Select(places);
  session_.view.ListGrid().ScrollToTop(position);
  TellPasted(Text(label) + overwritten, *pasted);
}

void EditCommands::TellPasted(QString text, const Edit::PasteReport& report) {
  if (report.favouritesBack > 0)
    text += ", " + Counted(report.favouritesBack, "preferito rimesso", "preferiti rimessi");
  if (report.favouritesFull > 0)
    text += ", " + Counted(report.favouritesFull, "preferito senza posto", "preferiti senza posto");
  text += session_.Losses(report.lost);
  if (report.withoutTransponder > 0)
    text += ", " + Counted(report.withoutTransponder, "canale senza transponder", "canali senza transponder");
  session_.status.ShowResult(text);
}

}  // namespace Ui
