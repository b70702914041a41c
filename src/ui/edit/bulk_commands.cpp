#include "ui/edit/bulk_commands.h"

#include "edit/told.h"
#include "formats/source_names.h"
#include "model/cells.h"
#include "ui/edit/rename_dialog.h"
#include "ui/edit/set_dialog.h"
#include "ui/edit/sort_dialog.h"
#include "ui/kit/text.h"

namespace Ui {

using Routines::State;

namespace {

// What the list on the right calls the channels; nothing where there is none.
Edit::SourceName NamesAtRight(const Session& session) {
  if (session.sdx.rows.empty()) return {};
  return [names = Formats::NamesFrom(session.sdx, session.document.Tables())](int slot) {
    const auto name = names.find(slot);
    return name == names.end() ? std::nullopt : std::optional(name->second);
  };
}

}  // namespace

void BulkCommands::Connect(Actions& actions) {
  actions.Connect("CambiaNomi", [this] { CambiaNomi(); });
  actions.Connect("ImpostaCampi", [this] { ImpostaCampi(); });
  actions.Connect("OrdinaCanali", [this] { OrdinaCanali(); });
}

void BulkCommands::CambiaNomi() {
  Document& document = session_.document;
  RenameDialog dialog(session_, NamesAtRight(session_), session_.view.window());
  if (dialog.exec() != QDialog::Accepted) return;
  const std::vector<Edit::NewName> names = dialog.Chosen();
  if (names.empty()) return;
  std::string label;
  const int renamed = document.Apply(label, [&](State& state) {
    const int changed = Edit::RenameChannels(state, names);
    label = changed == 1 ? "Rinominato " + names.front().before + " in " + names.front().after
                         : "Cambiati " + Base::Counted(changed, "nome", "nomi");
    return changed;
  });
  session_.status.ShowResult(Text(label) + (renamed == 1 ? QString() : dialog.Where()));
}

void BulkCommands::ImpostaCampi() {
  SetDialog dialog(session_, session_.view.window());
  if (dialog.exec() != QDialog::Accepted) return;
  const std::vector<Edit::ChangedChannel> plan = dialog.Chosen();
  const Edit::FieldChanges changes = dialog.Changes();
  Edit::Slots slots;
  for (const Edit::ChangedChannel& channel : plan) slots.push_back(channel.slot);
  const bool onlyActive = changes.shifts.empty() && changes.values.size() == 1 &&
                          changes.values[0].column == Routines::ChannelColumn::Active;
  const State& tables = session_.document.Tables();
  const std::string label =
      onlyActive ? Edit::ToldActive(tables, slots, changes.values[0].text == "S")
                 : Edit::Told(tables, slots, "Modificato", "Modificati", dialog.What().toStdString());
  session_.document.Apply(label, [&](State& state) { return Edit::SetFields(state, plan); });
  session_.status.ShowResult(Text(label));
}

void BulkCommands::OrdinaCanali() {
  SortDialog dialog(session_, session_.view.window());
  if (dialog.exec() != QDialog::Accepted) return;
  const Edit::SortPlan plan = dialog.Plan();
  const QString label = "Ordinati i canali " + dialog.How();
  const auto lost = session_.document.Apply(label.toStdString(),
                                            [&](State& state) { return Edit::SortChannels(state, plan); });
  session_.status.ShowResult(label + (plan.moved == 1 ? ": spostato " : ": spostati ") +
                             Counted(plan.moved, "canale", "canali") + session_.Losses(lost));
}

}  // namespace Ui
