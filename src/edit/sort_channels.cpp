#include "edit/sort_channels.h"

#include "base/names.h"
#include "base/text.h"
#include "edit/list_operations.h"
#include "model/favourites.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <string>

namespace Edit {
namespace {

using namespace Routines;

constexpr int Last = std::numeric_limits<int>::max();

// What a channel is compared by for one key: the number, then the text.
struct SortValue {
  int number = 0;
  std::string text = {};

  bool operator==(const SortValue&) const = default;
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Takes a number of any length off the front, without its leading zeros.
std::string_view TakeDigits(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
  std::size_t digits = 0;
  while (digits < text.size() && IsDigit(text[digits])) ++digits;
  const std::string_view number = text.substr(0, digits);
  text.remove_prefix(digits);
  return number;
}

// Below 0 where `one` comes first, 0 where they are equal but for leading zeros.
int CompareNaturally(std::string_view one, std::string_view other) {
  while (!one.empty() && !other.empty()) {
    if (IsDigit(one.front()) && IsDigit(other.front())) {
      const std::string_view number = TakeDigits(one);
      const std::string_view against = TakeDigits(other);
      if (number.size() != against.size()) return number.size() < against.size() ? -1 : 1;
      if (const int order = number.compare(against); order != 0) return order;
    } else {
      if (one.front() != other.front())
        return static_cast<unsigned char>(one.front()) < static_cast<unsigned char>(other.front()) ? -1 : 1;
      one.remove_prefix(1);
      other.remove_prefix(1);
    }
  }
  return one.empty() ? (other.empty() ? 0 : -1) : 1;
}

int Compare(const SortValue& one, const SortValue& other) {
  if (one.number != other.number) return one.number < other.number ? -1 : 1;
  return CompareNaturally(one.text, other.text);
}

// "Rai 1 HD", "RaiSportHD", "Arte 4K".
bool NamedHd(std::string_view name) {
  std::string folded = Base::Folded(name) + " ";
  for (const std::string_view word : {"hd ", "4k ", "hdtv "})
    if (folded.find(word) != std::string::npos) return true;
  return false;
}

// Which channels some favourites list names.
PerChannel<bool> Favourites(const State& state) {
  PerChannel<bool> named;
  for (std::size_t list = 0; list < FavouriteLists; ++list)
    for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list))
      if (slot >= 1 && slot <= LastChannelSlot) named[slot] = true;
  return named;
}

SortValue BouquetValue(const TransponderRow* row) {
  if (row == nullptr || row->BouquetCode() == "  ") return {1};
  return {0, Base::Folded(Base::TrimmedRight(row->BouquetName()))};
}

SortValue ValueOf(const State& state, int slot, SortKey key, const PerChannel<bool>& favourites) {
  const ChannelRecord& channel = state.Channel(slot);
  const TransponderRow* row = TransponderInUse(state, Get(channel, ChannelField::Transponder));
  switch (key) {
    case SortKey::Name:
      return {0, Base::Folded(Base::Trimmed(channel.Name()))};
    case SortKey::Kind:
      return {static_cast<int>(KindOf(channel))};
    case SortKey::Satellite:
      return {row == nullptr ? Last : static_cast<int>(Get(row->record, TransponderField::Satellite))};
    case SortKey::Bouquet:
      return BouquetValue(row);
    case SortKey::Frequency:
      return {row == nullptr ? Last : FrequencyMHz(row->record)};
    case SortKey::Sid:
      return {static_cast<int>(Get(channel, ChannelField::Sid))};
    case SortKey::Coding:
      return {static_cast<int>(Get(channel, ChannelField::Flags))};
    case SortKey::HdFirst:
      return {NamedHd(channel.Name()) ? 0 : 1};
    case SortKey::FavouritesFirst:
      return {favourites[slot] ? 0 : 1};
    default:
      return {Get(channel, ChannelField::Active) != 0 ? 0 : 1};
  }
}

struct Sorted {
  int slot = 0;
  std::vector<SortValue> values;  // one for each key
};

std::vector<Sorted> InOrder(const State& state, const std::vector<int>& slots, const SortOrder& order) {
  const PerChannel<bool> favourites = Favourites(state);
  std::vector<Sorted> channels;
  for (const int slot : slots) {
    if (state.Channel(slot).Empty()) continue;
    Sorted channel{slot, {}};
    for (const SortKey key : order.keys) channel.values.push_back(ValueOf(state, slot, key, favourites));
    channels.push_back(std::move(channel));
  }
  std::stable_sort(channels.begin(), channels.end(), [](const Sorted& one, const Sorted& other) {
    for (std::size_t i = 0; i < one.values.size(); ++i)
      if (const int compared = Compare(one.values[i], other.values[i]); compared != 0) return compared < 0;
    return false;
  });
  return channels;
}

bool BeginsGroup(const std::vector<Sorted>& channels, std::size_t i) {
  if (i == 0) return true;
  const auto& values = channels[i].values;
  return !values.empty() && Compare(channels[i - 1].values.front(), values.front()) != 0;
}

}  // namespace

SortPlan PlanSort(const State& state, const std::vector<int>& slots, const SortOrder& order) {
  SortPlan plan{SameSlots()};
  for (const int slot : slots) plan.map[slot] = 0;
  const std::vector<Sorted> channels = InOrder(state, slots, order);
  std::size_t next = 0;  // place among the slots
  for (std::size_t i = 0; i < channels.size(); ++i) {
    if (BeginsGroup(channels, i)) {
      ++plan.groups;
      while (order.multiple > 0 && next < slots.size() && slots[next] % order.multiple != 0) {
        ++next;
        ++plan.gaps;
      }
    }
    if (next == slots.size()) {
      ++plan.without;
      continue;
    }
    plan.map[channels[i].slot] = slots[next];
    if (channels[i].slot != slots[next]) ++plan.moved;
    ++next;
  }
  return plan;
}

std::string TextOf(const SortPlan& plan) {
  if (plan.without > 0)
    return "Non si può: " + Base::Counted(plan.without, "canale non trova posto", "canali non trovano posto");
  std::string text = plan.moved == 0
                         ? "Nessun canale cambia posto"
                         : Base::Counted(plan.moved, "canale cambia posto", "canali cambiano posto");
  if (plan.gaps > 0)
    text += ", " + Base::Counted(plan.groups, "gruppo", "gruppi") + ", " +
            Base::Counted(plan.gaps, "posto vuoto", "posti vuoti") + " fra i canali";
  return text;
}

std::vector<LostFavourite> SortChannels(State& state, const SortPlan& plan) {
  return Rearrange(state, plan.map);
}

}  // namespace Edit
