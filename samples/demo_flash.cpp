#include "demo_flash.h"

#include "base/code_page.h"
#include "demo_list.h"
#include "image_builder.h"
#include "model/favourites.h"
#include "model/routines.h"
#include "model/symbol_rates.h"

#include <algorithm>
#include <string>

namespace Samples {
namespace {

using namespace Routines;

constexpr std::size_t FirstSection = 400;
constexpr std::size_t SecondSection = 600;
constexpr std::size_t TransponderSlots = 120;

std::string CodePage(const std::string& text) { return Base::FromUtf8(text).value_or("?"); }

int SymbolRateCode(std::string_view table, int rate) {
  for (std::size_t code = 0; code < SymbolRateCodes; ++code) {
    if (SymbolRateText(table, code) == std::to_string(rate)) return static_cast<int>(code);
  }
  return 0;
}

std::vector<ChannelRecord> Channels() {
  std::vector<ChannelRecord> records;
  for (const auto& channel : DemoChannels()) {
    if (!channel) {
      records.emplace_back();
      continue;
    }
    ChannelRecord record = MakeChannel(CodePage(channel->name), channel->transponder, channel->sid,
                                       channel->vpid, channel->apid, channel->flags);
    Set(record, ChannelField::Aecm, static_cast<std::uint32_t>(channel->aecm));
    Set(record, ChannelField::Vecm, static_cast<std::uint32_t>(channel->vecm));
    Set(record, ChannelField::Pcr, static_cast<std::uint32_t>(channel->pcr));
    records.push_back(record);
  }
  records.resize(FirstSection + SecondSection);
  return records;
}

std::vector<TransponderRecord> Transponders(std::string_view symbolRates,
                                            const std::vector<ChannelRecord>& channels) {
  std::vector<TransponderRecord> records;
  for (const DemoTransponder& t : DemoTransponders()) {
    records.push_back(MakeTransponder(t.frequencyMHz, t.horizontal, t.satellite,
                                      SymbolRateCode(symbolRates, t.symbolRate), t.fecCode, t.tid, t.nid));
  }
  for (const ChannelRecord& channel : channels) {
    const std::size_t number = Get(channel, ChannelField::Transponder);
    if (channel.Empty() || number == 0 || number > records.size()) continue;
    TransponderRecord& record = records[number - 1];
    Set(record, TransponderField::ChannelCount, Get(record, TransponderField::ChannelCount) + 1);
  }
  records.resize(TransponderSlots);
  return records;
}

Base::Bytes Favourites(Junk& junk) {
  Base::Bytes block(NormalFavouritesSize);
  std::generate(block.begin() + FavouriteListsSize, block.end(), [&junk] { return junk.NextByte(); });
  const auto lists = DemoFavouriteLists();
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    std::size_t at = list * FavouriteListSize;
    for (const int slot : lists[list].slots) {
      block[at++] = static_cast<Base::Byte>(slot >> 8);
      block[at++] = static_cast<Base::Byte>(slot & 255);
    }
    std::string name = CodePage(lists[list].name);
    name.resize(FavouriteNameSize, '\0');
    std::copy(name.begin(), name.end(),
              block.begin() + static_cast<std::ptrdiff_t>(FavouriteNameOffset(block.size(), list)));
  }
  return block;
}

}  // namespace

Base::Bytes DemoFlash(std::string_view symbolRates) {
  Junk junk(1996);
  const auto unknown = [&junk](std::size_t size) {
    Base::Bytes bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&junk] { return junk.NextByte(); });
    return bytes;
  };
  const std::vector<ChannelRecord> channels = Channels();
  const std::vector<ChannelRecord> first(channels.begin(), channels.begin() + FirstSection);
  const std::vector<ChannelRecord> second(channels.begin() + FirstSection, channels.end());

  ImageBuilder builder(512);
  builder.Put(1, 0, 16, "LOGO", unknown(7200));
  builder.PutRecords(2, 1, 16, "TCS", first).Put(2, 3, 12060, "EPG", unknown(4000));
  builder.PutRecords(4, 0, 2048, "TCS", second).Put(4, 1, 20090, "FONT", unknown(9000));
  builder.PutRecords(5, 2, 16, "TPT", Transponders(symbolRates, channels))
      .Put(5, 4, 1500, "NET", unknown(640));
  builder.PutFavourites(7, 0, 64, Favourites(junk), 700);
  return builder.Image();
}

}  // namespace Samples
