#include "ui/edit/bulk_commands.h"

#include "formats/source_names.h"
#include "ui/edit/rename_dialog.h"
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
  actions.Connect("OrdinaCanali", [this] { OrdinaCanali(); });
}

void BulkCommands::CambiaNomi() {
  Document& document = session_.document;
  RenameDialog dialog(session_, NamesAtRight(session_), session_.view.window());
  if (dialog.exec() != QDialog::Accepted) return;
  const std::vector<Edit::NewName> names = dialog.Chosen();
  if (names.empty()) return;
  const std::string count = Base::Counted(names.size(), "nome", "nomi");
  const int renamed =
      document.Apply("Cambia " + count, [&](State& state) { return Edit::RenameChannels(state, names); });
  session_.status.ShowResult(
      renamed == 1 ? QString("Rinominato %1 in %2").arg(Text(names.front().before), Text(names.front().after))
                   : "Cambiati " + Counted(renamed, "nome", "nomi") + dialog.Where());
}

void BulkCommands::OrdinaCanali() {
  SortDialog dialog(session_, session_.view.window());
  if (dialog.exec() != QDialog::Accepted) return;
  const Edit::SortPlan plan = dialog.Plan();
  const auto lost = session_.document.Apply("Ordina Canali " + dialog.How().toStdString(),
                                            [&](State& state) { return Edit::SortChannels(state, plan); });
  session_.status.ShowResult("Ordinati i canali " + dialog.How() + ": spostati " +
                             Counted(plan.moved, "canale", "canali") + session_.Losses(lost));
}

}  // namespace Ui
