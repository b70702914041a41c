#include "edit/recovery.h"

#include "base/checksum.h"
#include "core_test.h"

namespace Edit {
namespace {

// Every member has a value that no other member has.
std::unique_ptr<Recovery> Work() {
  auto work = std::make_unique<Recovery>();
  State& state = work->state;
  Samples::Junk junk(5);
  for (ChannelRecord& channel : state.ChannelTable)
    for (Base::Byte& byte : channel.bytes) byte = junk.NextByte();
  for (auto& row : state.TransponderTable)
    for (Base::Byte& byte : row.record.bytes) byte = junk.NextByte();
  state.Transponder(7).SetBouquet("Città", "12");
  state.FavouritesBlock = {1, 2, 3};
  state.SymbolRateTable = std::string(96, '5');
  state.MaxChannels = 2000;
  state.ChannelCount = 3996;
  state.TransponderCount = 120;
  state.Loaded = state.FromFls = true;
  state.CutNumber = 3;
  state.ListNumber = 9;
  state.InputFlash = "/tmp/una \"lista\"\n.dat";
  state.OutputFlash = "/tmp/altra.dat";
  work->clipboard = {.channels = {state.Channel(1), state.Channel(2)},
                     .transponders = {state.Transponder(1).record, state.Transponder(2).record},
                     .cut = {{7, 127, 1}},
                     .symbolRates = std::string(96, '6'),
                     .cutNumber = 4,
                     .listNumber = 8,
                     .wasCut = true};
  work->settings = {2, 1, 0};
  return work;
}

Base::Bytes Encode(const Recovery& work) { return EncodeRecovery(work.state, work.clipboard, work.settings); }

}  // namespace

TEST(Recovery, GivesTheWholeWorkBack) {
  EXPECT_EQ(Base::Crc32(Base::AsBytes("123456789")), 0xCBF43926U) << "the checksum of other programs";
  const auto work = Work();
  const auto back = DecodeRecovery(Encode(*work));
  ASSERT_TRUE(back);
  EXPECT_TRUE(back->state == work->state);
  EXPECT_TRUE(back->clipboard == work->clipboard);
  EXPECT_EQ(Encode(*back), Encode(*work)) << "options too";
}

TEST(Recovery, AFileThatIsNotWholeIsDamaged) {
  const Base::Bytes file = Encode(*Work());
  for (std::size_t size = 0; size < file.size(); size += size < 40 ? 1 : 4999)
    EXPECT_FALSE(DecodeRecovery(Base::ByteView(file).first(size))) << size;
  Base::Bytes spoilt = file;
  for (std::size_t at = 0; at < file.size(); at += at < 40 ? 1 : 997) {
    spoilt[at] ^= 0x10U;
    EXPECT_FALSE(DecodeRecovery(spoilt)) << at;
    spoilt[at] = file[at];
  }
  spoilt.push_back(0);
  EXPECT_FALSE(DecodeRecovery(spoilt));
}

// A file with a right checksum may still say anything.
TEST(Recovery, NumbersStayWithinTheirTables) {
  const auto work = Work();
  work->state.MaxChannels = -1;
  work->state.ChannelCount = work->state.TransponderCount = 1 << 30;
  work->state.FavouritesBlock.resize(70000);
  work->state.SymbolRateTable = "22000";
  work->clipboard.transponders.clear();
  work->clipboard.cut = {{8, 0, 0}, {0, 128, 0}, {0, 0, -1}, {0, 0, 2}, {1, 1, 1}};
  work->settings = {3, 99, 2};
  const auto back = DecodeRecovery(Encode(*work));
  ASSERT_TRUE(back);
  EXPECT_EQ(back->state.MaxChannels, 0);
  EXPECT_EQ(back->state.ChannelCount, Routines::LastChannelSlot);
  EXPECT_EQ(back->state.TransponderCount, Routines::LastTransponderSlot);
  EXPECT_EQ(back->state.FavouritesBlock.size(), Routines::SectorSize);
  EXPECT_EQ(back->state.SymbolRateTable.size(), 96U);
  EXPECT_EQ(back->clipboard.transponders.size(), 2U);
  EXPECT_EQ(back->clipboard.cut, (std::vector<LostFavourite>{{1, 1, 1}}));
  EXPECT_FALSE(back->settings.quantiCanali || back->settings.flashScrittura || back->settings.srDef);
}

TEST(Recovery, OnlyWhatACutHoldsAloneWouldBeLost) {
  const auto work = Work();
  State& state = work->state;
  EXPECT_FALSE(HoldsCutChannels(work->clipboard, state)) << "the cut has been undone";
  state.Channel(2) = {};
  EXPECT_TRUE(HoldsCutChannels(work->clipboard, state));
  work->clipboard.wasCut = false;
  EXPECT_FALSE(HoldsCutChannels(work->clipboard, state)) << "a copy";
}

}  // namespace Edit
