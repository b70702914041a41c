// The list's transponders are checked against a list of today and brought up to date.
#include "review/transponder_check.h"

#include "core_test.h"
#include "edit/update_transponders.h"

namespace Review {
namespace {

using namespace Routines;
using Samples::MakeChannel;
using Samples::MakeTransponder;

ListedTransponder Listed(int kilohertz, Polarisation polarisation, int kilobaud, std::string_view fec,
                         Delivery delivery = Delivery::DvbS) {
  ListedTransponder listed;
  listed.frequency = kilohertz;
  listed.polarisation = polarisation;
  listed.symbolRate = kilobaud * 1000;
  listed.fec = fec;
  listed.delivery = delivery;
  listed.tid = 77;
  return listed;
}

std::string Told(const std::vector<TransponderFinding>& findings) {
  constexpr const char* Marks[] = {"missing", "changed", "gone", "doubled"};
  std::string told;
  for (const TransponderFinding& one : findings)
    told += std::string(Marks[static_cast<std::size_t>(one.mark)]) + " " + std::to_string(one.slot) + " " +
            std::to_string(one.first) + " " +
            std::to_string(one.listed.frequency == NotSaid ? 0 : MegahertzOf(one.listed)) + "; ";
  return told;
}

constexpr auto H = Polarisation::Horizontal, V = Polarisation::Vertical;

}  // namespace

TEST(TransponderCheck, FindsWhatIsMissingChangedGoneOrDoubledAndTakesIt) {
  State state;
  state.Loaded = true;
  state.SymbolRateTable = Tests::UsualRates();  // 22000 in cell 1, 27500 in cell 3
  state.ChannelCount = 4;
  state.TransponderCount = 8;
  const TransponderRecord records[] = {
      MakeTransponder(11766, false, 0, 3, 2, 5), MakeTransponder(11804, false, 0, 3, 2, 5),
      MakeTransponder(11767, false, 0, 1, 2, 5), MakeTransponder(12500, true, 0, 3, 2, 5),
      MakeTransponder(10719, false, 0, 3, 5, 5), MakeTransponder(12600, true, 0, 3, 2, 5),
      MakeTransponder(10719, false, 1, 1, 2, 5)};
  for (int slot = 1; slot <= 7; ++slot) state.Transponder(slot).record = records[slot - 1];
  for (int slot = 1; slot <= 3; ++slot) state.Channel(slot) = MakeChannel("c", slot == 1 ? 3 : 6, slot, 1, 1);
  state.Channel(4) = MakeChannel("lost", 0, 4, 1, 1);
  const std::vector<ListedTransponder> listed = {
      Listed(11769000, V, 22000, "3/4"),                   // 3 MHz away from the first
      Listed(11766500, V, 27502, ""),                      // nothing else is said of it
      Listed(11804000, V, 22000, "7/8", Delivery::DvbS2),  // an own one that is DVB-S2 now
      Listed(10719000, V, 27500, "5/6"),                   // its own FEC is the receiver's matter
      Listed(10719000, H, 29900, "3/4"),                   // a rate that no cell has
      Listed(12341000, Polarisation::Left, 27500, "3/4"),
      Listed(3720000, H, 27500, "3/4"),
      Listed(12700000, H, 27500, "8/9"),
      Listed(12701000, H, 27500, "8/9"),
      Listed(12731000, H, 27500, "3/4", Delivery::DvbS2)};
  auto found = CheckTransponders(state, listed, 0, true);
  EXPECT_EQ(Told(found),
            "missing 0 0 10719; missing 0 0 11769; missing 0 0 12700; missing 0 0 12731; changed 2 0 11804; "
            "gone 4 0 0; gone 6 0 0; doubled 3 1 0; ");
  found.erase(found.begin() + 1);
  EXPECT_EQ(Told(CheckTransponders(state, listed, 1, false)),
            "missing 0 0 10719; missing 0 0 11769; missing 0 0 12700; changed 7 0 10719; ")
      << "DVB-S2 is known, but not missing; each satellite has its own";

  const BouquetTables bouquets{{}, {{"Nuovo", "SAT A", "05", 12700}}};
  state.TransponderCount = 7;
  const Edit::TransponderReport report = Edit::UpdateTransponders(state, found, 0, bouquets);
  EXPECT_EQ(Edit::ChannelsOn(state, 6), std::vector({2, 3}));
  EXPECT_TRUE(Edit::ChannelsOn(state, 0).empty()) << "an own channel may be on none";
  EXPECT_EQ(report.added, 2) << "where the doubled and the gone one were";
  EXPECT_EQ(report.changed + report.removed * 10 + report.joined * 100, 111);
  EXPECT_EQ(report.unknownRate, 1);
  EXPECT_EQ(report.inUse, 1);
  EXPECT_EQ(Get(state.Channel(1), ChannelField::Transponder), 1U);
  EXPECT_EQ(Get(state.Transponder(1).record, TransponderField::ChannelCount), 1U);
  EXPECT_EQ(SameTransponder(state.Transponder(3).record, MakeTransponder(12700, true, 0, 3, 5, 77)), true);
  EXPECT_EQ(Get(state.Transponder(3).record, TransponderField::SymbolRate), 3U);
  EXPECT_EQ(Get(state.Transponder(3).record, TransponderField::Fec), 5U) << "8/9 is left to the receiver";
  EXPECT_EQ(Get(state.Transponder(3).record, TransponderField::Tid), 77U);
  EXPECT_EQ(state.Transponder(3).BouquetCode(), "05");
  EXPECT_EQ(Get(state.Transponder(2).record, TransponderField::SymbolRate), 1U);
  EXPECT_EQ(Get(state.Transponder(2).record, TransponderField::Fec), 4U);
  EXPECT_EQ(Told(CheckTransponders(state, listed, 0, true)),
            "missing 0 0 10719; missing 0 0 11769; gone 6 0 0; ");
  EXPECT_EQ(
      Edit::UpdateTransponders(state, {{TransponderMark::Missing, 0, 0, listed[0]}}, 0, bouquets).noSlot, 1);
}

TEST(TransponderCheck, ChannelsOfADoubleStayTunedThoughBothAreListedNoMore) {
  State state;
  state.ChannelCount = 1;
  state.TransponderCount = 2;
  for (const int slot : {1, 2}) state.Transponder(slot).record = MakeTransponder(11766, false, 0, 3, 2, 5);
  state.Channel(1) = MakeChannel("c", 2, 1, 1, 1);
  const auto found = CheckTransponders(state, {}, 0, true);
  EXPECT_EQ(Told(found), "gone 1 0 0; doubled 2 1 0; ");
  const Edit::TransponderReport report = Edit::UpdateTransponders(state, found, 0, {});
  EXPECT_EQ(report.joined + report.inUse * 10 + report.removed * 100, 11);
  EXPECT_EQ(Edit::ChannelsOn(state, 1), std::vector({1}));
  EXPECT_FALSE(IsFree(state.Transponder(1).record));
}

}  // namespace Review
