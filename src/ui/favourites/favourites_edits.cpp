#include "ui/favourites/favourites_edits.h"

#include "ui/kit/text.h"

namespace Ui {

using Routines::State;

namespace {

QString Entries(std::integral auto count) { return Counted(count, "preferito", "preferiti"); }

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
  const auto report = session_.document.Apply(
      "Aggiungi ai preferiti", [&](State& state) { return Edit::AddFavourites(state, list, place, slots); });
  Tell(QString("%1: %2 in più").arg(Title(list), Entries(report.added)) + Remarks(report));
}

void FavouritesEdits::Remove(std::size_t list, const Places& places) {
  if (!Any(places)) return;
  session_.document.Apply("Togli dai preferiti",
                          [&](State& state) { Edit::RemoveFavourites(state, list, places); });
  Tell(QString("%1: %2 in meno").arg(Title(list), Entries(places.size())));
}

std::size_t FavouritesEdits::Move(std::size_t list, const Places& places, std::size_t target,
                                  std::size_t before) {
  if (!Any(places)) return 0;
  const auto report = session_.document.Apply("Sposta preferiti", [&](State& state) {
    return Edit::MoveFavourites(state, list, places, target, before);
  });
  const QString moved = list == target ? Title(list) : Title(list) + " → " + Title(target);
  Tell(QString("%1: %2").arg(moved, Entries(report.entries.added)) + Remarks(report.entries));
  return report.first;
}

void FavouritesEdits::Sort(std::size_t list, Edit::FavouriteOrder order) {
  session_.document.Apply("Ordina preferiti",
                          [&](State& state) { Edit::SortFavourites(state, list, order); });
  Tell(Title(list) +
       (order == Edit::FavouriteOrder::ByName ? ": ordinata per nome" : ": ordinata per numero"));
}

bool FavouritesEdits::Rename(std::size_t list, const QString& name) {
  if (!session_.document.Tables().Loaded) return false;
  const auto renamed = session_.document.Apply("Nome lista preferiti", [&](State& state) {
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
