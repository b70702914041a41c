#include "edit/take_over.h"

#include "base/text.h"
#include "edit/list_operations.h"
#include "model/favourites.h"
#include "model/symbol_rates.h"

#include <array>
#include <optional>

namespace Edit {
namespace {

using namespace Review;
using namespace Routines;

// What a transponder's data say of it, by the mark that takes them over.
struct TransponderData {
  Field<TransponderRecord> field;
  SdxField said;
  Mark mark;
};

constexpr std::array<TransponderData, 4> TransponderDataFields = {
    {{TransponderField::SymbolRate, SdxField::SymbolRate, Mark::Retuned},
     {TransponderField::Fec, SdxField::Fec, Mark::Retuned},
     {TransponderField::Tid, SdxField::Tid, Mark::Modified},
     {TransponderField::Nid, SdxField::Nid, Mark::Modified}}};

struct ChannelData {
  Field<ChannelRecord> field;
  SdxField said;
  Mark mark;
};

constexpr std::array<ChannelData, 6> ChannelDataFields = {
    {{ChannelField::Sid, SdxField::Sid, Mark::Modified},
     {ChannelField::Vpid, SdxField::Vpid, Mark::Pids},
     {ChannelField::Apid, SdxField::Apid, Mark::Pids},
     {ChannelField::Pcr, SdxField::Pcr, Mark::Pids},
     {ChannelField::Aecm, SdxField::Ecm, Mark::Modified},
     {ChannelField::Vecm, SdxField::Ecm, Mark::Modified}}};

void TakeFlags(ChannelRecord& mine, const OtherChannel& theirs) {
  const std::uint32_t active = ChannelField::Active.Mask();
  std::uint32_t taken = theirs.lacking.Has(SdxField::Coding) ? 0U : 0xFFU & ~active;
  if (!theirs.lacking.Has(SdxField::Active)) taken |= active;
  const std::uint32_t flags =
      (Get(mine, ChannelField::Flags) & ~taken) | (Get(theirs.record, ChannelField::Flags) & taken);
  Set(mine, ChannelField::Flags, flags);
}

// What one's own channel gets of the other's, its transponder left out.
void TakeData(ChannelRecord& mine, const OtherChannel& theirs, const Difference& difference) {
  if (difference.Has(Mark::Renamed))
    std::copy_n(theirs.record.bytes.begin(), ChannelRecord::NameSize, mine.bytes.begin());
  for (const ChannelData& data : ChannelDataFields) {
    if (difference.Has(data.mark) && !theirs.lacking.Has(data.said))
      Set(mine, data.field, Get(theirs.record, data.field));
  }
  if (difference.Has(Mark::Modified)) TakeFlags(mine, theirs);
}

class Taker {
 public:
  Taker(State& state, const OtherList& other, const Comparison& comparison, const BouquetTables& bouquets,
        NewPlace place)
      : state_(state), other_(other), comparison_(comparison), bouquets_(bouquets), place_(place) {}

  TakeOverReport Run(const std::vector<Difference>& chosen) {
    for (const Difference& difference : chosen) {
      if (difference.there != 0 && difference.here != 0) Change(difference);
    }
    report_.lost = Arrange(chosen);
    for (int slot = 1; slot <= state_.ChannelCount; ++slot) {
      const ChannelRecord& channel = state_.Channel(slot);
      if (!channel.Empty()) occupied_[Get(channel, ChannelField::Transponder)] = true;
    }
    for (const Difference& difference : chosen) {
      if (difference.Has(Mark::OnlyThere)) Add(difference.there);
    }
    TakeFavourites(chosen);
    CanaliXTransponder(state_);
    return report_;
  }

 private:
  [[nodiscard]] TransponderRecord Wanted(const OtherChannel& theirs) const {
    TransponderRecord wanted = other_.TransponderOf(theirs);
    const auto code =
        RecodedRate(other_.symbolRates, state_.SymbolRateTable, Get(wanted, TransponderField::SymbolRate));
    Set(wanted, TransponderField::SymbolRate, static_cast<std::uint32_t>(code));
    return wanted;
  }

  // The slot of the transponder here: `current` when that is the same one, else the first that is, or a free one that
  // takes it. 0 where there is none.
  int SlotOf(const OtherChannel& theirs, int current) {
    const TransponderRecord wanted = Wanted(theirs);
    if (current != 0 && SameTransponder(state_.Transponder(current).record, wanted)) return current;
    const TransponderSlot found = FindOrAddTransponder(state_, wanted);
    if (found.added) NameBouquet(state_.Transponder(found.slot), bouquets_);
    return found.slot;
  }

  // A channel without a transponder must not come upon one that it never had, or on one that takes a free slot later.
  void Unlink(ChannelRecord& channel, const OtherChannel& theirs) const {
    const std::uint32_t number = Get(theirs.record, ChannelField::Transponder);
    const bool inTable = static_cast<int>(number) <= state_.TransponderCount;
    Set(channel, ChannelField::Transponder, inTable ? 0 : number);
  }

  void Change(const Difference& difference) {
    const OtherChannel& theirs = other_.At(difference.there);
    ChannelRecord channel = state_.Channel(difference.here);
    if (difference.Has(Mark::Retuned)) {
      const int slot = SlotOf(theirs, OtherChannelOf(state_, difference.here).transponder);
      if (slot == 0) {
        ++report_.noTransponder;
        return;
      }
      Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(slot));
    }
    TakeData(channel, theirs, difference);
    const bool data = difference.Has(Mark::Renamed) || difference.Has(Mark::Pids);
    const bool tuning = difference.Has(Mark::Retuned) || difference.Has(Mark::Modified);
    state_.Channel(difference.here) = channel;
    report_.changed += data || tuning ? 1 : 0;
    if (tuning && theirs.transponder != 0 && OtherChannelOf(state_, difference.here).transponder != 0)
      Update(Get(channel, ChannelField::Transponder), theirs, difference.marks);
  }

  // A transponder's data go for all its channels: without them the one taken over would still be another. Those that
  // the first channel brings stay, where the other list has several within 3 MHz.
  void Update(std::size_t slot, const OtherChannel& theirs, MarkSet marks) {
    using namespace TransponderField;
    const TransponderRecord wanted = Wanted(theirs);
    TransponderRow& row = state_.Transponder(slot);
    TransponderRecord updated = row.record;
    const auto wants = [&](Mark mark) {
      const auto place = static_cast<std::size_t>(mark);
      return marks[place] && !updated_[place][slot];
    };
    for (const TransponderData& data : TransponderDataFields) {
      if (wants(data.mark) && !theirs.lacking.Has(data.said))
        Set(updated, data.field, Get(wanted, data.field));
    }
    if (wants(Mark::Retuned) && !theirs.lacking.Has(SdxField::Band) &&
        Get(updated, HighBand) != Get(wanted, HighBand)) {
      for (const auto& field : {Frequency, HighBand}) Set(updated, field, Get(wanted, field));
    }
    if (row.record == updated) return;
    row.record = updated;
    NameBouquet(row, bouquets_);
    for (std::size_t mark = 0; mark < Marks; ++mark)
      updated_[mark][slot] = updated_[mark][slot] || marks[mark];
    if (!counted_[slot]) ++report_.updated;
    counted_[slot] = true;
  }

  // The data of a transponder that no channel was on are nobody's: they may be long out of date.
  void UpdateUnoccupied(const OtherChannel& theirs, std::size_t slot) {
    if (theirs.transponder != 0 && !occupied_[slot]) Update(slot, theirs, MarkSet().set());
    occupied_[slot] = true;
  }

  // Takes the chosen channels out that are only here, and puts each moved one behind the channel that it follows in the
  // other list, the moved ones left out.
  std::vector<LostFavourite> Arrange(const std::vector<Difference>& chosen) {
    PerChannel<bool> leaves;
    PerChannel<bool> moves;
    for (const Difference& difference : chosen) {
      if (difference.Has(Mark::OnlyHere) || difference.Has(Mark::Moved)) leaves[difference.here] = true;
      if (difference.Has(Mark::Moved)) moves[difference.here] = true;
    }
    if (leaves == PerChannel<bool>{}) return {};
    report_.moved = moves.Count(true);
    report_.deleted = leaves.Count(true) - report_.moved;

    const PerChannel<std::vector<int>> behind = Followers(moves);
    SlotMap map = SameSlots();
    int next = 1;
    for (int slot = 0; slot <= state_.ChannelCount; ++slot) {
      if (slot > 0 && !leaves[slot]) map[slot] = next++;
      if (slot > 0 && leaves[slot] && !moves[slot]) map[slot] = 0;
      for (const int moved : behind[slot]) map[moved] = next++;
    }
    return Rearrange(state_, map);
  }

  // For each channel that stays, slot 0 for the list's head, the moved ones that come behind it, in the other's order.
  [[nodiscard]] PerChannel<std::vector<int>> Followers(const PerChannel<bool>& moves) const {
    std::vector<int> here(other_.channels.size());
    for (int slot = 1; slot <= LastChannelSlot; ++slot)
      here[static_cast<std::size_t>(comparison_.there[slot])] = slot;
    PerChannel<std::vector<int>> behind;
    int last = 0;
    for (int there = 1; there <= other_.offered; ++there) {
      const int slot = here[static_cast<std::size_t>(there)];
      if (slot == 0) continue;
      if (comparison_.fixed[slot]) last = slot;
      if (moves[slot]) behind[last].push_back(slot);
    }
    return behind;
  }

  // 0 where every slot has a channel.
  [[nodiscard]] int FirstHole() const {
    for (int slot = 1; slot <= state_.ChannelCount; ++slot) {
      if (state_.Channel(slot).Empty()) return slot;
    }
    return 0;
  }

  // Behind the last channel on a transponder of the same satellite and bouquet; 0 where there is none.
  [[nodiscard]] int BehindBouquet(std::uint32_t transponder) const {
    const TransponderRow* row = TransponderInUse(state_, transponder);
    if (row == nullptr || row->BouquetCode() == "  ") return 0;
    for (int slot = state_.ChannelCount; slot >= 1; --slot) {
      const ChannelRecord& channel = state_.Channel(slot);
      const TransponderRow* other = TransponderInUse(state_, Get(channel, ChannelField::Transponder));
      if (channel.Empty() || other == nullptr || other->bouquetCode != row->bouquetCode) continue;
      if (Get(other->record, TransponderField::Satellite) == Get(row->record, TransponderField::Satellite))
        return slot + 1;
    }
    return 0;
  }

  // An empty slot, made where there is to be one between others. `hole` is the first there is.
  int PlaceFor(const ChannelRecord& channel, int hole) {
    if (place_ == NewPlace::Holes) return hole;
    const int wanted =
        place_ == NewPlace::Bouquet ? BehindBouquet(Get(channel, ChannelField::Transponder)) : 0;
    if (wanted != 0 && wanted <= state_.ChannelCount) {
      if (state_.Channel(wanted).Empty()) return wanted;
      if (const auto made = MakeRoom(state_, wanted, 1)) {
        report_.lost.insert(report_.lost.end(), made->begin(), made->end());
        return wanted;
      }
    }
    const int behind = LastOccupied(state_) + 1;
    return behind <= state_.ChannelCount ? behind : hole;
  }

  void Add(int there) {
    const OtherChannel& theirs = other_.At(there);
    const int hole = FirstHole();
    if (hole == 0) {
      ++report_.noRoom;
      return;
    }
    ChannelRecord channel = theirs.record;
    if (theirs.transponder == 0) {
      Unlink(channel, theirs);
    } else if (const int slot = SlotOf(theirs, 0); slot != 0) {
      Set(channel, ChannelField::Transponder, static_cast<std::uint32_t>(slot));
    } else {
      ++report_.noTransponder;
      return;
    }
    const int slot = PlaceFor(channel, hole);
    state_.Channel(slot) = channel;
    ++report_.added;
    UpdateUnoccupied(theirs, Get(channel, ChannelField::Transponder));
  }

  // Behind all else: what was added may be named by a list.
  void TakeFavourites(const std::vector<Difference>& chosen) {
    const auto is = [](const Difference& difference) { return difference.Has(Mark::Favourites); };
    if (std::none_of(chosen.begin(), chosen.end(), is)) return;
    const Comparison now = Compare(state_, other_);
    for (const Difference& difference : chosen) {
      if (!is(difference)) continue;
      const std::size_t list = difference.favourites;
      SetFavouriteEntries(state_.FavouritesBlock, list, FavouritesHere(now, other_, list));
      SetFavouriteName(state_.FavouritesBlock, list, FavouriteNameOf(other_.favourites, list));
      ++report_.favourites;
    }
  }

  State& state_;
  const OtherList& other_;
  const Comparison& comparison_;
  const BouquetTables& bouquets_;
  NewPlace place_;
  std::array<std::bitset<LastTransponderSlot + 1>, Marks> updated_{};  // by the mark that did it
  std::bitset<LastTransponderSlot + 1> counted_;
  PerSlot<bool, 255> occupied_;  // with channels on it, by the number that they have
  TakeOverReport report_;
};

// Gives slots to those that have none yet: the free ones behind `last` first, then from the front on.
void Place(const std::vector<int>& slots, int last, int count, SlotMap& map, PerChannel<bool>& taken) {
  std::vector<int> free;
  for (int slot = last + 1; slot <= count; ++slot) free.push_back(slot);
  for (int slot = 1; slot <= last; ++slot) free.push_back(slot);
  std::erase_if(free, [&taken](int slot) { return taken[slot]; });
  for (std::size_t i = 0; i < slots.size(); ++i) {
    map[slots[i]] = free[i];
    taken[free[i]] = true;
  }
}

int LastOccupied(const OtherList& list) {
  int number = list.offered;
  while (number > 0 && list.At(number).record.Empty()) --number;
  return number;
}

}  // namespace

std::string TextOf(const TakeOverReport& report, NewPlace place) {
  constexpr std::array<const char*, 3> Places = {" in fondo", " nei posti vuoti", " dietro il loro bouquet"};

  std::string text;
  const auto add = [&text](int count, const char* one, const char* more, const char* where = "") {
    if (count > 0) text += (text.empty() ? "" : ", ") + Base::Counted(count, one, more) + where;
  };
  add(report.added, "canale aggiunto", "canali aggiunti", Places[static_cast<std::size_t>(place)]);
  add(report.deleted, "eliminato", "eliminati");
  add(report.changed, "modificato", "modificati");
  add(report.moved, "spostato", "spostati");
  add(report.updated, "transponder aggiornato", "transponder aggiornati");
  add(report.favourites, "lista di preferiti presa", "liste di preferiti prese");
  add(report.noRoom, "non aggiunto: la lista è piena", "non aggiunti: la lista è piena");
  add(report.noTransponder, "lasciato: nessun transponder libero", "lasciati: nessun transponder libero");
  return text;
}

TakeOverReport TakeOver(State& state, const OtherList& other, const Comparison& comparison,
                        const std::vector<Difference>& chosen, const BouquetTables& bouquets,
                        NewPlace place) {
  return Taker(state, other, comparison, bouquets, place).Run(chosen);
}

int TakeOrder(State& state, const OtherList& other, const Comparison& comparison) {
  SlotMap map = SameSlots();
  PerChannel<bool> taken;
  std::vector<int> rest;   // channels without a number of the other list
  std::vector<int> empty;  // a favourites entry on an empty slot goes on naming one
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const int there = comparison.there[slot];
    if (state.Channel(slot).Empty()) {
      empty.push_back(slot);
    } else if (there == 0 || there > state.ChannelCount) {
      rest.push_back(slot);
    } else {
      map[slot] = there;
      taken[there] = true;
    }
  }
  Place(rest, std::min(LastOccupied(other), state.ChannelCount), state.ChannelCount, map, taken);
  Place(empty, 0, state.ChannelCount, map, taken);

  int moved = 0;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    if (!state.Channel(slot).Empty() && map[slot] != slot) ++moved;
  }
  Rearrange(state, map);
  return moved;
}

}  // namespace Edit
