#include "review/channel_pairs.h"

#include "base/short_text.h"
#include "base/text.h"

#include <array>
#include <unordered_map>
#include <utility>

namespace Review {
namespace {

using namespace Routines;

using Records = std::vector<TransponderRecord>;

// For each transponder of a list one number that stands for the same transponder in both lists; 0 for none.
using Classes = std::vector<int>;

int FirstSame(const Records& records, const TransponderRecord& record) {
  const int megahertz = FrequencyMHz(record);
  for (std::size_t place = 1; place < records.size(); ++place) {
    if (!IsFree(records[place]) && SameTransponder(records[place], record, megahertz))
      return static_cast<int>(place);
  }
  return 0;
}

// A list that does not say polarisations has either.
int FirstSame(const Records& records, TransponderRecord record, SdxFields lacking) {
  const int same = FirstSame(records, record);
  if (same != 0 || !lacking.Has(SdxField::Polarisation)) return same;
  Set(record, TransponderField::Horizontal, 1 - Get(record, TransponderField::Horizontal));
  return FirstSame(records, record);
}

Classes ClassesOf(const OtherList& list, const OtherList& first) {
  constexpr int OnlyInSecond = 1000;
  Classes classes(list.transponders.size());
  for (std::size_t place = 1; place < classes.size(); ++place) {
    const TransponderRecord& record = list.transponders[place];
    if (IsFree(record)) continue;
    const int same = FirstSame(first.transponders, record, list.lacking);
    classes[place] = same != 0
                         ? FirstSame(first.transponders, first.transponders[static_cast<std::size_t>(same)])
                         : OnlyInSecond + FirstSame(list.transponders, record);
  }
  return classes;
}

// What a channel of both lists is known by, from the strictest on.
enum class By { Contents, ServiceAndFrequency, Service, Frequency, ServiceWithoutNid };

// A list with what its channels are paired by.
struct Side {
  const OtherList& list;
  Classes classes;
};

using Key = Base::ShortText<ChannelRecord::Size + 3>;

struct Hash {
  std::size_t operator()(const Key& key) const { return std::hash<std::string_view>{}(key); }
};

void Append(Key& key, std::uint32_t value) {
  const std::array<char, 3> bytes = {static_cast<char>(value & 255U), static_cast<char>(value >> 8U & 255U),
                                     static_cast<char>(value >> 16U & 255U)};
  key.Append({bytes.data(), bytes.size()});
}

// Appends what the channel's stream is known by; false where it is known by nothing.
bool AppendStream(Key& key, const TransponderRecord& record, By by) {
  const std::uint32_t tid = Get(record, TransponderField::Tid);
  const std::uint32_t nid = by == By::ServiceWithoutNid ? 0 : Get(record, TransponderField::Nid);
  if (tid == 0 && nid == 0) return false;
  for (const std::uint32_t part : {Get(record, TransponderField::Satellite), nid, tid}) Append(key, part);
  return true;
}

// Empty where the channel cannot be known that way.
Key KeyOf(const Side& side, const OtherChannel& channel, By by) {
  const auto transponder =
      static_cast<std::uint32_t>(side.classes[static_cast<std::size_t>(channel.transponder)]);
  Key key;
  if (by == By::Contents) {
    ChannelRecord contents = channel.record;
    Set(contents, ChannelField::Transponder, 0);
    key = Base::AsText(contents.bytes);
    Append(key, transponder);
    return key;
  }
  if (transponder == 0) return key;
  if (by != By::Frequency && !AppendStream(key, side.list.TransponderOf(channel), by)) return {};
  Append(key, Get(channel.record, ChannelField::Sid));
  if (by == By::ServiceAndFrequency || by == By::Frequency) Append(key, transponder);
  return key;
}

// Whether a channel of the other list may be paired that way.
bool Waits(const OtherChannel& channel, By by) {
  return !channel.record.Empty() && (by != By::ServiceWithoutNid || channel.lacking.Has(SdxField::Nid));
}

void PairChannels(const Side& here, const Side& there, Pairs& pairs, By by) {
  // By key the lowest number, and for each number the next higher one of the same key; 0 for none.
  std::unordered_map<Key, int, Hash> waiting;
  std::vector<int> next(there.list.channels.size());
  waiting.reserve(next.size());
  for (int number = there.list.Count(); number >= 1; --number) {
    const OtherChannel& channel = there.list.At(number);
    if (pairs.here[static_cast<std::size_t>(number)] != 0 || !Waits(channel, by)) continue;
    const Key key = KeyOf(there, channel, by);
    if (std::string_view(key).empty()) continue;
    int& lowest = waiting[key];
    next[static_cast<std::size_t>(number)] = std::exchange(lowest, number);
  }
  for (int slot = 1; slot <= here.list.Count() && !waiting.empty(); ++slot) {
    const OtherChannel& channel = here.list.At(slot);
    if (channel.record.Empty() || pairs.there[slot] != 0) continue;
    const auto found = waiting.find(KeyOf(here, channel, by));
    if (found == waiting.end() || found->second == 0) continue;
    pairs.there[slot] = found->second;
    pairs.here[static_cast<std::size_t>(found->second)] = slot;
    found->second = next[static_cast<std::size_t>(found->second)];
  }
}

// What is left over and has the same number and the same name or transponder is one whose ids were changed.
void PairByNumber(const Side& here, const Side& there, Pairs& pairs) {
  for (int slot = 1; slot <= std::min(here.list.Count(), there.list.Count()); ++slot) {
    const OtherChannel& one = here.list.At(slot);
    const OtherChannel& other = there.list.At(slot);
    int& pair = pairs.here[static_cast<std::size_t>(slot)];
    if (one.record.Empty() || other.record.Empty() || pairs.there[slot] != 0 || pair != 0) continue;
    const int transponder = here.classes[static_cast<std::size_t>(one.transponder)];
    const bool same =
        transponder != 0 && transponder == there.classes[static_cast<std::size_t>(other.transponder)];
    if (!same && Base::TrimmedRight(one.record.Name()) != Base::TrimmedRight(other.record.Name())) continue;
    pairs.there[slot] = pair = slot;
  }
}

}  // namespace

Pairs PairsOf(const OtherList& here, const OtherList& there) {
  const Side one{here, ClassesOf(here, here)};
  const Side other{there, ClassesOf(there, here)};
  Pairs pairs{{}, std::vector<int>(there.channels.size())};
  for (const By by :
       {By::Contents, By::ServiceAndFrequency, By::Service, By::Frequency, By::ServiceWithoutNid})
    PairChannels(one, other, pairs, by);
  if (there.byNumber) PairByNumber(one, other, pairs);
  return pairs;
}

PerChannel<bool> InSameOrder(const SlotMap& there, int last) {
  std::vector<int> ends;  // for each length the slot that ends such a run with the lowest number
  SlotMap before{};
  PerChannel<bool> fixed;
  const auto lower = [&there](int slot, int number) { return there[slot] < number; };
  for (int slot = 1; slot <= LastChannelSlot; ++slot) {
    fixed[slot] = there[slot] > last;
    if (there[slot] == 0 || there[slot] > last) continue;
    const auto place = std::lower_bound(ends.begin(), ends.end(), there[slot], lower);
    before[slot] = place == ends.begin() ? 0 : *(place - 1);
    if (place == ends.end()) {
      ends.push_back(slot);
    } else {
      *place = slot;
    }
  }
  for (int slot = ends.empty() ? 0 : ends.back(); slot != 0; slot = before[slot]) fixed[slot] = true;
  return fixed;
}

}  // namespace Review
