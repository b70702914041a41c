// Reading a second flash image into the SDX table, and carrying its channels over.
#include "formats/flash_rows.h"

#include "formats/sdx_import.h"
#include "hostile_flash.h"
#include "model/flash_loader.h"

using namespace Fuzz;
using namespace Routines;

namespace {

constexpr std::size_t MostCompared = 40;

// The channels that can be rows, in order.
std::vector<ChannelRecord> ChannelsOf(Base::ByteView image) {
  static const auto state = EmptyList();
  LoadFlash(*state, image, LastChannelSlot, 0, Bouquets());
  std::vector<ChannelRecord> channels;
  for (int slot = 1; slot <= state->ChannelCount && channels.size() < MostCompared; ++slot) {
    const ChannelRecord& channel = state->Channel(slot);
    const std::size_t number = Get(channel, ChannelField::Transponder);
    if (channel.Empty() || number < 1 || number > static_cast<std::size_t>(state->TransponderCount)) continue;
    if (!IsFree(state->Transponder(number).record)) channels.push_back(channel);
  }
  return channels;
}

bool SameButForTransponder(ChannelRecord one, const ChannelRecord& other) {
  Set(one, ChannelField::Transponder, Get(other, ChannelField::Transponder));
  return one.Name() == other.Name() &&
         std::equal(one.bytes.begin() + ChannelRecord::NameSize, one.bytes.end(),
                    other.bytes.begin() + ChannelRecord::NameSize);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static HostileFlash flash;
  Input input(data, size);
  const int transponders = static_cast<int>(input.Byte() % (LastTransponderSlot + 1));
  const Base::ByteView image = flash.Make(input);
  const Formats::SdxTable table = Formats::ReadFlashRows(image, SymbolRates(), Bouquets());
  CheckRows(table);
  Require(static_cast<int>(table.rows.size()) + table.dropped.Total() == table.lines,
          "every channel is taken or counted");
  CheckRowImport(table, transponders);

  const auto channels = ChannelsOf(image);
  const auto list = EmptyList();
  list->MaxChannels = list->ChannelCount = 999;
  list->TransponderCount = LastTransponderSlot;
  Formats::SdxImport import(*list, Bouquets());
  for (std::size_t i = 0; i < std::min(channels.size(), table.rows.size()); ++i) {
    import.Put(table.rows[i], static_cast<int>(i + 1), static_cast<int>(i + 1));
    Require(SameButForTransponder(channels[i], list->Channel(i + 1)), "a channel is carried over whole");
  }
  return 0;
}
