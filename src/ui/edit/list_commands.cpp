#include "ui/edit/list_commands.h"

#include "base/code_page.h"
#include "base/text.h"
#include "edit/list_operations.h"
#include "edit/regroup.h"
#include "edit/told.h"
#include "ui/kit/toolkit.h"
#include "ui/session/filter_texts.h"

#include <QAction>

namespace Ui {

using Routines::State;

void ListCommands::Connect(Actions& actions) {
  actions.Connect("OrdinaPerBouquet", [this] { OrdinaPerBouquet(); });
  actions.Connect("SpostaRadio", [this] { SpostaRadio(); });
  actions.Connect("Azzera", [this] { Azzera(); });
  actions.Connect("InvertiSatelliti", [this] { InvertiSatelliti(); });
  actions.Connect("RiportaAB", [this] { RiportaAB(); });
  actions.Connect("CanaliXTransponder", [this] { CanaliXTransponder(); });
  actions.Connect("CercaCanale", [this] { CercaCanale(); });
  actions.Connect("CercaSuccessivo", [this] { CercaSuccessivo(); });
  actions.Connect("Filtra", [this] { session_.view.Filter().StartTyping(); });
  actions.Connect("SelezionaTrovati", [this] { SelezionaTrovati(); });
  actions.Connect("SoloITrovati",
                  [this, &actions] { session_.view.Filter().SetOnly(actions["SoloITrovati"].isChecked()); });
  FilterBar& filter = session_.view.Filter();
  QObject::connect(&filter, &FilterBar::OnlyToggled, &actions["SoloITrovati"], &QAction::setChecked);
  FollowFilter(session_, filter, session_.view.Hits(), "righe");
  actions.Connect("VaiAlCanale", [this] { VaiAlCanale(); });
}

// The number typed, between 1 and `last`; nothing when the user gives up.
std::optional<int> ListCommands::AskStart(int last) {
  Dialogs& ask = session_.dialogs;
  for (;;) {
    const auto answer = ask.AskLine(
        "Inserire il canale dal quale iniziare il raggruppamento; I canali precedenti manterranno la "
        "numerazione");
    if (!answer || answer->isEmpty()) return std::nullopt;
    const int start = Base::LeadingNumber(answer->toStdString());
    if (start >= 1 && start <= last) return start;
    if (!ask.OkCancel("Il numero indicato è maggiore dell' ultimo canale")) return std::nullopt;
  }
}

void ListCommands::OrdinaPerBouquet() {
  const auto start = AskStart(Routines::LastOccupied(session_.document.Tables()));
  if (!start) return;
  const std::string label = "Canali ordinati per bouquet dal " + std::to_string(*start);
  const auto lost = Waiting([&] {
    return session_.document.Apply(label,
                                   [&](State& state) { return Edit::OrdinaPerBouquet(state, *start); });
  });
  session_.view.Show(View::Channels);
  session_.status.ShowResult(Text(label) + session_.Losses(lost));
}

void ListCommands::SpostaRadio() {
  const auto start = AskStart(Routines::LastOccupied(session_.document.Tables()));
  if (!start) return;
  const std::string label = "Canali raggruppati dal " + std::to_string(*start);
  const Edit::Regrouped done =
      session_.document.Apply(label, [&](State& state) { return Edit::Regroup(state, *start); });
  session_.view.Show(View::Channels);
  session_.status.ShowResult(QString("%1: TV %2, radio %3, servizi %4")
                                 .arg(Text(label))
                                 .arg(done.television)
                                 .arg(done.radio)
                                 .arg(done.services) +
                             session_.Losses(done.lost));
  session_.dialogs.Message(
      QString("Dal canale %1, nell'ordine:\nCanali TV: %2\nCanali radio: %3\nServizi: %4")
          .arg(*start)
          .arg(done.television)
          .arg(done.radio)
          .arg(done.services),
      {}, Tone::Information);
}

void ListCommands::Azzera() {
  const State& tables = session_.document.Tables();
  const std::string label = "Azzerati " + Base::Counted(Routines::UsedChannels(tables), "canale", "canali") +
                            " e " +
                            Base::Counted(Routines::UsedTransponders(tables), "transponder", "transponder");
  const int cleared = session_.document.Apply(label, [](State& state) { return Edit::Azzera(state); });
  session_.view.ShowFromStart(View::Channels);
  session_.status.ShowResult(Text(label));
  session_.dialogs.Message(QString("Sono stati azzerati %1 Canali").arg(cleared), {}, Tone::Information);
}

void ListCommands::InvertiSatelliti() {
  ChangeTransponders("Invertiti i satelliti A e B, C e D", Edit::InvertiSatelliti);
}

void ListCommands::RiportaAB() { ChangeTransponders("Riportati i transponder a SAT A-B", Edit::RiportaAB); }

void ListCommands::CanaliXTransponder() {
  ChangeTransponders("Ricalcolato il numero di canali per transponder", Edit::CanaliXTransponder);
}

void ListCommands::ChangeTransponders(const char* label, void (*operation)(State&)) {
  const int revision = session_.document.Revision();
  session_.document.Apply(label, operation);
  session_.view.Show(View::Transponders);
  const bool changed = session_.document.Revision() != revision;
  session_.status.ShowResult(changed ? QString(label) : QString(label) + ": era già così");
}

void ListCommands::VaiAlCanale() {
  const auto answer = session_.dialogs.AskLine("Inserire il Nr. del canale su cui posizionarsi");
  if (!answer || answer->isEmpty()) return;
  const int slot = Base::LeadingNumber(answer->toStdString());
  if (slot < 1 || slot > session_.document.Tables().ChannelCount) {
    session_.dialogs.Message("Nr. Canale non valido", {});
    return;
  }
  session_.view.GoTo(slot);
  session_.TellChannel(slot);
}

void ListCommands::CercaCanale() {
  const auto answer = session_.dialogs.AskLine("Inserire il canale da ricercare");
  if (!answer || answer->isEmpty()) return;
  const auto wanted = Base::FromUtf8(answer->toStdString());
  int slot = 0;
  if (wanted) {
    wanted_ = *wanted;
    slot = Edit::FindName(session_.document.Tables(), wanted_, 1);
  }
  while (slot != 0) {
    session_.view.ShowFound(slot);
    session_.status.ShowResult(
        QString("Trovato %1 al %2").arg(Text(Edit::NameIn(session_.document.Tables(), slot))).arg(slot));
    if (!session_.dialogs.YesNo("Ricerco il successivo?")) return;
    slot = Edit::FindName(session_.document.Tables(), wanted_, slot + 1);
  }
  session_.dialogs.Message("Canale non trovato", {}, Tone::Information);
}

void ListCommands::SelezionaTrovati() {
  session_.view.Hits().SelectAll();
  const auto found = session_.view.Filter().Matches().size();
  session_.status.ShowResult(found == 0 ? QString("Il filtro non ha trovato righe")
                                        : (found == 1 ? "Selezionata " : "Selezionate ") +
                                              Counted(found, "riga", "righe"));
}

void ListCommands::CercaSuccessivo() {
  if (!session_.view.Filter().Matches().empty()) {
    session_.view.Hits().Step(true);
    return;
  }
  if (session_.view.Current() != View::Channels) return;
  const State& state = session_.document.Tables();
  const int here = session_.view.ListGrid().currentIndex().row() + 1;
  int slot = wanted_.empty() ? 0 : Edit::FindName(state, wanted_, here + 1);
  if (slot == 0 && !wanted_.empty()) slot = Edit::FindName(state, wanted_, 1);
  if (slot != 0) {
    session_.view.ShowFound(slot);
  } else {
    session_.status.ShowResult("Canale non trovato");
  }
}

}  // namespace Ui
