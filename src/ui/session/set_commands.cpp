#include "ui/session/set_commands.h"

#include "edit/cell_edit.h"
#include "edit/told.h"
#include "model/cells.h"

namespace Ui {

using Routines::State;

namespace {

bool Confirms(Session& session, const Edit::Slots& slots, const char* one, const char* more,
              const QString& warning) {
  if (slots.size() == 1) return true;
  const QString told = Text(Edit::Told(session.document.Tables(), slots, one, more));
  const QString stop = told.endsWith("…") ? "" : ".";
  return session.dialogs.YesNo(told + stop + (warning.isEmpty() ? "" : " " + warning) + " Continuo?");
}

}  // namespace

void DeleteChannels(Session& session, const Edit::Slots& slots) {
  const std::string label = Edit::Told(session.document.Tables(), slots, "Eliminato", "Eliminati");
  const auto lost =
      session.document.Apply(label, [&](State& state) { return Edit::DeleteSlots(state, slots); });
  session.status.ShowResult(Text(label) + session.Losses(lost));
}

void DeactivateChannels(Session& session, const Edit::Slots& slots) {
  const std::string label = Edit::ToldActive(session.document.Tables(), slots, false);
  const auto changed = session.document.Apply(label, [&](State& state) {
    return Edit::EditChannels(state, slots, Routines::ChannelColumn::Active, "N");
  });
  session.status.ShowResult(changed ? Text(label) : Text(changed.error().message));
}

void AskAndDelete(Session& session, const Edit::Slots& slots, const QString& warning) {
  if (Confirms(session, slots, "Si elimina", "Si eliminano", warning)) DeleteChannels(session, slots);
}

void AskAndDeactivate(Session& session, const Edit::Slots& slots, const QString& warning) {
  if (Confirms(session, slots, "Si disattiva", "Si disattivano", warning)) DeactivateChannels(session, slots);
}

void SelectChannels(Session& session, const Edit::Slots& slots) {
  session.view.Show(View::Channels);
  session.view.ListGrid().Select(slots);
  session.status.ShowResult("Selezionati " + Counted(slots.size(), "canale", "canali"));
}

}  // namespace Ui
