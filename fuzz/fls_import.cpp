// Importing a list from the file of raw records, and carrying it out and in again.
#include "formats/fls_format.h"
#include "fuzz_support.h"
#include "model/flash_image.h"

#include <algorithm>
#include <string>

using namespace Fuzz;
using namespace Routines;

namespace {

constexpr std::size_t RecordSize = 30;
constexpr std::size_t MostCopies = 4200;

// A file of more records than any table has slots would be a long input: copies of one of its records stand in for
// them, and of another one behind it.
std::string FileOf(Input& input) {
  const std::array<std::size_t, 4> words = {input.Word(), input.Word(), input.Word(), input.Word()};
  std::string file;
  for (const std::size_t i : {0U, 2U}) {
    file += Base::AsText(input.Run(words[i] * RecordSize));
    const Base::ByteView record = input.Run(RecordSize);
    const std::size_t copies = words[i + 1] > MostCopies ? 1 : words[i + 1];
    for (std::size_t copy = 0; copy < copies; ++copy) file += Base::AsText(record);
  }
  return file.append(input.Text());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::string file = FileOf(input);
  static const auto empty = EmptyList();
  static const auto state = EmptyList();
  static const auto again = EmptyList();
  *state = *again = *empty;
  const Formats::ImportReport report = Formats::ReadFls(*state, Base::AsBytes(file), Bouquets());
  Require(report.changed || *state == *empty, "an import without a list changes nothing");
  Require(report.listRead || !report.whole, "an import that stops says so");
  // The window goes by the capacity that its user chose, whatever the file says.
  state->MaxChannels = state->ChannelCount = CapacityOf(size);
  CheckList(*state);
  Require(state->FavouritesBlock.size() <= SectorSize, "no larger than any area for it");
  if (!report.listRead) return 0;

  const Formats::ImportReport second = Formats::ReadFls(*again, Formats::WriteFls(*state), Bouquets());
  Require(second.listRead && static_cast<bool>(second.whole) == !state->FavouritesBlock.empty(),
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
