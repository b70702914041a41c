#include "edit/favourites_edit.h"

#include "base/names.h"
#include "edit/renumber.h"

#include <algorithm>

namespace Edit {
namespace {

using namespace Routines;

bool IsChannel(const State& state, int slot) {
  return slot >= 1 && slot <= state.ChannelCount && !state.Channel(slot).Empty();
}

// A list that came without favourites gets an empty block of the usual size.
Base::Bytes& BlockOf(State& state) {
  if (state.FavouritesBlock.empty()) state.FavouritesBlock.assign(NormalFavouritesSize, 0);
  return state.FavouritesBlock;
}

std::ptrdiff_t Signed(std::size_t place) { return static_cast<std::ptrdiff_t>(place); }

// Takes the entries at `places` out of `entries` and returns them in their order.
std::vector<int> TakeOut(std::vector<int>& entries, const std::vector<std::size_t>& places) {
  std::vector<int> taken;
  std::vector<int> left;
  for (std::size_t place = 0; place < entries.size(); ++place) {
    const bool wanted = std::find(places.begin(), places.end(), place) != places.end();
    (wanted ? taken : left).push_back(entries[place]);
  }
  entries = std::move(left);
  return taken;
}

}  // namespace

std::vector<Addition> PlanFavourites(const State& state, std::size_t list, const std::vector<int>& slots) {
  const Base::Bytes block =
      state.FavouritesBlock.empty() ? Base::Bytes(NormalFavouritesSize) : state.FavouritesBlock;
  std::vector<int> entries = FavouriteEntriesOf(block, list);
  const std::size_t room = FavouriteRoom(block, list);
  std::vector<Addition> plan;
  for (const int slot : slots) {
    Addition what = Addition::Added;
    if (!IsChannel(state, slot)) {
      what = Addition::Empty;
    } else if (std::find(entries.begin(), entries.end(), slot) != entries.end()) {
      what = Addition::Known;
    } else if (entries.size() >= room) {
      what = Addition::Full;
    } else {
      entries.push_back(slot);
    }
    plan.push_back(what);
  }
  return plan;
}

AddReport AddFavourites(State& state, std::size_t list, std::size_t place, const std::vector<int>& slots) {
  const std::vector<Addition> plan = PlanFavourites(state, list, slots);
  const auto count = [&plan](Addition what) {
    return static_cast<int>(std::count(plan.begin(), plan.end(), what));
  };
  const AddReport report{count(Addition::Added), count(Addition::Known), count(Addition::Empty),
                         count(Addition::Full)};
  if (report.added == 0) return report;
  Base::Bytes& block = BlockOf(state);
  std::vector<int> entries = FavouriteEntriesOf(block, list);
  place = std::min(place, entries.size());
  for (std::size_t i = 0; i < slots.size(); ++i)
    if (plan[i] == Addition::Added) entries.insert(entries.begin() + Signed(place++), slots[i]);
  SetFavouriteEntries(block, list, std::move(entries));
  return report;
}

void RemoveFavourites(State& state, std::size_t list, const std::vector<std::size_t>& places) {
  std::vector<int> entries = FavouriteEntriesOf(state.FavouritesBlock, list);
  if (!TakeOut(entries, places).empty()) SetFavouriteEntries(state.FavouritesBlock, list, std::move(entries));
}

MoveReport MoveFavourites(State& state, std::size_t list, const std::vector<std::size_t>& places,
                          std::size_t target, std::size_t before) {
  MoveReport report;
  std::vector<int> source = FavouriteEntriesOf(state.FavouritesBlock, list);
  if (list == target) {
    const auto ahead = std::count_if(places.begin(), places.end(), [before](auto p) { return p < before; });
    const std::vector<int> moved = TakeOut(source, places);
    report.first = std::min(before - std::min(before, static_cast<std::size_t>(ahead)), source.size());
    source.insert(source.begin() + Signed(report.first), moved.begin(), moved.end());
    report.entries.added = static_cast<int>(moved.size());
    SetFavouriteEntries(state.FavouritesBlock, list, std::move(source));
    return report;
  }

  std::vector<int> entries = FavouriteEntriesOf(state.FavouritesBlock, target);
  std::vector<std::size_t> gone;
  report.first = before = std::min(before, entries.size());
  for (const std::size_t place : places) {
    if (place >= source.size()) continue;
    if (std::find(entries.begin(), entries.end(), source[place]) != entries.end()) {
      ++report.entries.known;
    } else if (entries.size() >= FavouriteRoom(state.FavouritesBlock, target)) {
      ++report.entries.full;
      continue;
    } else {
      entries.insert(entries.begin() + Signed(before++), source[place]);
      ++report.entries.added;
    }
    gone.push_back(place);
  }
  SetFavouriteEntries(state.FavouritesBlock, target, std::move(entries));
  RemoveFavourites(state, list, gone);
  return report;
}

void SortFavourites(State& state, std::size_t list, FavouriteOrder order) {
  std::vector<int> entries = FavouriteEntriesOf(state.FavouritesBlock, list);
  const auto name = [&state](int slot) { return Base::UpperCase(state.Channel(slot).Name()); };
  const auto channels = std::stable_partition(entries.begin(), entries.end(),
                                              [&state](int slot) { return IsChannel(state, slot); });
  if (order == FavouriteOrder::ByNumber) {
    std::stable_sort(entries.begin(), channels);
  } else {
    std::stable_sort(entries.begin(), channels,
                     [&name](int one, int other) { return name(one) < name(other); });
  }
  std::stable_sort(channels, entries.end());
  SetFavouriteEntries(state.FavouritesBlock, list, std::move(entries));
}

SlotMap MapByFavourites(const State& state, std::size_t list, OrderPlace place) {
  std::vector<int> wanted;
  PerChannel<bool> named;
  for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list)) {
    if (!IsChannel(state, slot) || named[slot]) continue;
    named[slot] = true;
    wanted.push_back(slot);
  }
  std::vector<int> own = wanted;
  std::sort(own.begin(), own.end());
  SlotMap map = SameSlots();
  for (std::size_t i = 0; i < wanted.size(); ++i)
    map[wanted[i]] = place == OrderPlace::Top ? static_cast<int>(i) + 1 : own[i];
  int next = static_cast<int>(wanted.size());
  for (int slot = 1; place == OrderPlace::Top && slot <= state.ChannelCount; ++slot)
    if (!named[slot]) map[slot] = ++next;
  return map;
}

Base::Outcome RenameFavourites(State& state, std::size_t list, std::string_view name) {
  const auto bytes = Base::NameBytes(name, FavouriteNameSize);
  if (!bytes) return bytes.error();
  Base::Bytes block = BlockOf(state);
  if (FavouriteNameOf(block, list) == *bytes) return Base::Done{};
  if (!SetFavouriteName(block, list, *bytes))
    return Base::Error{"L'area dei preferiti di questa lista non ha posto per i nomi"};
  state.FavouritesBlock = std::move(block);
  return Base::Done{};
}

}  // namespace Edit
