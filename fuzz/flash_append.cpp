// Loading a second flash image behind a list.
#include "hostile_flash.h"
#include "model/flash_loader.h"

#include <algorithm>

using namespace Fuzz;
using namespace Routines;

namespace {

// An ordinary list, a small one, and one without a free slot of any kind.
std::unique_ptr<State> ListNumber(std::size_t number) {
  auto state = EmptyList();
  HostileFlash flash;
  const std::array<Base::Byte, 1> beginning = {static_cast<Base::Byte>(number == 0 ? 1 : 2)};
  Input input(beginning.data(), beginning.size());
  LoadFlash(*state, flash.Make(input), number == 1 ? 999 : 3996, 0, Bouquets());
  if (number < 2) return state;
  state->ChannelTable.back() = state->Channel(1);
  state->TransponderCount = LastTransponderSlot;
  for (std::size_t slot = 1; slot < state->TransponderTable.size(); ++slot) {
    TransponderRecord& record = state->Transponder(slot).record;
    if (IsFree(record)) record = state->Transponder(1).record;
  }
  return state;
}

void CheckUntouched(const State& before, const State& after, int start) {
  const auto from = [](const State& state, int slot) { return state.ChannelTable.begin() + slot; };
  Require(std::equal(from(before, 0), from(before, std::min(start, LastChannelSlot) + 1), from(after, 0)),
          "the first list's channels stay");
  Require(std::all_of(from(after, after.MaxChannels + 1), after.ChannelTable.end(),
                      [](const ChannelRecord& channel) { return channel.Empty(); }) ||
              LastUsedChannel(before) > after.MaxChannels,
          "no channel past the channel count");
  Require(before.FavouritesBlock == after.FavouritesBlock, "the first list's favourites stay");
  for (std::size_t slot = 1; slot < before.TransponderTable.size(); ++slot) {
    const TransponderRecord& record = before.Transponder(slot).record;
    Require(IsFree(record) || record == after.Transponder(slot).record, "the first list's transponders stay");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static HostileFlash flash;
  static const std::array<std::unique_ptr<State>, 3> lists = {ListNumber(0), ListNumber(1), ListNumber(2)};
  static const auto state = EmptyList();
  Input input(data, size);
  const int capacity = CapacityOf(input.Byte());
  const State& before = *lists[input.Byte() % lists.size()];
  const Base::ByteView image = flash.Make(input);
  const Layout layout = LayoutOf(image);
  *state = before;

  const int start = AppendStart(before);
  const LoadReport report = LoadFlash(*state, image, capacity, start, Bouquets());
  CheckList(*state);
  Require(state->MaxChannels == std::min(before.ChannelCount + capacity, LastChannelSlot) &&
              state->ChannelCount == state->MaxChannels,
          "a second flash adds its capacity");
  Require(state->TransponderCount ==
              (layout.transponderCount < 0 ? before.TransponderCount : layout.transponderCount),
          "the second flash's transponder count");
  Require(UsedChannels(*state) == UsedChannels(before) + report.channelsRead,
          "as many channels more as the report says");
  CheckUntouched(before, *state, start);
  return 0;
}
