// Writing lists into images of any making.
#include "hostile_flash.h"
#include "model/flash_loader.h"
#include "model/flash_writer.h"

#include <algorithm>
#include <optional>
#include <span>

using namespace Fuzz;
using namespace Routines;

namespace {

// A full record that is no other slot's.
void Number(std::span<Base::Byte> record, int slot) {
  std::ranges::fill(record, Base::Byte{0xC5});
  record[1] = static_cast<Base::Byte>(slot & 255);
  record[2] = static_cast<Base::Byte>(slot >> 8);
}

// Fills every slot, so that a write goes as far as it ever can, with records that say where they belong.
std::unique_ptr<State> FullList() {
  auto state = EmptyList();
  state->MaxChannels = state->ChannelCount = LastChannelSlot;
  state->TransponderCount = LastTransponderSlot;
  for (int slot = 1; slot <= LastChannelSlot; ++slot) Number(state->Channel(slot).bytes, slot);
  for (int slot = 1; slot <= LastTransponderSlot; ++slot) Number(state->Transponder(slot).record.bytes, slot);
  return state;
}

// The records of slots `first` on up to `last`, one behind the other; returns the slot behind the last one there.
template <class Record>
int CheckRecords(Base::ByteView room, int first, int last, const Record& recordOf) {
  int slot = first;
  for (std::size_t at = 0; slot <= last && at + recordOf(slot).size() <= room.size(); ++slot) {
    const Base::ByteView record = recordOf(slot);
    Require(std::ranges::equal(room.subspan(at, record.size()), record), "a record is where it belongs");
    at += record.size();
  }
  return slot;
}

// By this target's own account of the layout, where no section reaches into another.
void CheckOrder(const Layout& layout, Base::ByteView written, const State& state, const WritePlan& plan) {
  if (!layout.plain) return;
  const auto at = [written](const Range& room) { return written.subspan(room.first, room.count); };
  int next = 1;
  for (const Range& room : layout.channels) {
    const bool secondCopy = plan.type != FlashType::Two && &room != &layout.channels.front();
    next = CheckRecords(at(room), secondCopy ? 2 : next, plan.maxChannels,
                        [&](int slot) { return Base::ByteView(state.Channel(slot).bytes); });
  }
  for (const Range& room : layout.transponders)
    CheckRecords(at(room), 1, state.TransponderCount,
                 [&](int slot) { return Base::ByteView(state.Transponder(slot).record.bytes); });
  if (plan.type != FlashType::Two) return;
  const Base::ByteView block = state.FavouritesBlock;
  for (const Range& room : layout.favourites) {
    const std::size_t count = std::min(block.size(), room.count);
    Require(std::ranges::equal(at(room).first(count), block.first(count)),
            "the favourites are in their order");
  }
}

// By this target's own account of the layout and by the program's guard, a write changes sections only; and the guard
// finds a byte that is not a write's to change, when there is one at `spoilt`.
void CheckGuard(Base::ByteView original, const Layout& layout, Base::Bytes written,
                std::optional<std::size_t> spoilt) {
  const auto& mayChange = layout.mayChange;
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
  full->FavouritesBlock.resize(input.Word() % 6000);
  for (std::size_t i = 0; i < full->FavouritesBlock.size(); ++i)
    full->FavouritesBlock[i] = static_cast<Base::Byte>(1 + i % 251);
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
  const Layout layout = LayoutOf(original);
  CheckOrder(layout, patched.image, *full, plan);
  CheckGuard(original, layout, std::move(patched.image), spoilt);
  return 0;
}
