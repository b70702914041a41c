// Writing lists into images of any making.
#include "hostile_flash.h"
#include "model/flash_loader.h"
#include "model/flash_writer.h"

#include <optional>

using namespace Fuzz;
using namespace Routines;

namespace {

// Fills every slot, so that a write goes as far as it ever can.
std::unique_ptr<State> FullList() {
  auto state = EmptyList();
  state->MaxChannels = state->ChannelCount = LastChannelSlot;
  state->TransponderCount = LastTransponderSlot;
  for (ChannelRecord& channel : state->ChannelTable) channel.bytes.fill(0xC5);
  for (TransponderRow& row : state->TransponderTable) row.record.bytes.fill(0x7A);
  return state;
}

// By this target's own account of the layout and by the program's guard, a write changes sections only; and the guard
// finds a byte that is not a write's to change, when there is one at `spoilt`.
void CheckGuard(Base::ByteView original, Base::Bytes written, std::optional<std::size_t> spoilt) {
  const auto mayChange = LayoutOf(original).mayChange;
  Require(written.size() == FlashSize, "a written image keeps its size");
  Require(DifferOnlyIn(mayChange, original, written), "a write stays inside the sections");
  if (spoilt) written[*spoilt] ^= 1U;
  Require(DiffersOnlyInSections(original, written) == DifferOnlyIn(mayChange, original, written),
          "the guard lets a write pass, and nothing else");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static HostileFlash flash;
  static const auto full = FullList();
  Input input(data, size);
  const std::size_t choice = input.Byte();
  const auto type = static_cast<FlashType>(1 + choice % 3);
  full->ChannelCount = CapacityOf(choice / 3);
  full->TransponderCount = static_cast<int>(input.Byte() % (LastTransponderSlot + 1));
  full->FavouritesBlock.assign(input.Word() % 6000, 0xFA);
  const WritePlan plan{type, static_cast<int>(input.Word() % (LastChannelSlot + 1)), ""};
  const std::size_t place = input.Word() * 8 + choice % 8;
  const auto spoilt = choice < 128 ? std::optional(place) : std::nullopt;
  const Base::ByteView original = flash.Make(input);

  PatchedFlash patched = PatchFlash(*full, original, plan);
  Require(!patched.favouritesWritten || (type == FlashType::Two && !full->FavouritesBlock.empty()),
          "favourites are written for one type only");
  const Unwritten unwritten = FindUnwritten(*full, patched.image, plan);
  Require(unwritten.channels.size() <= static_cast<std::size_t>(full->ChannelCount) &&
              unwritten.extraChannels.empty(),
          "no more is missing than there was");
  Require(unwritten.Nothing() == unwritten.Text().empty(), "what is missing is told");
  if (choice % 4 == 0)
    Require(PatchFlash(*full, patched.image, plan).image == patched.image, "a second write changes nothing");
  CheckGuard(original, std::move(patched.image), spoilt);
  return 0;
}
