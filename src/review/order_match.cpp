#include "review/order_match.h"

#include "base/names.h"
#include "base/text.h"

#include <unordered_map>

namespace Review {
namespace {

using namespace Routines;

enum class Ids { All, WithoutNid };

// Empty where the entry does not say as much.
std::string KeyOf(const OrderEntry& entry, Ids ids) {
  if (entry.sid == NotSaid || entry.tid <= 0) return {};
  std::string service = std::to_string(entry.tid) + "-" + std::to_string(entry.sid);
  if (ids == Ids::WithoutNid) return service;
  return entry.nid == NotSaid ? std::string() : std::to_string(entry.nid) + "-" + service;
}

class Matcher {
 public:
  Matcher(const State& state, const Order& order)
      : state_(state), order_(order), slots_(order.entries.size()) {}

  OrderMatch Run(Numbering numbering) {
    const auto whole = [](const OrderEntry& entry) { return KeyOf(entry, Ids::All); };
    const auto service = [](const OrderEntry& entry) { return KeyOf(entry, Ids::WithoutNid); };
    Find(whole, whole);
    // An entry that says its NID is no channel of another network.
    Find([&](const OrderEntry& entry) { return entry.nid > 0 ? std::string() : service(entry); }, service);
    const PerChannel<bool> byIds = taken_;
    const auto name = [](const OrderEntry& entry) { return Base::Folded(Base::Trimmed(entry.name)); };
    Find(name, name);
    for (int slot = 1; slot <= LastChannelSlot; ++slot) byName_[slot] = taken_[slot] && !byIds[slot];
    Number(numbering);
    Tell();
    return std::move(match_);
  }

 private:
  // Entries without a channel get the first free one with their key.
  template <class Wanted, class Known>
  void Find(const Wanted& wanted, const Known& known) {
    std::unordered_map<std::string, std::vector<int>> waiting;  // from the list's end on
    for (int slot = state_.ChannelCount; slot >= 1; --slot) {
      if (state_.Channel(slot).Empty() || taken_[slot]) continue;
      if (std::string key = known(OrderEntryOf(state_, slot)); !key.empty())
        waiting[std::move(key)].push_back(slot);
    }
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      if (slots_[i] != 0) continue;
      const auto found = waiting.find(wanted(order_.entries[i]));
      if (found == waiting.end() || found->second.empty()) continue;
      slots_[i] = found->second.back();
      taken_[slots_[i]] = true;
      found->second.pop_back();
    }
  }

  // Gives the entries found their numbers, and puts the others behind them.
  void Number(Numbering numbering) {
    PerChannel<bool> used;
    std::vector<std::size_t> left;
    int next = 1;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      const int own = order_.entries[i].number;
      if (slots_[i] != 0 && numbering == Numbering::AsListed && own > 0) next = own;
      while (next <= state_.ChannelCount && used[next]) ++next;
      const bool reached = next <= state_.ChannelCount;
      if (slots_[i] == 0 || !reached) {
        left.push_back(i);
        continue;
      }
      used[next] = true;
      match_.found.there[slots_[i]] = next;
      highest_ = std::max(highest_, next);
      ++next;
    }
    match_.list.channels.resize(static_cast<std::size_t>(highest_) + 1);
    match_.list.offered = highest_;
    for (int slot = 1; slot <= LastChannelSlot; ++slot) {
      const int number = match_.found.there[slot];
      if (number != 0) match_.list.channels[static_cast<std::size_t>(number)].record = state_.Channel(slot);
    }
    for (const std::size_t i : left) match_.list.channels.push_back({RecordOf(order_.entries[i]), 0, {}});
  }

  // Of an entry that has no channel: what there is to show of it.
  static ChannelRecord RecordOf(const OrderEntry& entry) {
    ChannelRecord record;
    const std::string name = entry.name.empty() ? "?" : entry.name.substr(0, ChannelRecord::NameSize);
    std::copy(name.begin(), name.end(), record.bytes.begin());
    Set(record, ChannelField::Flags, ChannelField::Active.Mask());
    if (entry.sid != NotSaid) Set(record, ChannelField::Sid, static_cast<std::uint32_t>(entry.sid));
    return record;
  }

  void Tell() {
    const auto add = [this](int here, int there, Mark mark) {
      Difference difference{here, there, {}};
      difference.Add(mark);
      difference.byName = here != 0 && there != 0 && byName_[here];
      match_.found.differences.push_back(difference);
    };
    for (int slot = 1; slot <= state_.ChannelCount; ++slot) {
      const int there = match_.found.there[slot];
      if (state_.Channel(slot).Empty() || there == slot) continue;
      add(slot, there, there == 0 ? Mark::OnlyHere : Mark::Moved);
    }
    for (int number = highest_ + 1; number <= match_.list.Count(); ++number) add(0, number, Mark::OnlyThere);
  }

  const State& state_;
  const Order& order_;
  std::vector<int> slots_;  // of each entry, 0 where it has none
  PerChannel<bool> taken_;
  PerChannel<bool> byName_;
  OrderMatch match_;
  int highest_ = 0;
};

}  // namespace

OrderMatch MatchOrder(const State& state, const Order& order, Numbering numbering) {
  return Matcher(state, order).Run(numbering);
}

std::vector<int> SlotsInOrder(const OrderMatch& match) {
  std::vector<int> byNumber(static_cast<std::size_t>(match.list.offered) + 1);
  for (int slot = 1; slot <= LastChannelSlot; ++slot)
    byNumber[static_cast<std::size_t>(match.found.there[slot])] = slot;
  byNumber.erase(byNumber.begin());
  std::erase(byNumber, 0);
  return byNumber;
}

}  // namespace Review
