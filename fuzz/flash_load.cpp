// Loading a flash image, and saving the list into the image that it came from.
#include "hostile_flash.h"
#include "model/flash_loader.h"
#include "model/flash_writer.h"
#include "model/list_tree.h"

#include <algorithm>

using namespace Fuzz;
using namespace Routines;

namespace {

void CheckLoaded(const State& state, const LoadReport& report, const Layout& layout, int capacity) {
  CheckList(state);
  Require(state.MaxChannels == capacity && state.ChannelCount == capacity, "a load takes the capacity");
  Require(LastUsedChannel(state) <= capacity, "no channel past the channel count");
  Require(UsedChannels(state) == report.channelsRead, "as many channels as the report says");
  Require(report.stranded.size() <= static_cast<std::size_t>(report.channelsRead),
          "stranded channels are loaded ones");
  Require(std::all_of(state.ChannelTable.begin(), state.ChannelTable.end(),
                      [](const ChannelRecord& c) { return !c.Empty() || c == ChannelRecord{}; }),
          "an empty slot is all zero");
  Require(state.TransponderCount == std::max(layout.transponderCount, 0), "the last section's transponders");
  Require(state.FavouritesBlock.size() == layout.favouritesSize, "the favourites area is read whole");
  Require(report.messages.empty(), "a first load has nothing to say");
  const ListTree tree(state, Bouquets().satellites, ListTree::Shape::Transponders);
  Require(tree.Groups().front().channels == report.channelsRead, "every channel stands in the tree");
}

// What a written image gives back when it is loaded again.
void CheckReloaded(const State& state, const State& reloaded) {
  Require(reloaded.ChannelTable == state.ChannelTable, "channels come back");
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    const auto at = static_cast<std::size_t>(slot);
    Require(IsFree(state.Transponder(at).record) ||
                state.Transponder(at).record == reloaded.Transponder(at).record,
            "transponders come back");
  }
  Require(SameFavourites(state, reloaded), "favourites come back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static HostileFlash flash;
  static const auto state = EmptyList();
  static const auto reloaded = EmptyList();
  Input input(data, size);
  const int capacity = CapacityOf(input.Byte());
  const Base::ByteView image = flash.Make(input);
  const Layout layout = LayoutOf(image);

  const LoadReport report = LoadFlash(*state, image, capacity, 0, Bouquets());
  CheckLoaded(*state, report, layout, capacity);

  const WritePlan plan{FlashType::Two, capacity, ""};
  const PatchedFlash patched = PatchFlash(*state, image, plan);
  Require(DifferOnlyIn(layout.mayChange, image, patched.image), "a write stays inside the sections");
  const bool whole = FindUnwritten(*state, patched.image, plan).Nothing();
  Require(whole || !layout.plain, "a plain image takes back the list that came from it");
  if (!whole) return 0;
  LoadFlash(*reloaded, patched.image, capacity, 0, Bouquets());
  CheckReloaded(*state, *reloaded);
  Require(!layout.plain || state->FavouritesBlock == reloaded->FavouritesBlock, "the whole favourites block");
  return 0;
}
