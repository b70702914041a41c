#include "ui/favourites/favourites_edits.h"

#include "edit/told.h"
#include "ui/kit/text.h"

#include <algorithm>

namespace Ui {

using Routines::State;

namespace {

// What became of the channels that could not be added.
QString Remarks(const Edit::AddReport& report) {
  QString text;
  if (report.known > 0) text += ", " + Counted(report.known, "c'era già", "c'erano già");
  if (report.empty > 0) text += ", " + Counted(report.empty, "posto vuoto saltato", "posti vuoti saltati");
  if (report.full > 0) text += QString(", %1 senza posto: la lista è piena").arg(report.full);
  return text;
}

}  // namespace

QString FavouritesEdits::Title(std::size_t list) const {
  return Text(Routines::FavouritesTitle(session_.document.Tables().FavouritesBlock, list));
}

// Entries of a list, by what they name.
std::string FavouritesEdits::ToldEntries(std::size_t list, const Places& places, const char* one,
                                         const char* more, const QString& where) const {
  const State& state = session_.document.Tables();
  const auto entries = Routines::FavouriteEntriesOf(state.FavouritesBlock, list);
  Edit::Slots slots;
  for (const std::size_t place : places) {
    if (place < entries.size() && entries[place] <= Routines::LastChannelSlot)
      slots.push_back(entries[place]);
  }
  return Edit::Told(state, slots, one, more, where.toStdString());
}

void FavouritesEdits::Tell(const QString& text) { session_.status.ShowResult(text); }

bool FavouritesEdits::Any(const Places& places) {
  if (places.empty()) Tell("Nessun preferito selezionato");
  return !places.empty();
}

void FavouritesEdits::AddSelected(std::size_t list) {
  const Edit::Slots slots = session_.view.ListGrid().Selected();
  if (session_.view.Current() != View::Channels || slots.empty()) {
    Tell("Nessun canale selezionato nella lista dei canali");
    return;
  }
  AddSlots(list, slots, Routines::FavouriteEntries);
}

void FavouritesEdits::AddSlots(std::size_t list, const Edit::Slots& slots, std::size_t place) {
  if (!Edit::AreSlots(session_.document.Tables(), slots)) return;
  std::string label;
  const auto report = session_.document.Apply(label, [&](State& state) {
    const auto before = Routines::FavouriteEntriesOf(state.FavouritesBlock, list);
    auto done = Edit::AddFavourites(state, list, place, slots);
    Edit::Slots added = slots;
    std::erase_if(added, [&](int slot) {
      return state.Channel(slot).Empty() || std::find(before.begin(), before.end(), slot) != before.end();
    });
    added.resize(std::min(added.size(), static_cast<std::size_t>(done.added)));
    label = Edit::Told(state, added, "Aggiunto", "Aggiunti", " a " + Title(list).toStdString());
    return done;
  });
  Tell((report.added == 0 ? "Nessun preferito aggiunto a " + Title(list) : Text(label)) + Remarks(report));
}

void FavouritesEdits::Remove(std::size_t list, const Places& places) {
  if (!Any(places)) return;
  const std::string label = ToldEntries(list, places, "Tolto", "Tolti", " da " + Title(list));
  session_.document.Apply(label, [&](State& state) { Edit::RemoveFavourites(state, list, places); });
  Tell(Text(label));
}

std::size_t FavouritesEdits::Move(std::size_t list, const Places& places, std::size_t target,
                                  std::size_t before) {
  if (!Any(places)) return 0;
  const QString where = list == target ? " in " + Title(list) : " da " + Title(list) + " a " + Title(target);
  const std::string label = ToldEntries(list, places, "Spostato", "Spostati", where);
  const auto report = session_.document.Apply(
      label, [&](State& state) { return Edit::MoveFavourites(state, list, places, target, before); });
  Tell((report.entries.added == 0 ? "Nessun preferito spostato" + where : Text(label)) +
       Remarks(report.entries));
  return report.first;
}

void FavouritesEdits::Sort(std::size_t list, Edit::FavouriteOrder order) {
  const QString label =
      "Ordinata " + Title(list) + (order == Edit::FavouriteOrder::ByName ? " per nome" : " per numero");
  session_.document.Apply(label.toStdString(),
                          [&](State& state) { Edit::SortFavourites(state, list, order); });
  Tell(label);
}

bool FavouritesEdits::Rename(std::size_t list, const QString& name) {
  if (!session_.document.Tables().Loaded) return false;
  const QString label = "Rinominata " + Title(list) + " in " + name;
  const auto renamed = session_.document.Apply(label.toStdString(), [&](State& state) {
    return Edit::RenameFavourites(state, list, name.toStdString());
  });
  if (!renamed) Tell("Non modificato: " + Text(renamed.error().message));
  return static_cast<bool>(renamed);
}

void FavouritesEdits::GoTo(int slot) {
  if (slot < 1 || slot > session_.document.Tables().ChannelCount) {
    Tell(QString("Il posto %1 non c'è nella lista").arg(slot));
    return;
  }
  session_.GoToChannel(slot);
}

}  // namespace Ui
