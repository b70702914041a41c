#include "ui/favourites/favourites_edits.h"

#include "edit/list_operations.h"
#include "edit/told.h"
#include "model/favourites.h"
#include "review/order_match.h"
#include "ui/kit/text.h"
#include "ui/session/gate.h"
#include "ui/session/order_file.h"
#include "ui/session/preview_dialog.h"

#include <algorithm>

namespace Ui {

using Routines::State;

namespace {

constexpr const char* NotInList = "non è in lista";

QString FaultOf(Edit::Addition addition) {
  if (addition == Edit::Addition::Known) return "c'è già";
  return addition == Edit::Addition::Full ? "senza posto: la lista è piena" : "";
}

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
  if (Edit::AreSlots(session_.document.Tables(), slots)) Add(list, slots, place);
}

void FavouritesEdits::Add(std::size_t list, const std::vector<int>& slots, std::size_t place) {
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

void FavouritesEdits::AddFound(std::size_t list, QWidget* parent) {
  const FilterBar& filter = session_.view.Filter();
  if (!filter.Asks() || filter.ForTransponders() || filter.Matches().empty()) {
    Tell("Nessun canale trovato: il filtro sopra la griglia dice quali cercare");
    return;
  }
  AddSeen(list, filter.Matches(), {}, {}, parent);
}

void FavouritesEdits::AddFromFile(std::size_t list, QWidget* parent) {
  const auto file = AskOrder(session_);
  if (!file) return;
  const auto match = Review::MatchOrder(session_.document.Tables(), file->order, Review::Numbering::Together);
  QStringList missing;
  for (int number = match.list.offered + 1; number <= match.list.Count(); ++number)
    missing += CodePageText(Base::TrimmedRight(match.list.At(number).record.Name()));
  AddSeen(list, Review::SlotsInOrder(match), missing, UnreadableIn(*file), parent);
}

void FavouritesEdits::AddSeen(std::size_t list, const std::vector<int>& slots, const QStringList& missing,
                              const QString& unreadable, QWidget* parent) {
  const State& state = session_.document.Tables();
  const auto plan = Edit::PlanFavourites(state, list, slots);
  std::vector<PreviewLine> lines;
  for (std::size_t i = 0; i < slots.size(); ++i) {
    const QString name = CodePageText(Base::TrimmedRight(state.Channel(slots[i]).Name()));
    const QString fault = FaultOf(plan[i]);
    if (plan[i] != Edit::Addition::Empty) lines.push_back({slots[i], {name, fault}, fault});
  }
  for (const QString& name : missing) lines.push_back({0, {name, NotInList}, NotInList});
  const auto added = std::count(plan.begin(), plan.end(), Edit::Addition::Added);
  const auto full = std::count(plan.begin(), plan.end(), Edit::Addition::Full);
  const Base::Bytes& block = state.FavouritesBlock;
  const auto now = static_cast<long>(Routines::FavouriteEntriesOf(block, list).size());
  QString outcome =
      QString("Da aggiungere a %1: %2; %3 di %4 posti occupati")
          .arg(Title(list), Counted(added, "canale", "canali"))
          .arg(now + added)
          .arg(block.empty() ? Routines::FavouriteEntries : Routines::FavouriteRoom(block, list));
  if (full > 0) outcome += QString("; senza posto: %1").arg(full);
  if (!missing.isEmpty()) outcome += QString("; non in lista: %1").arg(missing.size());
  if (!unreadable.isEmpty()) outcome += "; " + unreadable;
  const PreviewText text{"AggiungiAiPreferiti",
                         "Aggiungi a " + Title(list),
                         {"Nome", "Perché no"},
                         {8, 26},
                         outcome,
                         "Aggiungi",
                         added > 0};
  if (ConfirmsPreview(text, std::move(lines), parent)) Add(list, slots, Routines::FavouriteEntries);
}

void FavouritesEdits::OrderChannels(std::size_t list, Edit::OrderPlace place, QWidget* parent) {
  if (!Meets(session_, Need::Places)) return;
  const State& state = session_.document.Tables();
  const Routines::SlotMap map = Edit::MapByFavourites(state, list, place);
  const Edit::Slots all = Edit::SlotRun(1, state.ChannelCount);
  const auto moved = std::count_if(
      all.begin(), all.end(), [&](int slot) { return map[slot] != slot && !state.Channel(slot).Empty(); });
  const QString changes = moved == 0 ? QString("Nessun canale cambia posto")
                                     : Counted(moved, "canale cambia posto", "canali cambiano posto");
  const bool top = place == Edit::OrderPlace::Top;
  const PreviewText text{"OrdinaConPreferiti",
                         (top ? "Metti in testa " : "Ordina come ") + Title(list),
                         {"Nome", "Era al"},
                         {8, 26},
                         changes,
                         top ? "Metti in testa" : "Ordina",
                         moved > 0};
  if (!ConfirmsPreview(text, LinesOf(state, map, all), parent)) return;
  const QString label =
      top ? "Messa in testa alla lista " + Title(list) : "Ordinati i canali come " + Title(list);
  session_.document.Apply(label.toStdString(), [&map](State& tables) { Edit::Rearrange(tables, map); });
  Tell(label + ": " + changes);
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
