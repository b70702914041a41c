// Reading the recovery file, and going on from it.
#include "model/favourites.h"
#include "recovery_file.h"

#include <algorithm>

using namespace Fuzz;
using namespace Edit;

namespace {

void CheckRecovery(const Recovery& recovery) {
  const Clipboard& clipboard = recovery.clipboard;
  CheckList(recovery.state);
  Require(recovery.state.Loaded, "a recovered list is a list");
  Require(clipboard.Count() <= Routines::LastChannelSlot &&
              clipboard.transponders.size() == clipboard.channels.size(),
          "the clipboard's channels have their transponders");
  for (const LostFavourite& entry : clipboard.cut) {
    Require(entry.list < Routines::FavouriteLists && entry.place < Routines::FavouriteEntries &&
                entry.slot >= 0 && entry.slot < clipboard.Count(),
            "an entry of a cut is one of the clipboard's");
  }
  const auto& [quantiCanali, flashScrittura, srDef] = recovery.settings;
  Require(quantiCanali.value_or(0) < Routines::QuantiCanali.size() &&
              flashScrittura.value_or(0) < Routines::FlashScrittura.size() &&
              srDef.value_or(0) < Routines::SRDef.size(),
          "options are those of their groups");
}

void GoOn(Recovery& recovery, std::size_t choice) {
  State& state = recovery.state;
  static_cast<void>(HoldsCutChannels(recovery.clipboard, state));
  const int position = 1 + static_cast<int>(choice % 64) * state.ChannelCount / 64;
  const PasteWay way = choice < 128 ? PasteWay::Move : PasteWay::Overwrite;
  const int last = Routines::LastUsedChannel(state);
  const auto pasted = Paste(state, recovery.clipboard, position, way, Bouquets());
  CheckList(state);
  Require(Routines::LastUsedChannel(state) <= std::max(last, state.ChannelCount),
          "a paste stays within the channel count");
  Require(pasted || !pasted.error().message.empty(), "a paste that is refused says why");
  Clipboard clipboard;
  if (state.ChannelCount >= 3) static_cast<void>(CutChannels(state, {2, 3}, clipboard));
  CheckList(state);
}

}  // namespace

// What to paste where, a byte of the header to spoil, then the contents behind the tables.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::size_t choice = input.Byte();
  const std::size_t spoilt = input.Byte();
  const bool whole = spoilt >= RecoveryHeader;
  static const Base::Bytes front = RecoveryFront(*DemoList());
  Base::Bytes file = RecoveryFile(front, input.Text());
  if (!whole) file[spoilt] ^= 1U;
  auto recovery = DecodeRecovery(file);
  Require(whole || !recovery, "a file with a damaged header is refused");
  if (!recovery) return 0;
  CheckRecovery(*recovery);

  const Base::Bytes again = EncodeRecovery(recovery->state, recovery->clipboard, recovery->settings);
  const auto second = DecodeRecovery(again);
  Require(second && second->state == recovery->state &&
              EncodeRecovery(second->state, second->clipboard, second->settings) == again,
          "recovered work can be kept again");
  GoOn(*recovery, choice);
  return 0;
}
