#include "edit/told.h"

#include "base/code_page.h"
#include "base/text.h"

#include <algorithm>

namespace Edit {
namespace {

int ChannelsIn(const State& state, const Slots& slots) {
  return static_cast<int>(
      std::count_if(slots.begin(), slots.end(), [&](int slot) { return !state.Channel(slot).Empty(); }));
}

// "2 canali e 1 posto vuoto"
std::string CountOf(const State& state, const Slots& slots) {
  const int channels = ChannelsIn(state, slots);
  const int empty = static_cast<int>(slots.size()) - channels;
  std::string gaps = Base::Counted(empty, "posto vuoto", "posti vuoti");
  if (channels == 0) return gaps;
  return Base::Counted(channels, "canale", "canali") + (empty == 0 ? "" : " e " + gaps);
}

std::string WithNames(const State& state, const Slots& slots) {
  const std::string names = NamesIn(state, slots);
  return names.empty() ? "" : ": " + names;
}

}  // namespace

std::string NameIn(const State& state, int slot) {
  const auto& channel = state.Channel(slot);
  if (channel.Empty()) return "posto vuoto " + std::to_string(slot);
  const std::string_view name = Base::Trimmed(channel.Name());
  return name.empty() ? "canale " + std::to_string(slot) + " senza nome" : Base::ToUtf8(name);
}

std::string NamesIn(const State& state, const Slots& slots) {
  constexpr int MostNames = 3;
  std::string names;
  int named = 0;
  for (const int slot : slots) {
    if (state.Channel(slot).Empty()) continue;
    if (++named > MostNames) return names + "…";
    names += (named == 1 ? "" : ", ") + NameIn(state, slot);
  }
  return names;
}

std::string Told(const State& state, const Slots& slots, std::string_view one, std::string_view more,
                 std::string_view what) {
  if (slots.size() == 1) return std::string(one).append(" ").append(NameIn(state, slots[0])).append(what);
  return std::string(more).append(" ").append(CountOf(state, slots)).append(what) + WithNames(state, slots);
}

std::string ToldActive(const State& state, const Slots& slots, bool active) {
  return Told(state, slots, active ? "Attivato" : "Disattivato", active ? "Attivati" : "Disattivati");
}

std::string ToldMove(const State& state, const Slots& slots, int to) {
  if (slots.size() == 1)
    return Told(state, slots, "Spostato", "",
                " dal " + std::to_string(slots[0]) + " al " + std::to_string(to));
  const int last = to + static_cast<int>(slots.size()) - 1;
  return Told(state, slots, "", "Spostati",
              " ai posti da " + std::to_string(to) + " a " + std::to_string(last));
}

}  // namespace Edit
