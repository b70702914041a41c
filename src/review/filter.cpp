#include "review/filter.h"

#include "base/code_page.h"
#include "base/names.h"
#include "base/text.h"
#include "model/favourites.h"
#include "model/per_slot.h"
#include "review/duplicates.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace Review {
namespace {

using namespace Routines;

using Finds = std::function<bool(const FilterRow&, std::string_view)>;

constexpr std::string_view Kinds = "tipo";
constexpr std::string_view Doubles = "doppi";

std::optional<int> WholeNumber(std::string_view text, int base = 10) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  const bool whole = !text.empty() && text.front() != '-' && end == text.data() + text.size();
  return whole && error == std::errc{} ? std::optional(value) : std::nullopt;
}

// Nothing is called what has a character that no name can have.
Finds NameHas(std::string_view utf8) {
  const auto bytes = Base::FromUtf8(utf8);
  if (!bytes) return [](const FilterRow&, std::string_view) { return false; };
  return [wanted = Base::Folded(*bytes)](const FilterRow&, std::string_view name) {
    return name.find(wanted) != std::string_view::npos;
  };
}

Finds SatelliteIs(std::string_view value) {
  const char letter = value.size() == 1 ? Base::UpperCase(value).front() : ' ';
  if (letter < 'A' || letter > 'Z') return {};
  return [letter](const FilterRow& row, std::string_view) { return row.satellite == letter - 'A'; };
}

Finds NumberIs(std::string_view value, int FilterRow::*field) {
  const auto number = WholeNumber(value);
  if (!number) return {};
  return [number, field](const FilterRow& row, std::string_view) { return row.*field == *number; };
}

bool IsNear(const FilterRow& row, int megahertz) {
  return row.megahertz != 0 && WithinThreeMHz(row.megahertz, megahertz);
}

Finds FrequencyIs(std::string_view value) {
  const auto number = WholeNumber(value);
  if (!number) return {};
  return [number](const FilterRow& row, std::string_view) { return IsNear(row, *number); };
}

Finds CodingIs(std::string_view value) {
  const auto number = WholeNumber(value, 16);
  if (!number || value.size() != 2) return {};
  return [number](const FilterRow& row, std::string_view) { return row.coding == *number; };
}

// By its name or by its two digits.
Finds BouquetIs(std::string_view value) {
  const auto bytes = Base::FromUtf8(value);
  if (value.empty()) return {};
  return [wanted = Base::Folded(bytes.value_or("")), known = bytes.has_value(), number = WholeNumber(value)](
             const FilterRow& row, std::string_view) {
    const bool named = known && Base::Folded(row.bouquetName).find(wanted) != std::string::npos;
    return named || (number && WholeNumber(row.bouquetCode) == number);
  };
}

Finds InFavourites(std::string_view value) {
  const auto list = WholeNumber(value);
  if (!list || *list < 1 || *list > static_cast<int>(FavouriteLists)) return {};
  return [bit = 1U << static_cast<unsigned>(*list - 1)](const FilterRow& row, std::string_view) {
    return (row.favourites & bit) != 0;
  };
}

Finds KindIs(ChannelKind kind) {
  return [kind](const FilterRow& row, std::string_view) { return row.kind == kind; };
}

// What stands behind a key and a colon. `read` gives nothing for a value that is none.
struct KeyWord {
  std::string_view key;
  Finds (*read)(std::string_view value);
  std::string_view waitsFor;
};
constexpr KeyWord KeyWords[] = {
    {"sat", SatelliteIs, "la lettera di un satellite, sat:A"},
    {"f", FrequencyIs, "una frequenza in MHz, f:11766"},
    {"tp", [](std::string_view value) { return NumberIs(value, &FilterRow::transponder); },
     "il numero di un transponder, tp:12"},
    {"sid", [](std::string_view value) { return NumberIs(value, &FilterRow::sid); }, "un SID, sid:3401"},
    {"cod", CodingIs, "due cifre esadecimali, cod:04"},
    {"bq", BouquetIs, "il nome di un bouquet, bq:sky"},
    {"pref", InFavourites, "una lista da 1 a 8, pref:3"}};

struct StateWord {
  std::string_view word;
  std::string_view key;
  Finds finds;
};
const StateWord StateWords[] = {
    {"tv", Kinds, KindIs(ChannelKind::Tv)},
    {"radio", Kinds, KindIs(ChannelKind::Radio)},
    {"servizi", Kinds, KindIs(ChannelKind::Service)},
    {"inattivi", "inattivi", [](const FilterRow& row, std::string_view) { return row.inactive; }},
    {Doubles, Doubles, [](const FilterRow& row, std::string_view) { return row.doubled; }}};

// All but what takes a look at other channels or the favourites.
FilterRow RowOf(const State& state, const ChannelRecord& channel) {
  FilterRow row;
  row.name = channel.Name();
  row.kind = KindOf(channel);
  row.sid = static_cast<int>(Get(channel, ChannelField::Sid));
  row.transponder = static_cast<int>(Get(channel, ChannelField::Transponder));
  row.coding = static_cast<int>(Get(channel, ChannelField::Flags));
  row.inactive = Get(channel, ChannelField::Active) == 0;
  if (const auto* known = TransponderInUse(state, Get(channel, ChannelField::Transponder))) {
    row.megahertz = FrequencyMHz(known->record);
    row.satellite = static_cast<int>(Get(known->record, TransponderField::Satellite));
    row.bouquetName = known->BouquetName();
    row.bouquetCode = known->BouquetCode();
  }
  return row;
}

PerChannel<unsigned> FavouriteBits(const State& state) {
  PerChannel<unsigned> bits;
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list)) {
      if (slot <= LastChannelSlot) bits[slot] |= 1U << list;
    }
  }
  return bits;
}

PerChannel<bool> Doubled(const State& state) {
  PerChannel<bool> doubled;
  for (const auto& group : FindDuplicates(state, {})) {
    for (const int slot : group) doubled[slot] = true;
  }
  return doubled;
}

}  // namespace

// Takes a text apart, word by word.
class FilterReader {
 public:
  FilterReader(Filter& filter, std::string_view typed) : filter_(filter), rest_(typed) {
    while (!Base::Trimmed(rest_).empty()) TakeWord();
  }

 private:
  void TakeWord() {
    rest_ = Base::TrimmedLeft(rest_);
    const std::string_view whole = rest_;
    excluded_ = rest_.starts_with('-');
    if (excluded_) rest_.remove_prefix(1);
    if (rest_.starts_with('"')) {
      if (const auto text = TakeText(); !text.empty()) Add({}, NameHas(text));
      return;
    }
    const std::size_t colon = rest_.substr(0, rest_.find_first_of(" \"")).find(':');
    const KeyWord* key = colon == std::string_view::npos ? nullptr : KeyOf(rest_.substr(0, colon));
    if (key != nullptr) rest_.remove_prefix(colon + 1);
    const auto value = key != nullptr && rest_.starts_with('"') ? TakeText() : TakeUpTo(' ');
    if (key == nullptr) return AddPlain(value);
    Finds finds = key->read(value);
    if (finds) return Add(key->key, std::move(finds));
    Wait(whole.substr(0, whole.size() - rest_.size()), key->waitsFor);
  }

  static const KeyWord* KeyOf(std::string_view text) {
    const auto* found =
        std::find_if(std::begin(KeyWords), std::end(KeyWords),
                     [key = Base::Folded(text)](const KeyWord& word) { return word.key == key; });
    return found == std::end(KeyWords) ? nullptr : found;
  }

  std::string_view TakeUpTo(char end) {
    const std::string_view text = rest_.substr(0, rest_.find(end));
    rest_.remove_prefix(text.size());
    return text;
  }

  // Without its quotation marks, of which the second may still be missing.
  std::string_view TakeText() {
    rest_.remove_prefix(1);
    const std::string_view text = TakeUpTo('"');
    rest_.remove_prefix(std::min<std::size_t>(rest_.size(), 1));
    return text;
  }

  void AddPlain(std::string_view text) {
    if (text.empty()) return Wait("-", "una parola da escludere, -radio");
    const auto* state =
        std::find_if(std::begin(StateWords), std::end(StateWords),
                     [word = Base::Folded(text)](const StateWord& one) { return one.word == word; });
    if (state != std::end(StateWords)) return Add(state->key, state->finds);
    const auto number = WholeNumber(text);
    if (!number) return Add({}, NameHas(text));
    Add({}, [number, inName = NameHas(text)](const FilterRow& row, std::string_view name) {
      return row.sid == *number || row.transponder == *number || IsNear(row, *number) || inName(row, name);
    });
  }

  void Add(std::string_view key, Finds finds) {
    filter_.words_.push_back({key, excluded_, std::move(finds)});
  }

  void Wait(std::string_view word, std::string_view waitsFor) {
    filter_.unfinished_.push_back(std::string(word) + " attende " + std::string(waitsFor));
  }

  Filter& filter_;
  std::string_view rest_;
  bool excluded_ = false;
};

Filter::Filter(std::string_view typed) { FilterReader(*this, typed); }

bool Filter::AsksForDoubles() const {
  return std::any_of(words_.begin(), words_.end(), [](const Word& word) { return word.key == Doubles; });
}

bool Filter::Matches(const FilterRow& row) const {
  const std::string name = Base::Folded(row.name);
  const auto finds = [&](const Word& word) { return word.finds(row, name); };
  return !Empty() && std::all_of(words_.begin(), words_.end(), [&](const Word& word) {
    if (word.excluded) return !finds(word);
    return finds(word) ||
           (!word.key.empty() && std::any_of(words_.begin(), words_.end(), [&](const Word& other) {
             return other.key == word.key && !other.excluded && finds(other);
           }));
  });
}

std::vector<int> MatchingSlots(const State& state, const Filter& filter) {
  std::vector<int> slots;
  if (filter.Empty()) return slots;
  const auto favourites = FavouriteBits(state);
  const auto doubled = filter.AsksForDoubles() ? Doubled(state) : PerChannel<bool>{};
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    if (channel.Empty()) continue;
    FilterRow row = RowOf(state, channel);
    row.favourites = favourites[slot];
    row.doubled = doubled[slot];
    if (filter.Matches(row)) slots.push_back(slot);
  }
  return slots;
}

}  // namespace Review
