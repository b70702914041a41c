#include "review/compare.h"

#include "base/code_page.h"
#include "base/text.h"
#include "model/cells.h"
#include "model/favourites.h"
#include "model/symbol_rates.h"

#include <tuple>
#include <unordered_map>

namespace Review {
namespace {

using namespace Routines;

const TransponderRecord& TransponderOf(const State& state, const ChannelRecord& channel) {
  return state.Transponder(Get(channel, ChannelField::Transponder)).record;
}

// For each transponder slot of a list one number that stands for the same transponder in both lists; 0 for a channel
// without one.
using Classes = PerSlot<int, 255>;

int FirstSame(const State& state, const TransponderRecord& record) {
  const int megahertz = FrequencyMHz(record);
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    const TransponderRecord& known = state.Transponder(slot).record;
    if (!IsFree(known) && SameTransponder(known, record, megahertz)) return slot;
  }
  return 0;
}

Classes ClassesOf(const State& state, const State& first) {
  constexpr int OnlyInSecond = 1000;
  Classes classes{};
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    const TransponderRecord& record = state.Transponder(slot).record;
    if (IsFree(record)) continue;
    const int same = FirstSame(first, record);
    classes[slot] = same != 0 ? FirstSame(first, first.Transponder(same).record)
                              : OnlyInSecond + FirstSame(state, record);
  }
  return classes;
}

// What a channel of both lists is known by, from the strictest on.
enum class By { Contents, ServiceAndFrequency, Service, Frequency };

void Append(std::string& key, std::uint32_t value) {
  for (const unsigned shift : {0U, 8U, 16U}) key += static_cast<char>(value >> shift & 255U);
}

// Empty where the channel cannot be known that way.
std::string KeyOf(const State& state, const Classes& classes, const ChannelRecord& channel, By by) {
  const auto transponder = static_cast<std::uint32_t>(classes[Get(channel, ChannelField::Transponder)]);
  std::string key;
  if (by == By::Contents) {
    ChannelRecord contents = channel;
    Set(contents, ChannelField::Transponder, 0);
    key = Base::AsText(contents.bytes);
    Append(key, transponder);
    return key;
  }
  if (transponder == 0) return key;
  if (by != By::Frequency) {
    const TransponderRecord& record = TransponderOf(state, channel);
    const std::uint32_t tid = Get(record, TransponderField::Tid);
    const std::uint32_t nid = Get(record, TransponderField::Nid);
    if (tid == 0 && nid == 0) return key;
    for (const std::uint32_t part : {Get(record, TransponderField::Satellite), nid, tid}) Append(key, part);
  }
  Append(key, Get(channel, ChannelField::Sid));
  if (by != By::Service) Append(key, transponder);
  return key;
}

// The channels of both lists.
struct Pairs {
  SlotMap there{};  // by slot here
  SlotMap here{};   // by slot there
};

void PairChannels(const State& here, const State& there, Pairs& pairs, By by, const Classes& classesHere,
                  const Classes& classesThere) {
  std::unordered_map<std::string, std::vector<int>> waiting;  // from the last one of the list on
  for (int slot = there.ChannelCount; slot >= 1; --slot) {
    const ChannelRecord& channel = there.Channel(slot);
    if (channel.Empty() || pairs.here[slot] != 0) continue;
    const std::string key = KeyOf(there, classesThere, channel, by);
    if (!key.empty()) waiting[key].push_back(slot);
  }
  for (int slot = 1; slot <= here.ChannelCount && !waiting.empty(); ++slot) {
    const ChannelRecord& channel = here.Channel(slot);
    if (channel.Empty() || pairs.there[slot] != 0) continue;
    const auto found = waiting.find(KeyOf(here, classesHere, channel, by));
    if (found == waiting.end() || found->second.empty()) continue;
    pairs.there[slot] = found->second.back();
    pairs.here[found->second.back()] = slot;
    found->second.pop_back();
  }
}

Pairs PairsOf(const State& here, const State& there) {
  const Classes classesHere = ClassesOf(here, here);
  const Classes classesThere = ClassesOf(there, here);
  Pairs pairs;
  for (const By by : {By::Contents, By::ServiceAndFrequency, By::Service, By::Frequency})
    PairChannels(here, there, pairs, by, classesHere, classesThere);
  return pairs;
}

// The most channels that are in the same order in both lists: the longest run of rising numbers there. All the others
// are moved, so that one channel put in at the top moves none.
PerChannel<bool> InSameOrder(const SlotMap& there) {
  std::vector<int> ends;  // for each length the slot that ends such a run with the lowest number
  SlotMap before{};
  const auto lower = [&there](int slot, int number) { return there[slot] < number; };
  for (int slot = 1; slot <= LastChannelSlot; ++slot) {
    if (there[slot] == 0) continue;
    const auto place = std::lower_bound(ends.begin(), ends.end(), there[slot], lower);
    before[slot] = place == ends.begin() ? 0 : *(place - 1);
    if (place == ends.end()) {
      ends.push_back(slot);
    } else {
      *place = slot;
    }
  }
  PerChannel<bool> fixed;
  for (int slot = ends.empty() ? 0 : ends.back(); slot != 0; slot = before[slot]) fixed[slot] = true;
  return fixed;
}

// Whether two codes stand for the same rate, each by the table of its list.
bool SameRate(const State& here, const State& there, const TransponderRecord& one,
              const TransponderRecord& other) {
  const std::uint32_t code = Get(one, TransponderField::SymbolRate);
  const std::uint32_t otherCode = Get(other, TransponderField::SymbolRate);
  if (here.SymbolRateTable == there.SymbolRateTable) return code == otherCode;
  const std::string_view rate = SymbolRateText(here.SymbolRateTable, code);
  const std::string_view otherRate = SymbolRateText(there.SymbolRateTable, otherCode);
  const bool known = rate.find_first_of("0123456789") != std::string_view::npos;
  return rate == otherRate && (known || code == otherCode);
}

// Calls `add` with a mark, what it is about, and the texts of both sides, for all that differs between the transponders
// of a channel of both lists.
template <class Add>
void EachTransponderChange(const State& here, const State& there, const ChannelRecord& one,
                           const ChannelRecord& other, const Add& add) {
  if (!HasTransponder(here, one) || !HasTransponder(there, other)) return;
  const TransponderRecord& record = TransponderOf(here, one);
  const TransponderRecord& otherRecord = TransponderOf(there, other);
  const auto cell = [](const State& state, const ChannelRecord& channel, int column) {
    return TransponderCell(state, static_cast<int>(Get(channel, ChannelField::Transponder)), column);
  };
  const auto tell = [&](Mark mark, std::string_view what, int column) {
    add(mark, what, cell(here, one, column), cell(there, other, column));
  };
  const auto differ = [&](const Field<TransponderRecord>& field) {
    return Get(record, field) != Get(otherRecord, field);
  };
  if (!SameTransponder(record, otherRecord)) {
    const auto tuning = [&](const State& state, const ChannelRecord& channel) {
      return cell(state, channel, TransponderColumn::Frequency) + " " +
             cell(state, channel, TransponderColumn::Polarisation);
    };
    add(Mark::Retuned, "", tuning(here, one), tuning(there, other));
  }
  if (!SameRate(here, there, record, otherRecord)) tell(Mark::Retuned, "SR ", TransponderColumn::SymbolRate);
  if (differ(TransponderField::Fec)) tell(Mark::Retuned, "FEC ", TransponderColumn::Fec);
  if (differ(TransponderField::HighBand)) tell(Mark::Retuned, "22KHz ", TransponderColumn::Tone);
  if (differ(TransponderField::Tid)) tell(Mark::Modified, "TID ", TransponderColumn::Tid);
  if (differ(TransponderField::Nid)) tell(Mark::Modified, "NID ", TransponderColumn::Nid);
}

struct NumberField {
  Field<ChannelRecord> field;
  std::string_view name;
  Mark mark;
};

constexpr std::array<NumberField, 5> NumberFields = {{{ChannelField::Vpid, "VPID ", Mark::Retuned},
                                                      {ChannelField::Apid, "APID ", Mark::Retuned},
                                                      {ChannelField::Pcr, "PCR ", Mark::Retuned},
                                                      {ChannelField::Aecm, "AECM ", Mark::Modified},
                                                      {ChannelField::Vecm, "VECM ", Mark::Modified}}};

// The same for the channel itself.
template <class Add>
void EachChange(const State& here, const State& there, int slotHere, int slotThere, const Add& add) {
  const ChannelRecord& one = here.Channel(slotHere);
  const ChannelRecord& other = there.Channel(slotThere);
  EachTransponderChange(here, there, one, other, add);
  for (const NumberField& number : NumberFields) {
    const std::uint32_t value = Get(one, number.field);
    const std::uint32_t otherValue = Get(other, number.field);
    if (value != otherValue && (HasStream(value) || HasStream(otherValue)))
      add(number.mark, number.name, std::to_string(value), std::to_string(otherValue));
  }
  const auto tell = [&](std::string_view what, int column) {
    add(Mark::Modified, what, ChannelCell(here, slotHere, column), ChannelCell(there, slotThere, column));
  };
  const std::uint32_t flags = Get(one, ChannelField::Flags) ^ Get(other, ChannelField::Flags);
  if ((flags & ~ChannelField::Active.Mask()) != 0) tell("codifica ", ChannelColumn::Flags);
  if ((flags & ChannelField::Active.Mask()) != 0) tell("attivo ", ChannelColumn::Active);
  const std::string_view name = Base::TrimmedRight(one.Name());
  const std::string_view otherName = Base::TrimmedRight(other.Name());
  if (name != otherName) add(Mark::Renamed, "", std::string(name), std::string(otherName));
}

// Whether two records have the same bytes but for the number of their transponder.
bool SameBytes(ChannelRecord one, const ChannelRecord& other) {
  Set(one, ChannelField::Transponder, Get(other, ChannelField::Transponder));
  return one == other;
}

// A channel of both lists.
Difference ComparePair(const State& here, const State& there, int slot, Comparison& comparison) {
  Difference found{slot, comparison.there[slot], {}};
  EachChange(here, there, slot, found.there, [&found](Mark mark, auto&&...) { found.Add(mark); });
  const ChannelRecord& one = here.Channel(slot);
  const ChannelRecord& other = there.Channel(found.there);
  if (found.marks.none() && !SameBytes(one, other)) ++comparison.alike;
  if (!found.Has(Mark::Retuned) &&
      Get(one, ChannelField::Transponder) != Get(other, ChannelField::Transponder)) {
    ++comparison.relinked;
  }
  if (!comparison.fixed[slot]) {
    found.Add(Mark::Moved);
  } else if (found.there != slot) {
    ++comparison.shifted;
  }
  return found;
}

void CompareChannels(const State& here, const State& there, const Pairs& pairs, Comparison& comparison) {
  const auto used = [](const State& state, int slot) {
    return slot <= state.ChannelCount && !state.Channel(slot).Empty();
  };
  const auto single = [](int slotHere, int slotThere, Mark mark) {
    Difference found{slotHere, slotThere, {}};
    found.Add(mark);
    return found;
  };
  std::vector<Difference>& differences = comparison.differences;
  for (int slot = 1; slot <= std::max(here.ChannelCount, there.ChannelCount); ++slot) {
    if (used(here, slot) && pairs.there[slot] == 0) {
      differences.push_back(single(slot, 0, Mark::OnlyHere));
    } else if (used(here, slot)) {
      const Difference found = ComparePair(here, there, slot, comparison);
      if (found.marks.any()) differences.push_back(found);
    }
    if (used(there, slot) && pairs.here[slot] == 0) differences.push_back(single(0, slot, Mark::OnlyThere));
  }
}

// For each transponder here the one there: in the same slot where that is the same, else the first that is.
Classes PairTransponders(const State& here, const State& there, PerSlot<bool, 255>& taken) {
  Classes pairs{};
  const auto same = [&](int slot, int other) {
    const TransponderRecord& record = here.Transponder(slot).record;
    const TransponderRecord& otherRecord = there.Transponder(other).record;
    return !taken[other] && !IsFree(record) && !IsFree(otherRecord) && SameTransponder(record, otherRecord);
  };
  const auto pair = [&](int slot, int other) {
    pairs[slot] = other;
    taken[other] = true;
  };
  for (int slot = 1; slot <= std::min(here.TransponderCount, there.TransponderCount); ++slot) {
    if (same(slot, slot)) pair(slot, slot);
  }
  for (int slot = 1; slot <= here.TransponderCount; ++slot) {
    for (int other = 1; other <= there.TransponderCount && pairs[slot] == 0; ++other) {
      if (same(slot, other)) pair(slot, other);
    }
  }
  return pairs;
}

TransponderDifferences CompareTransponders(const State& here, const State& there) {
  TransponderDifferences found;
  PerSlot<bool, 255> taken;
  const Classes pairs = PairTransponders(here, there, taken);
  for (int slot = 1; slot <= here.TransponderCount; ++slot) {
    const TransponderRecord& record = here.Transponder(slot).record;
    if (IsFree(record)) continue;
    if (pairs[slot] == 0) {
      ++found.onlyHere;
      continue;
    }
    if (pairs[slot] != slot) ++found.renumbered;
    TransponderRecord other = there.Transponder(pairs[slot]).record;
    if (SameRate(here, there, record, other))
      Set(other, TransponderField::SymbolRate, Get(record, TransponderField::SymbolRate));
    if (record == other) continue;
    Set(other, TransponderField::ChannelCount, Get(record, TransponderField::ChannelCount));
    ++(record == other ? found.recounted : found.changed);
  }
  for (int slot = 1; slot <= there.TransponderCount; ++slot) {
    if (!taken[slot] && !IsFree(there.Transponder(slot).record)) ++found.onlyThere;
  }
  return found;
}

std::vector<std::size_t> CompareFavourites(const State& here, const State& there, const SlotMap& pairs) {
  std::vector<std::size_t> lists;
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    std::vector<int> entries = FavouriteEntriesOf(here.FavouritesBlock, list);
    for (int& slot : entries) {
      if (slot <= here.ChannelCount && !here.Channel(slot).Empty()) slot = pairs[slot];
    }
    if (entries != FavouriteEntriesOf(there.FavouritesBlock, list) ||
        FavouriteNameOf(here.FavouritesBlock, list) != FavouriteNameOf(there.FavouritesBlock, list)) {
      lists.push_back(list);
    }
  }
  return lists;
}

// "11804 V SAT A, SID 3401"
std::string ServiceText(const State& state, int slot) {
  const ChannelRecord& channel = state.Channel(slot);
  std::string text;
  if (HasTransponder(state, channel)) {
    const int transponder = static_cast<int>(Get(channel, ChannelField::Transponder));
    for (const int column :
         {TransponderColumn::Frequency, TransponderColumn::Polarisation, TransponderColumn::Satellite})
      text +=
          TransponderCell(state, transponder, column) + (column == TransponderColumn::Satellite ? ", " : " ");
  }
  return Base::ToUtf8(text + "SID " + ChannelCell(state, slot, ChannelColumn::Sid));
}

}  // namespace

bool HasTransponder(const State& state, const ChannelRecord& channel) {
  return TransponderInUse(state, Get(channel, ChannelField::Transponder)) != nullptr;
}

Comparison Compare(const State& here, const State& there) {
  const Pairs pairs = PairsOf(here, there);
  Comparison comparison;
  comparison.there = pairs.there;
  comparison.fixed = InSameOrder(pairs.there);
  CompareChannels(here, there, pairs, comparison);
  comparison.transponders = CompareTransponders(here, there);
  comparison.favourites = CompareFavourites(here, there, pairs.there);
  return comparison;
}

std::string DetailsOf(const State& here, const State& there, const Difference& difference) {
  if (difference.Has(Mark::OnlyHere)) return ServiceText(here, difference.here);
  if (difference.Has(Mark::OnlyThere)) return ServiceText(there, difference.there);
  std::string text;
  EachChange(here, there, difference.here, difference.there,
             [&text](Mark, std::string_view what, const std::string& from, const std::string& to) {
               text.append(text.empty() ? "" : ", ").append(what);
               if (!from.empty() || !to.empty()) text += Base::ToUtf8(from) + " → " + Base::ToUtf8(to);
             });
  return text;
}

std::string OtherDifferences(const State& here, const Comparison& comparison, std::string_view onlyThere) {
  std::string text;
  const auto add = [&text](std::string_view before, int count, std::string_view one, std::string_view more) {
    if (count > 0) text.append(before).append(Base::Counted(count, one, more));
  };
  const TransponderDifferences& transponders = comparison.transponders;
  const std::pair<int, std::string_view> parts[] = {
      {transponders.onlyHere, "solo in questa lista"},
      {transponders.onlyThere, onlyThere},
      {transponders.changed, "con altri dati"},
      {transponders.renumbered, "con un altro numero"},
      {transponders.recounted, "con un altro conteggio dei canali"}};
  for (const auto& [count, what] : parts) add(text.empty() ? "Transponder: " : ", ", count, what, what);
  const std::tuple<int, std::string_view, std::string_view> channels[] = {
      {comparison.shifted, "canale ha un altro numero nello stesso ordine",
       "canali hanno un altro numero nello stesso ordine"},
      {comparison.relinked, "canale ha lo stesso transponder con un altro numero",
       "canali hanno lo stesso transponder con un altro numero"},
      {comparison.alike, "canale è diverso solo in byte senza effetto",
       "canali sono diversi solo in byte senza effetto"}};
  for (const auto& [count, one, more] : channels) add(text.empty() ? "" : ". ", count, one, more);
  for (const std::size_t list : comparison.favourites) {
    text.append(list != comparison.favourites.front() ? ", "
                : text.empty()                        ? ""
                                                      : ". ")
        .append(list == comparison.favourites.front() ? "Preferiti diversi: " : "")
        .append(FavouritesTitle(here.FavouritesBlock, list));
  }
  return text;
}

}  // namespace Review
