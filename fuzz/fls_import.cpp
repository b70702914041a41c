// Importing a list from the file of raw records, and carrying it out and in again.
#include "formats/fls_format.h"
#include "fuzz_support.h"

#include <algorithm>

using namespace Fuzz;
using namespace Routines;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto empty = EmptyList();
  static const auto state = EmptyList();
  static const auto again = EmptyList();
  *state = *again = *empty;
  const Formats::ImportReport report = Formats::ReadFls(*state, {data, size}, Bouquets());
  Require(report.changed || *state == *empty, "an import without a list changes nothing");
  Require(report.listRead || !report.error.empty(), "an import that stops says so");
  // The window goes by the capacity that its user chose, whatever the file says.
  state->MaxChannels = state->ChannelCount = CapacityOf(size);
  CheckList(*state);
  Require(state->FavouritesBlock.size() <= size + 30, "no larger than its file");
  if (!report.listRead) return 0;

  const Formats::ImportReport second = Formats::ReadFls(*again, Formats::WriteFls(*state), Bouquets());
  Require(second.listRead && second.error.empty() == !state->FavouritesBlock.empty(),
          "an exported list can be imported");
  Require(std::equal(state->ChannelTable.begin() + 1, state->ChannelTable.begin() + 1 + state->ChannelCount,
                     again->ChannelTable.begin() + 1),
          "channels survive");
  Require(state->TransponderTable == again->TransponderTable &&
              state->TransponderCount == again->TransponderCount,
          "transponders survive");
  Require(state->FavouritesBlock == again->FavouritesBlock, "favourites survive");
  return 0;
}
