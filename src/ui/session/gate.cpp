#include "ui/session/gate.h"

#include "ui/session/session.h"

namespace Ui {
namespace {

constexpr std::string_view NoFlash = "Si deve caricare prima una FLASH di input";
constexpr std::string_view PlacesHidden =
    "Con Solo i trovati non si vedono i posti fra una riga e l'altra: prima si devono mostrare tutte le "
    "righe "
    "(Ctrl+Shift+H)";
constexpr std::string_view PlacesSorted =
    "Con la vista ordinata non si vedono i posti della lista: prima si deve tornare all'ordine della lista "
    "(Ctrl+Shift+L)";
constexpr std::string_view ChannelsOnly = "Funzione valida solo in visualizzazione canali";

Base::Outcome Or(bool met, std::string_view refusal) {
  if (met) return Base::Done{};
  return Base::Error{std::string(refusal)};
}

Base::Outcome Check(const Session& session, Need need) {
  const Routines::State& state = session.document.Tables();
  const View view = session.view.Current();
  const bool channels = view == View::Channels;
  const bool capacity = session.settings.Chosen().quantiCanali.has_value();
  switch (need) {
    case Need::Nothing:
      return Base::Done{};
    case Need::List:
      return Or(state.Loaded, NoFlash);
    case Need::ListToClear:
      return Or(state.Loaded, "Si deve selezionare prima le FLASH di Input");
    case Need::OpenedFlash:
      return Or(!state.InputFlash.empty(), NoFlash);
    case Need::Capacity:
      return Or(capacity, Routines::NoCapacityChosen);
    case Need::CapacityToExport:
      return Or(capacity, "Si deve selezionare il numero di canali da esportare");
    case Need::Settings:
      return Routines::CheckSettings(session.settings.Chosen());
    case Need::AnyView:
      return Or(view != View::None, ChannelsOnly);
    case Need::ChannelView:
      return Or(channels, ChannelsOnly);
    case Need::ChannelRows:
      return Or(channels, "Deve essere visibile la lista canali");
    case Need::Places:
      if (session.view.ListGrid().HiddenRows() > 0) return Or(false, PlacesHidden);
      return Or(!session.view.ListGrid().IsSorted(), PlacesSorted);
    case Need::ListOrder:
      return Or(!session.view.ListGrid().IsSorted(), PlacesSorted);
    case Need::ChannelsForSdx:
      return Or(channels, "Per Caricare un file SDX si deve visualizzare la griglia Canali");
    case Need::ChannelsForDownload:
      return Or(channels, "Per poter importare da Internet si deve visualizzare la griglia Canali");
    case Need::ChannelsForSdxImport:
      return Or(channels, "Per importare i canali da SDX deve essere visibile la lista dei canali");
  }
  return Base::Done{};
}

}  // namespace

bool Holds(const Session& session, Enabled condition) {
  const Routines::State& state = session.document.Tables();
  switch (condition) {
    case Enabled::Always:
      return true;
    case Enabled::WithList:
      return state.Loaded;
    case Enabled::WithoutFls:
      return !state.FromFls;
    case Enabled::WhenSdxMayShow:
      return !state.FromFls || session.sdxShownSinceFls;
    case Enabled::WhileSdxShown:
      return session.sdxShown;
    case Enabled::WithFavourites:
      return session.favouritesAtHand;
    case Enabled::WithUndo:
      return !session.document.Steps().UndoLabel().empty();
    case Enabled::WithRedo:
      return !session.document.Steps().RedoLabel().empty();
  }
  return true;
}

const char* WhyDisabled(const Session& session, Enabled condition) {
  const bool byFls = condition == Enabled::WithoutFls || condition == Enabled::WhenSdxMayShow;
  return byFls && !Holds(session, condition) ? "Non disponibile dopo l'importazione da formato FLASH, fino "
                                               "ad Annulla o a un salvataggio completo"
                                             : "";
}

bool Meets(Session& session, Need need) {
  const auto met = Check(session, need);
  if (met) return true;
  session.Message(met.error());
  if (need == Need::Capacity || need == Need::CapacityToExport || need == Need::Settings)
    session.settings.PointOutMissing();
  return false;
}

bool Meets(Session& session, const Gate& gate) {
  return Meets(session, gate.needs[0]) && Meets(session, gate.needs[1]);
}

}  // namespace Ui
