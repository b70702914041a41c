#include "ui/edit/move_commands.h"

#include "base/text.h"
#include "edit/clipboard.h"
#include "ui/kit/text.h"

#include <algorithm>

namespace Ui {

using Edit::Slots;
using Routines::State;

namespace {

std::string CountText(std::integral auto count) { return Base::Counted(count, "canale", "canali"); }

// "RAI 1", or what stands for it where the slot is empty.
QString NameOf(const State& state, int slot) {
  const auto& channel = state.Channel(slot);
  if (channel.Empty()) return "il posto vuoto";
  const QString name = CodePageText(Base::TrimmedRight(channel.Name()));
  return name.isEmpty() ? QString("il canale senza nome") : name;
}

// "Spostato RAI 1 dal 705 al 1" or "Spostate 3 righe ai posti da 5 a 7: RAI 1, RAI 2, RAI 3"; `state` is before the move.
QString MovedText(const State& state, const Slots& slots, int to) {
  constexpr std::size_t MostNames = 3;
  if (slots.size() == 1)
    return QString("Spostato %1 dal %2 al %3").arg(NameOf(state, slots[0])).arg(slots[0]).arg(to);
  QStringList names;
  for (std::size_t i = 0; i < std::min(slots.size(), MostNames); ++i) names += NameOf(state, slots[i]);
  return QString("Spostati %1 canali ai posti da %2 a %3: %4")
      .arg(slots.size())
      .arg(to)
      .arg(to + static_cast<int>(slots.size()) - 1)
      .arg(names.join(", ") + (slots.size() > MostNames ? "…" : ""));
}

}  // namespace

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
                   [this](int slot) { session_.GoToChannel(slot); });
}

void MoveCommands::MoveBy(int rows) {
  Slots slots = session_.SelectedChannels();
  if (slots.empty()) return;
  Document& document = session_.document;
  // Rows that go on from where they have just been moved to make one step with it.
  const bool continues = stepped_ == slots && steppedRevision_ == document.Revision();
  const std::string label = "Sposta " + CountText(slots.size());
  const bool moved = document.Apply(
      label, [&](State& state) { return Edit::StepChannels(state, slots, rows); },
      continues ? Edit::History::Kind::Continued : Edit::History::Kind::Edit);
  if (!moved) return;
  for (int& slot : slots) slot += rows;
  stepped_ = slots;
  steppedRevision_ = document.Revision();
  session_.view.ListGrid().Select(slots);
  session_.status.ShowResult("Spostati " + Text(CountText(slots.size())) +
                             QString(" al %1").arg(slots.front()));
}

void MoveCommands::Move(const Slots& slots, int to) {
  Document& document = session_.document;
  const QString result = MovedText(document.Tables(), slots, to);
  const int revision = document.Revision();
  document.Apply("Sposta " + CountText(slots.size()),
                 [&](State& state) { Edit::MoveChannels(state, slots, to); });
  const Slots now = Edit::SlotRun(to, to + static_cast<int>(slots.size()) - 1);
  lastMoved_ = now.back();
  lastRecord_ = document.Tables().Channel(lastMoved_);
  session_.view.ListGrid().SelectUnseen(now);
  if (document.Revision() == revision) {
    session_.status.ShowResult(QString("Già al posto %1").arg(to));
  } else {
    session_.status.ShowResult(result, to);
  }
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
  const QString result = QString("Scambiati %1 e %2: ora al %3 e al %4")
                             .arg(NameOf(state, slots[0]), NameOf(state, slots[1]))
                             .arg(slots[1])
                             .arg(slots[0]);
  session_.document.Apply("Scambia 2 canali",
                          [&](State& tables) { Edit::SwapChannels(tables, slots[0], slots[1]); });
  session_.status.ShowResult(result);
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
  if (gaps == 0 || session_.dialogs.YesNo(question)) CloseGaps(slots, QString("dal %1").arg(start));
}

void MoveCommands::CloseGaps(const Slots& slots, const QString& where) {
  const State& state = session_.document.Tables();
  const auto used = [&] {
    return std::find_if(slots.rbegin(), slots.rend(), [&](int slot) { return !state.Channel(slot).Empty(); });
  };
  const auto before = used();
  const auto lost = session_.document.Apply("Chiudi i posti vuoti",
                                            [&](State& tables) { return Edit::CloseGaps(tables, slots); });
  const auto closed = used() - before;
  session_.status.ShowResult(closed == 0 ? "Nessun posto vuoto da chiudere " + where
                                         : (closed == 1 ? "Chiuso " : "Chiusi ") +
                                               Counted(closed, "posto vuoto", "posti vuoti") + ' ' + where +
                                               session_.Losses(lost));
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
  const std::string label = "Copia " + CountText(slots.size());
  const bool made = session_.document.Apply(label, [&](State& state) {
    const Edit::Clipboard copy = Edit::CopyChannels(state, slots);
    return static_cast<bool>(
        Edit::Paste(state, copy, before, Edit::PasteWay::Move, session_.bouquets.tables));
  });
  if (made)
    session_.view.ListGrid().Select(Edit::SlotRun(before, before + static_cast<int>(slots.size()) - 1));
  session_.status.ShowResult(made ? Text(label) + QString(" al %1").arg(before)
                                  : "Non c'è posto per inserire " + Text(CountText(slots.size())));
}

}  // namespace Ui
