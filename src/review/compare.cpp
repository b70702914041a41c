#include "review/compare.h"

#include "base/code_page.h"
#include "base/text.h"
#include "model/cells.h"
#include "model/favourites.h"
#include "model/symbol_rates.h"
#include "review/channel_pairs.h"

#include <tuple>

namespace Review {
namespace {

using namespace Routines;

using Records = std::vector<TransponderRecord>;

// A channel with its transponder and the table by which that has its rate.
struct Tuned {
  const OtherChannel& channel;
  const TransponderRecord& transponder;
  const std::string& rates;
};

Tuned TunedIn(const OtherList& list, const OtherChannel& channel) {
  return {channel, list.TransponderOf(channel), list.symbolRates};
}

// Whether two codes stand for the same rate, each by the table of its list.
bool SameRate(const std::string& ratesHere, const std::string& ratesThere, const TransponderRecord& one,
              const TransponderRecord& other) {
  const std::uint32_t code = Get(one, TransponderField::SymbolRate);
  const std::uint32_t otherCode = Get(other, TransponderField::SymbolRate);
  if (ratesHere == ratesThere) return code == otherCode;
  const std::string_view rate = SymbolRateText(ratesHere, code);
  const std::string_view otherRate = SymbolRateText(ratesThere, otherCode);
  const bool known = rate.find_first_of("0123456789") != std::string_view::npos;
  return rate == otherRate && (known || code == otherCode);
}

bool SameTuning(const Tuned& here, const Tuned& there) {
  TransponderRecord other = there.transponder;
  if (there.channel.lacking.Has(SdxField::Polarisation))
    Set(other, TransponderField::Horizontal, Get(here.transponder, TransponderField::Horizontal));
  return SameTransponder(here.transponder, other);
}

struct TransponderFieldOf {
  Field<TransponderRecord> field;
  SdxField said;
  std::string_view name;
  Mark mark;
  int column;
};

constexpr std::array<TransponderFieldOf, 4> TransponderFields = {
    {{TransponderField::Fec, SdxField::Fec, "FEC ", Mark::Retuned, TransponderColumn::Fec},
     {TransponderField::HighBand, SdxField::Band, "22KHz ", Mark::Retuned, TransponderColumn::Tone},
     {TransponderField::Tid, SdxField::Tid, "TID ", Mark::Modified, TransponderColumn::Tid},
     {TransponderField::Nid, SdxField::Nid, "NID ", Mark::Modified, TransponderColumn::Nid}}};

// Calls `add` with a mark, what it is about, and the texts of both sides, for all that differs between the transponders
// of a channel of both lists.
template <class Add>
void EachTransponderChange(const Tuned& here, const Tuned& there, const Add& add) {
  if (here.channel.transponder == 0 || there.channel.transponder == 0) return;
  const SdxFields lacking = there.channel.lacking;
  const auto cell = [](const Tuned& one, int column) { return CellOf(one.transponder, one.rates, column); };
  const auto tell = [&](Mark mark, std::string_view what, int column) {
    add(mark, what, cell(here, column), cell(there, column));
  };
  if (!SameTuning(here, there)) {
    const auto tuning = [&](const Tuned& one) {
      return cell(one, TransponderColumn::Frequency) + " " + cell(one, TransponderColumn::Polarisation);
    };
    add(Mark::Retuned, "", tuning(here), tuning(there));
  }
  if (!lacking.Has(SdxField::SymbolRate) &&
      !SameRate(here.rates, there.rates, here.transponder, there.transponder)) {
    tell(Mark::Retuned, "SR ", TransponderColumn::SymbolRate);
  }
  for (const TransponderFieldOf& one : TransponderFields) {
    if (!lacking.Has(one.said) && Get(here.transponder, one.field) != Get(there.transponder, one.field))
      tell(one.mark, one.name, one.column);
  }
}

struct NumberField {
  Field<ChannelRecord> field;
  SdxField said;
  std::string_view name;
  Mark mark;
};

constexpr std::array<NumberField, 6> NumberFields = {
    {{ChannelField::Sid, SdxField::Sid, "SID ", Mark::Modified},
     {ChannelField::Vpid, SdxField::Vpid, "VPID ", Mark::Pids},
     {ChannelField::Apid, SdxField::Apid, "APID ", Mark::Pids},
     {ChannelField::Pcr, SdxField::Pcr, "PCR ", Mark::Pids},
     {ChannelField::Aecm, SdxField::Ecm, "AECM ", Mark::Modified},
     {ChannelField::Vecm, SdxField::Ecm, "VECM ", Mark::Modified}}};

// The same for the channel itself.
template <class Add>
void EachChange(const Tuned& here, const Tuned& there, const Add& add) {
  const ChannelRecord& one = here.channel.record;
  const ChannelRecord& other = there.channel.record;
  const SdxFields lacking = there.channel.lacking;
  EachTransponderChange(here, there, add);
  for (const NumberField& number : NumberFields) {
    const std::uint32_t value = Get(one, number.field);
    const std::uint32_t otherValue = Get(other, number.field);
    if (!lacking.Has(number.said) && value != otherValue && (HasStream(value) || HasStream(otherValue)))
      add(number.mark, number.name, std::to_string(value), std::to_string(otherValue));
  }
  const auto tell = [&](std::string_view what, int column) {
    add(Mark::Modified, what, CellOf(one, column), CellOf(other, column));
  };
  const std::uint32_t flags = Get(one, ChannelField::Flags) ^ Get(other, ChannelField::Flags);
  if (!lacking.Has(SdxField::Coding) && (flags & ~ChannelField::Active.Mask()) != 0)
    tell("codifica ", ChannelColumn::Flags);
  if (!lacking.Has(SdxField::Active) && (flags & ChannelField::Active.Mask()) != 0)
    tell("attivo ", ChannelColumn::Active);
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
Difference ComparePair(const OtherList& here, const OtherList& there, int slot, Comparison& comparison) {
  const int number = comparison.there[slot];
  Difference found{slot, number};
  const OtherChannel& one = here.At(slot);
  const OtherChannel& other = there.At(number);
  EachChange(TunedIn(here, one), TunedIn(there, other), [&found](Mark mark, auto&&...) { found.Add(mark); });
  if (there.flash && found.marks.none() && !SameBytes(one.record, other.record)) ++comparison.alike;
  const auto transponder = [](const OtherChannel& channel) {
    return Get(channel.record, ChannelField::Transponder);
  };
  if (there.flash && !found.Has(Mark::Retuned) && transponder(one) != transponder(other))
    ++comparison.relinked;
  if (!comparison.fixed[slot]) {
    found.Add(Mark::Moved);
  } else if (there.flash && number != slot) {
    ++comparison.shifted;
  }
  return found;
}

// Whether the other list would have the channel if it were still there.
bool Covers(const OtherList& there, const OtherList& here, const OtherChannel& channel) {
  if (there.flash) return true;
  return channel.transponder != 0 &&
         there.satellites[Get(here.TransponderOf(channel), TransponderField::Satellite)];
}

void CompareChannels(const OtherList& here, const OtherList& there, const Pairs& pairs,
                     Comparison& comparison) {
  const auto single = [&comparison](int slot, int number, Mark mark) {
    Difference found{slot, number};
    found.Add(mark);
    comparison.differences.push_back(found);
  };
  for (int slot = 1; slot <= std::max(here.Count(), there.Count()); ++slot) {
    const bool used = slot <= here.Count() && !here.At(slot).record.Empty();
    if (used && pairs.there[slot] != 0) {
      const Difference found = ComparePair(here, there, slot, comparison);
      if (found.marks.any()) comparison.differences.push_back(found);
    } else if (used && Covers(there, here, here.At(slot))) {
      single(slot, 0, Mark::OnlyHere);
    } else if (used) {
      ++comparison.elsewhere;
    }
    const bool offered = slot <= there.offered && !there.At(slot).record.Empty();
    if (offered && pairs.here[static_cast<std::size_t>(slot)] == 0) single(0, slot, Mark::OnlyThere);
  }
}

// For each transponder here the one there: in the same slot where that is the same, else the first that is.
std::vector<int> PairTransponders(const Records& here, const Records& there, std::vector<bool>& taken) {
  std::vector<int> pairs(here.size());
  const auto same = [&](std::size_t slot, std::size_t other) {
    return !taken[other] && !IsFree(here[slot]) && !IsFree(there[other]) &&
           SameTransponder(here[slot], there[other]);
  };
  const auto pair = [&](std::size_t slot, std::size_t other) {
    pairs[slot] = static_cast<int>(other);
    taken[other] = true;
  };
  for (std::size_t slot = 1; slot < std::min(here.size(), there.size()); ++slot) {
    if (same(slot, slot)) pair(slot, slot);
  }
  for (std::size_t slot = 1; slot < here.size(); ++slot) {
    for (std::size_t other = 1; other < there.size() && pairs[slot] == 0; ++other) {
      if (same(slot, other)) pair(slot, other);
    }
  }
  return pairs;
}

TransponderDifferences CompareTransponders(const OtherList& here, const OtherList& there) {
  TransponderDifferences found;
  std::vector<bool> taken(there.transponders.size());
  const std::vector<int> pairs = PairTransponders(here.transponders, there.transponders, taken);
  for (std::size_t slot = 1; slot < here.transponders.size(); ++slot) {
    const TransponderRecord& record = here.transponders[slot];
    if (IsFree(record)) continue;
    if (pairs[slot] == 0) {
      ++found.onlyHere;
      continue;
    }
    const auto number = static_cast<std::size_t>(pairs[slot]);
    if (number != slot) ++found.renumbered;
    TransponderRecord other = there.transponders[number];
    if (SameRate(here.symbolRates, there.symbolRates, record, other))
      Set(other, TransponderField::SymbolRate, Get(record, TransponderField::SymbolRate));
    if (record == other) continue;
    Set(other, TransponderField::ChannelCount, Get(record, TransponderField::ChannelCount));
    ++(record == other ? found.recounted : found.changed);
  }
  for (std::size_t slot = 1; slot < taken.size(); ++slot) {
    if (!taken[slot] && !IsFree(there.transponders[slot])) ++found.onlyThere;
  }
  return found;
}

void CompareFavourites(const OtherList& here, const OtherList& there, Comparison& comparison) {
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    std::vector<int> entries = FavouriteEntriesOf(here.favourites, list);
    for (int& slot : entries) {
      if (slot <= here.Count() && !here.At(slot).record.Empty()) slot = comparison.there[slot];
    }
    if (entries == FavouriteEntriesOf(there.favourites, list) &&
        FavouriteNameOf(here.favourites, list) == FavouriteNameOf(there.favourites, list)) {
      continue;
    }
    Difference found{0, 0, {}, list};
    found.Add(Mark::Favourites);
    comparison.differences.push_back(found);
  }
}

// "11804 V SAT A, SID 3401"
std::string ServiceText(const Tuned& service) {
  std::string text;
  if (service.channel.transponder != 0) {
    for (const int column :
         {TransponderColumn::Frequency, TransponderColumn::Polarisation, TransponderColumn::Satellite})
      text += CellOf(service.transponder, service.rates, column) +
              (column == TransponderColumn::Satellite ? ", " : " ");
  }
  return Base::ToUtf8(text + "SID " + CellOf(service.channel.record, ChannelColumn::Sid));
}

// A channel of one's own list and what it is tuned to.
struct Own {
  Own(const State& state, int slot)
      : channel(OtherChannelOf(state, slot)),
        transponder(state.Transponder(channel.transponder).record),
        tuned{channel, transponder, state.SymbolRateTable} {}
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;

  OtherChannel channel;
  TransponderRecord transponder;
  Tuned tuned;
};

// "12 → 14 voci, Cinema → Film"
std::string FavouritesText(const State& here, const OtherList& there, std::size_t list) {
  const auto entries = [list](Base::ByteView block) {
    return std::to_string(FavouriteEntriesOf(block, list).size());
  };
  const std::string name = FavouriteNameOf(here.FavouritesBlock, list);
  const std::string otherName = FavouriteNameOf(there.favourites, list);
  std::string text = "voci " + entries(here.FavouritesBlock) + " → " + entries(there.favourites);
  if (name != otherName) text += ", " + Base::ToUtf8(name) + " → " + Base::ToUtf8(otherName);
  return text;
}

}  // namespace

Comparison Compare(const State& state, const OtherList& there) {
  const OtherList here = OtherListOf(state);
  const Pairs pairs = PairsOf(here, there);
  Comparison comparison;
  comparison.there = pairs.there;
  comparison.fixed = InSameOrder(pairs.there, there.offered);
  CompareChannels(here, there, pairs, comparison);
  if (!there.flash) return comparison;
  comparison.transponders = CompareTransponders(here, there);
  CompareFavourites(here, there, comparison);
  return comparison;
}

std::string_view TextOf(Mark mark) {
  constexpr std::array<std::string_view, Marks> Texts = {
      "", "", "Spostato", "Rinominato", "Risintonizzato", "PID cambiati", "Modificato", "Preferiti diversi"};
  return Texts[static_cast<std::size_t>(mark)];
}

std::string DetailsOf(const State& here, const OtherList& there, const Difference& difference) {
  if (difference.Has(Mark::Favourites)) return FavouritesText(here, there, difference.favourites);
  if (difference.Has(Mark::OnlyThere)) return ServiceText(TunedIn(there, there.At(difference.there)));
  const Own own(here, difference.here);
  if (difference.Has(Mark::OnlyHere)) return ServiceText(own.tuned);
  std::string text;
  EachChange(own.tuned, TunedIn(there, there.At(difference.there)),
             [&](Mark mark, std::string_view what, const std::string& from, const std::string& to) {
               if (!difference.Has(mark)) return;
               text.append(text.empty() ? "" : ", ").append(what);
               if (!from.empty() || !to.empty()) text += Base::ToUtf8(from) + " → " + Base::ToUtf8(to);
             });
  return text;
}

std::string OtherDifferences(const Comparison& comparison, std::string_view onlyThere) {
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
       "canali sono diversi solo in byte senza effetto"},
      {comparison.elsewhere, "canale non è confrontato: l'altra non ne dice niente",
       "canali non sono confrontati: l'altra non ne dice niente"}};
  for (const auto& [count, one, more] : channels) add(text.empty() ? "" : ". ", count, one, more);
  return text;
}

std::vector<int> FavouritesHere(const Comparison& comparison, const OtherList& there, std::size_t list) {
  std::vector<int> here(there.channels.size());
  for (int slot = 1; slot <= LastChannelSlot; ++slot) {
    if (comparison.there[slot] != 0) here[static_cast<std::size_t>(comparison.there[slot])] = slot;
  }
  std::vector<int> slots;
  for (const int number : FavouriteEntriesOf(there.favourites, list)) {
    const auto place = static_cast<std::size_t>(number);
    if (place < here.size() && here[place] != 0) slots.push_back(here[place]);
  }
  return slots;
}

}  // namespace Review
