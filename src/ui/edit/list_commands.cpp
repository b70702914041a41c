#include "ui/edit/list_commands.h"

#include "base/code_page.h"
#include "base/text.h"
#include "edit/list_operations.h"
#include "edit/regroup.h"
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
  const auto lost = Waiting([&] {
    return session_.document.Apply("Ordina Canali per Bouquet",
                                   [&](State& state) { return Edit::OrdinaPerBouquet(state, *start); });
  });
  session_.view.Show(View::Channels);
  session_.status.ShowResult(QString("Canali ordinati per bouquet dal %1").arg(*start) +
                             session_.Losses(lost));
}

void ListCommands::SpostaRadio() {
  const auto start = AskStart(Routines::LastOccupied(session_.document.Tables()));
  if (!start) return;
  const Edit::Regrouped done = session_.document.Apply(
      "Raggruppa RADIO e SERVIZI", [&](State& state) { return Edit::Regroup(state, *start); });
  session_.view.Show(View::Channels);
  session_.status.ShowResult(QString("Canali raggruppati dal %1: TV %2, radio %3, servizi %4")
                                 .arg(*start)
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
  const int cleared = session_.document.Apply("Azzera Canali e Transponder",
                                              [](State& state) { return Edit::Azzera(state); });
  session_.view.ShowFromStart(View::Channels);
  session_.status.ShowResult(QString("Azzera Canali e Transponder: %1 canali").arg(cleared));
  session_.dialogs.Message(QString("Sono stati azzerati %1 Canali").arg(cleared), {}, Tone::Information);
}

void ListCommands::InvertiSatelliti() { ChangeTransponders("Inverti Satelliti", Edit::InvertiSatelliti); }

void ListCommands::RiportaAB() { ChangeTransponders("Riporta tutto a SAT A-B", Edit::RiportaAB); }

void ListCommands::CanaliXTransponder() {
  ChangeTransponders("Ricalcola il numero di Canali per transponder", Edit::CanaliXTransponder);
}

void ListCommands::ChangeTransponders(const char* label, void (*operation)(State&)) {
  session_.document.Apply(label, operation);
  session_.view.Show(View::Transponders);
  session_.status.ShowResult(label);
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
  session_.status.ShowResult(QString("Canale %1").arg(slot));
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
    session_.status.ShowResult(QString("Trovato al canale %1").arg(slot));
    if (!session_.dialogs.YesNo("Ricerco il successivo?")) return;
    slot = Edit::FindName(session_.document.Tables(), wanted_, slot + 1);
  }
  session_.dialogs.Message("Canale non trovato", {}, Tone::Information);
}

void ListCommands::SelezionaTrovati() {
  session_.view.Hits().SelectAll();
  const auto found = session_.view.Filter().Matches().size();
  session_.status.ShowResult(found == 0 ? QString("Il filtro non ha trovato righe")
                                        : "Selezionate " + Counted(found, "riga", "righe"));
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
