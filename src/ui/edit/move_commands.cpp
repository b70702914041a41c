#include "ui/edit/move_commands.h"

#include "base/text.h"
#include "edit/clipboard.h"
#include "edit/told.h"
#include "ui/kit/text.h"

#include <algorithm>

namespace Ui {

using Edit::Slots;
using Routines::State;

void MoveCommands::Connect(Actions& actions) {
  actions.Connect("SpostaSu", [this] { MoveBy(-1); });
  actions.Connect("SpostaGiu", [this] { MoveBy(1); });
  actions.Connect("SpostaA", [this] { SpostaA(); });
  actions.Connect("SpostaInCima", [this] { SpostaInCima(); });
  actions.Connect("SpostaInFondo", [this] { SpostaInFondo(); });
  actions.Connect("SpostaDopoUltimo", [this] { SpostaDopoUltimo(); });
  actions.Connect("Scambia", [this] { Scambia(); });
  actions.Connect("ChiudiVuoti", [this] { ChiudiVuoti(); });
  QObject::connect(&session_.view, &ListView::Dropped, &session_.view,
                   [this](const Slots& slots, int before, bool copy) { Drop(slots, before, copy); });
  QObject::connect(&session_.status, &StatusLine::GoToWanted, &session_.view,
                   [this](int slot) { ShowMoved(slot); });
}

namespace {

// "Spostato RAI 1 dal 5 al 3", "Spostati 3 canali in su di 2 posti: …": channels that are in `slots` now. Up and down
// again they are where they were.
std::string ToldAfter(const State& state, const Slots& slots, int rows) {
  if (rows == 0)
    return Edit::Told(state, slots, "Spostato", "Spostati",
                      slots.size() == 1 ? " e riportato al suo posto" : " e riportati al loro posto");
  if (slots.size() == 1)
    return Edit::Told(state, slots, "Spostato", "",
                      " dal " + std::to_string(slots[0] - rows) + " al " + std::to_string(slots[0]));
  return Edit::Told(
      state, slots, "", "Spostati",
      (rows < 0 ? " in su di " : " in giù di ") + Base::Counted(std::abs(rows), "posto", "posti"));
}

}  // namespace

void MoveCommands::MoveBy(int rows) {
  Slots slots = session_.SelectedChannels();
  if (slots.empty()) return;
  Document& document = session_.document;
  // Rows that go on from where they have just been moved to make one step with it.
  const bool continues = stepped_ == slots && steppedRevision_ == document.Revision();
  const int sum = rows + (continues ? steppedBy_ : 0);
  std::string label;
  const bool moved = document.Apply(
      label,
      [&](State& state) {
        const bool made = Edit::StepChannels(state, slots, rows);
        for (int& slot : slots) slot += made ? rows : 0;
        label = ToldAfter(state, slots, sum);
        return made;
      },
      continues ? Edit::History::Kind::Continued : Edit::History::Kind::Edit);
  if (!moved) return;
  stepped_ = slots;
  steppedBy_ = sum;
  steppedRevision_ = document.Revision();
  session_.view.ListGrid().Select(slots);
  session_.status.ShowResult(Text(label));
}

void MoveCommands::Move(const Slots& slots, int to) {
  Document& document = session_.document;
  const int revision = document.Revision();
  const std::string label = Edit::ToldMove(document.Tables(), slots, to);
  document.Apply(label, [&](State& state) { Edit::MoveChannels(state, slots, to); });
  moved_ = Edit::SlotRun(to, to + static_cast<int>(slots.size()) - 1);
  movedRevision_ = document.Revision();
  lastMoved_ = moved_.back();
  lastRecord_ = document.Tables().Channel(lastMoved_);
  session_.view.ListGrid().SelectUnseen(moved_);
  if (document.Revision() == revision) {
    session_.status.ShowResult(QString("Già al posto %1").arg(to));
  } else {
    session_.status.ShowResult(Text(label), to);
  }
}

// All of them, where they are still what was moved last.
void MoveCommands::ShowMoved(int slot) {
  if (movedRevision_ != session_.document.Revision()) return session_.GoToChannel(slot);
  session_.view.Show(View::Channels);
  session_.view.ListGrid().Select(moved_);
  session_.view.ListGrid().setFocus();
}

void MoveCommands::SpostaA() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty()) return;
  const auto answer = session_.dialogs.AskLine("Inserire il numero di canale a cui spostare");
  if (!answer || answer->isEmpty()) return;
  const int to = Base::LeadingNumber(answer->toStdString());
  if (to < 1 || to + static_cast<int>(slots.size()) - 1 > session_.document.Tables().ChannelCount) {
    session_.dialogs.Message("Nr. Canale non valido", {});
    return;
  }
  Move(slots, to);
}

void MoveCommands::SpostaInCima() {
  if (const Slots slots = session_.SelectedChannels(); !slots.empty()) Move(slots, 1);
}

void MoveCommands::SpostaInFondo() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty()) return;
  const int last = std::max(Routines::LastOccupied(session_.document.Tables()), slots.back());
  Move(slots, Edit::TargetBefore(slots, last + 1));
}

// It may have been moved on since, with others or by what was put in before it.
int MoveCommands::LastMoved() const {
  const State& state = session_.document.Tables();
  if (lastMoved_ == 0 || lastMoved_ > state.ChannelCount || state.Channel(lastMoved_) == lastRecord_)
    return std::min(lastMoved_, state.ChannelCount);
  const auto first = state.ChannelTable.begin();
  const auto end = first + state.ChannelCount + 1;
  const auto found = std::find(first, end, lastRecord_);
  return found == end ? lastMoved_ : static_cast<int>(found - first);
}

void MoveCommands::SpostaDopoUltimo() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty()) return;
  if (const int last = LastMoved(); last != 0) {
    Move(slots, Edit::TargetBefore(slots, last + 1));
  } else {
    session_.status.ShowResult("Nessun canale spostato finora: prima In cima, o Sposta a…");
  }
}

void MoveCommands::Scambia() {
  const Slots slots = session_.SelectedChannels();
  if (slots.empty()) return;
  if (slots.size() != 2) {
    session_.dialogs.Message("Per scambiarli si devono selezionare due canali", {});
    return;
  }
  const State& state = session_.document.Tables();
  const std::string label = "Scambiati " + Edit::NameIn(state, slots[0]) + " e " +
                            Edit::NameIn(state, slots[1]) + ": ora al " + std::to_string(slots[1]) +
                            " e al " + std::to_string(slots[0]);
  session_.document.Apply(label, [&](State& tables) { Edit::SwapChannels(tables, slots[0], slots[1]); });
  session_.status.ShowResult(Text(label));
}

void MoveCommands::ChiudiVuoti() {
  const Slots slots = session_.view.ListGrid().Selected();
  if (slots.size() > 1) return CloseGaps(slots, "fra le righe selezionate");
  const auto answer = session_.dialogs.AskLine("Inserire il canale dal quale chiudere i posti vuoti");
  if (!answer || answer->isEmpty()) return;
  const int start = Base::LeadingNumber(answer->toStdString());
  if (start < 1 || start > session_.document.Tables().ChannelCount) {
    session_.dialogs.Message("Nr. Canale non valido", {});
    return;
  }
  CloseGapsFrom(start);
}

// It gives other numbers to what nobody has selected.
void MoveCommands::CloseGapsFrom(int start) {
  const State& state = session_.document.Tables();
  const Slots slots = Edit::SlotRun(start, Routines::LastOccupied(state));
  const auto gap = [&state](int slot) { return state.Channel(slot).Empty(); };
  const auto first = std::find_if(slots.begin(), slots.end(), gap);
  const auto gaps = std::count_if(first, slots.end(), gap);
  const QString question =
      QString("%1 %2: %3 numero. Continuo?")
          .arg(gaps == 1 ? "Si chiude" : "Si chiudono", Counted(gaps, "posto vuoto", "posti vuoti"),
               Counted(slots.end() - first - gaps, "canale cambia", "canali cambiano"));
  if (gaps == 0 || session_.dialogs.YesNo(question)) CloseGaps(slots, "dal " + std::to_string(start));
}

void MoveCommands::CloseGaps(const Slots& slots, const std::string& where) {
  const State& state = session_.document.Tables();
  const auto empty = [&state](int slot) { return state.Channel(slot).Empty(); };
  // Those behind the last channel stay where they are.
  const auto last = std::find_if_not(slots.rbegin(), slots.rend(), empty);
  const auto closed = std::count_if(last, slots.rend(), empty);
  const std::string label = (closed == 1 ? "Chiuso " : "Chiusi ") +
                            Base::Counted(closed, "posto vuoto", "posti vuoti") + " " + where;
  const auto lost =
      session_.document.Apply(label, [&](State& tables) { return Edit::CloseGaps(tables, slots); });
  session_.status.ShowResult(closed == 0 ? "Nessun posto vuoto da chiudere " + Text(where)
                                         : Text(label) + session_.Losses(lost));
}

void MoveCommands::Drop(const Slots& slots, int before, bool copy) {
  if (!Edit::AreSlots(session_.document.Tables(), slots) || !Meets(session_, Need::Places)) return;
  if (copy) {
    InsertCopy(slots, before);
  } else {
    Move(slots, Edit::TargetBefore(slots, before));
  }
}

void MoveCommands::InsertCopy(const Slots& slots, int before) {
  const State& state = session_.document.Tables();
  const std::string label = Edit::Told(state, slots, "Copiato", "Copiati",
                                       (slots.size() == 1 ? " al " : " dal ") + std::to_string(before));
  const bool made = session_.document.Apply(label, [&](State& tables) {
    const Edit::Clipboard copy = Edit::CopyChannels(tables, slots);
    return static_cast<bool>(
        Edit::Paste(tables, copy, before, Edit::PasteWay::Move, session_.bouquets.tables));
  });
  if (made)
    session_.view.ListGrid().Select(Edit::SlotRun(before, before + static_cast<int>(slots.size()) - 1));
  session_.status.ShowResult(
      made ? Text(label) : "Non inserito: non c'è posto per " + Counted(slots.size(), "canale", "canali"));
}

}  // namespace Ui
