#include "model/flash_loader.h"

#include "core_test.h"

namespace Routines {
namespace {

using namespace Samples;

using StatePointer = std::unique_ptr<State>;

// Loaded in place of a larger list, of which nothing may survive.
StatePointer Loaded(const ImageBuilder& image, int capacity, LoadReport* report = nullptr) {
  auto state = std::make_unique<State>();
  state->ChannelTable.fill(MakeChannel("old", 9, 9, 9, 9));
  for (TransponderRow& row : state->TransponderTable) {
    row.record = MakeTransponder(11900, true, 0, 1, 2);
    row.SetBouquet("Vecchio", "07");
  }
  state->TransponderCount = 200;
  state->FavouritesBlock.assign(3000, 7);
  const LoadReport told = LoadFlash(*state, image.Image(), capacity, 0, {});
  if (report != nullptr) *report = told;
  return state;
}

// Channels named `prefix` + number, on transponder 1.
std::vector<ChannelRecord> Channels(const std::string& prefix, int count) {
  std::vector<ChannelRecord> records;
  for (int i = 1; i <= count; ++i) records.push_back(MakeChannel(prefix + std::to_string(i), 1, i, 100, 200));
  return records;
}

TransponderRecord At(int megahertz) { return MakeTransponder(megahertz, true, 0, 1, 2); }

// The names in some slots, and the transponders of those that have one.
std::string Told(const State& state, const std::vector<std::size_t>& slots) {
  std::string names, transponders;
  for (const std::size_t slot : slots) {
    const ChannelRecord& channel = state.Channel(slot);
    names.append(channel.Name()).append(" ");
    if (!channel.Empty()) transponders += std::to_string(Get(channel, ChannelField::Transponder));
  }
  return names + transponders;
}

}  // namespace

TEST(FlashLoader, SectionsFollowSectorsAndDirectoryOrder) {
  ImageBuilder image(1);
  image.PutRecords(5, 0, 3000, "TCS", Channels("c", 2));
  image.PutRecords(2, 6, 9000, "TCS9", Channels("b", 2)).PutRecords(2, 2, 40000, "TCS", Channels("a", 3));
  image.PutRecords(1, 0, 100, "tcs", Channels("no", 5))
      .PutRecords(1, 1, 9000, "TPT", std::vector(300, At(10800)));
  image.PutRecords(3, 7, 16, "TPTX", std::vector(5, At(12500)));
  image.PutRecords(7, 0, SectorSize - EntryHeaderSize - 60, "TCS", Channels("d", 2));
  image.SetLength(7, SectorSize - EntryHeaderSize - 60, 60000);  // past its sector
  LoadReport report;
  const auto state = Loaded(image, 999, &report);
  EXPECT_EQ(Told(*state, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), "a1 a2 a3 b1 b2 c1 c2 d1 d2  111111111");
  EXPECT_EQ(report.channelsRead, 9);
  EXPECT_EQ(state->TransponderCount, 5) << "the last section sets the count";
  EXPECT_EQ(state->Transponder(5).record, At(12500));
  EXPECT_EQ(state->Transponder(254).record, At(10800));
  EXPECT_EQ(state->Transponder(1).BouquetName().substr(0, 8), "Nessuno ");
  EXPECT_EQ(state->MaxChannels + state->ChannelCount, 2 * 999);
}

TEST(FlashLoader, CapacityEndsTheListAndSkipsWhatFollows) {
  ImageBuilder image(2);
  image.PutRecords(1, 0, 16, "TCS", Channels("a", 1500)).PutRecords(2, 0, 16, "TCS", Channels("b", 1500));
  EXPECT_EQ(CapacityOf(image.Image()), 3996);
  LoadReport report;
  auto state = Loaded(image, 999, &report);
  EXPECT_EQ(Told(*state, {999, 1000}), "a999  1");
  EXPECT_EQ(report.channelsRead, 999);
  EXPECT_EQ(report.channelsInImage, 3000);
  state = Loaded(image, 2000);
  EXPECT_EQ(Told(*state, {1501, 2000, 2001}), "b1 b500  11");

  // A second copy of the same list, from its second channel on, is no surplus.
  auto copy = Channels("a", 1500);
  copy.erase(copy.begin());
  image.PutRecords(2, 0, 16, "TCS", copy);
  Loaded(image, 1500, &report);
  EXPECT_EQ(report.channelsInImage, report.channelsRead);
  EXPECT_EQ(CapacityOf(image.Image()), 999) << "where a receiver repeats its list";
}

TEST(FlashLoader, EmptyRecordsKeepTheirSlotAndLoseTheirJunk) {
  auto channels = Channels("a", 3);
  channels[1].bytes[0] = 0;
  Base::Bytes data;
  for (const auto& c : channels) data.insert(data.end(), c.bytes.begin(), c.bytes.end());
  data.resize(data.size() + 29, 'x');  // not a whole record
  ImageBuilder image(3);
  image.Put(4, 3, 20, "TCS", data);
  const auto state = Loaded(image, 999);
  EXPECT_EQ(state->Channel(2), ChannelRecord{});
  EXPECT_EQ(Told(*state, {3, 4}), "a3  1");
  EXPECT_EQ(state->TransponderCount, 0);
  EXPECT_EQ(state->Transponder(9), TransponderRow{});
}

TEST(FlashLoader, FavouritesComeFromConfigPre) {
  Base::Bytes block(NormalFavouritesSize, 0xEE);
  ImageBuilder image(7);
  image.PutFavourites(3, 1, 500, block, 77);
  EXPECT_EQ(Loaded(image, 999)->FavouritesBlock, block);

  // At the very end of the sector nothing is left for its contents.
  ImageBuilder end(8);
  const std::size_t offset = SectorSize - EntryHeaderSize - 12;
  end.Put(3, 1, offset, "Support", Base::AsBytes("..config.pre")).SetLength(3, offset, 60000);
  EXPECT_EQ(Loaded(end, 999)->FavouritesBlock, Base::Bytes(NormalFavouritesSize, 0));
  // A length that runs past the sector is cut there.
  ImageBuilder long_(9);
  long_.PutFavourites(3, 1, 65000, block, 0).SetLength(3, 65000, 65535);
  EXPECT_EQ(Loaded(long_, 999)->FavouritesBlock,
            Base::Bytes(SectorSize - 65000 - EntryHeaderSize - 20, 0xEE));
}

TEST(FlashLoader, BouquetsAreFoundBySatelliteAndLessThanThreeMegahertz) {
  BouquetTables tables;
  tables.bouquets = {{"Altro", "SAT B", "01", 11000},
                     {"Lontano", "SAT A", "02", 11003},
                     {"Giusto", "SAT A", "03", 11002},
                     {"Dopo", "SAT A", "04", 11000}};
  ImageBuilder image(10);
  image.PutRecords(1, 0, 16, "TPT", std::vector{At(11000), At(11500)});
  State state;
  LoadFlash(state, image.Image(), 999, 0, tables);
  EXPECT_EQ(state.Transponder(1).BouquetName(), "Giusto" + std::string(30, ' '));
  EXPECT_EQ(state.Transponder(1).BouquetCode(), "03");
  EXPECT_EQ(state.Transponder(2).BouquetCode(), "  ");
}

TEST(FlashLoader, AppendingMergesTranspondersAndLeavesASlotFree) {
  ImageBuilder first(11);
  first.PutRecords(1, 0, 16, "TCS", Channels("a", 4));
  first.PutRecords(1, 1, 900, "TPT", std::vector{At(10800), TransponderRecord{}, At(12000)});
  auto state = Loaded(first, 999);
  state->FavouritesBlock[1] = 4;
  const Base::Bytes favourites = state->FavouritesBlock;

  // Its 1 is the first's 3, its 2 is new, its 3 is free, its 4 finds no slot.
  const auto fresh = MakeTransponder(11200, false, 1, 1, 2);
  ImageBuilder second(12);
  std::vector<ChannelRecord> channels = Channels("b", 6);
  for (std::uint32_t i = 0; i < 6; ++i) Set(channels[i], ChannelField::Transponder, i + 1);
  second.PutRecords(2, 0, 16, "TCS", channels);
  second.PutRecords(
      2, 1, 900, "TPT",
      std::vector{MakeTransponder(12002, true, 0, 9, 2), fresh, TransponderRecord{}, At(12600)});
  second.PutFavourites(3, 0, 16, Base::Bytes(NormalFavouritesSize, 9), 0);
  ASSERT_EQ(AppendStart(*state), 5);
  LoadReport report = LoadFlash(*state, second.Image(), 2000, AppendStart(*state), {});

  // The first list's is left alone, a free record's not mapped, and slot 4 was free.
  EXPECT_EQ(Told(*state, {1, 4, 5, 6, 7, 8, 9}), "a1 a4  b1 b2 b3 b4 113234");
  EXPECT_EQ(state->MaxChannels, 2999);
  EXPECT_EQ(state->TransponderCount, 4);
  EXPECT_EQ(state->Transponder(2).record, fresh);
  EXPECT_EQ(report.stranded, std::vector<int>({10, 11}));
  EXPECT_TRUE(report.messages.empty());
  EXPECT_EQ(state->FavouritesBlock, favourites);
}

TEST(FlashLoader, AppendingWithoutRoomTellsEachTransponder) {
  ImageBuilder first(13);
  first.PutRecords(1, 0, 16, "TCS", Channels("a", 1));
  first.PutRecords(1, 1, 900, "TPT", std::vector{At(10800), At(10900), At(11900)});
  const auto state = Loaded(first, 3996);
  ImageBuilder second(14);
  second.PutRecords(1, 0, 16, "TCS", Channels("b", 1));
  second.PutRecords(1, 1, 900, "TPT", std::vector{At(12000), At(12100)});
  const LoadReport report = LoadFlash(*state, second.Image(), 3996, AppendStart(*state), {});
  const std::string told =
      "Superato il numero di transponders gestibili 2\ncollego i canali restanti sul transponder 2";
  EXPECT_EQ(report.messages, std::vector<std::string>({told, told}));
  EXPECT_EQ(report.unplacedTransponders, 2);
  EXPECT_EQ(report.linkedToLast, std::vector<int>({3}));
  EXPECT_EQ(state->MaxChannels, 3996) << "the table ends there";
  EXPECT_EQ(Told(*state, {3}), "b1 2");
}

}  // namespace Routines
