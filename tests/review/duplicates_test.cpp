// Channels that are in the list more than once.
#include "review/duplicates.h"

#include "core_test.h"
#include "formats/source_names.h"
#include "model/favourites.h"

namespace Review {

using namespace Routines;
using namespace Samples;
using Groups = std::vector<std::vector<int>>;

TEST(CanaliDoppi, EachRuleFindsItsOwnAndGroupsThatShareAChannelAreOne) {
  State state;
  state.ChannelCount = 25;
  state.TransponderCount = 6;
  const struct {
    int satellite, tid, nid;
  } transponders[] = {{0, 1, 2}, {0, 1, 2}, {1, 1, 2}, {0, 0, 0}, {0, 0, 0}};
  for (std::size_t i = 0; i < 5; ++i) {
    const auto& [satellite, tid, nid] = transponders[i];
    state.Transponder(i + 1).record = MakeTransponder(11000, true, satellite, 1, 2, tid, nid);
  }
  constexpr int None = 65535;
  const struct {
    int slot;
    const char* name;
    int transponder, sid, vpid, apid;
  } channels[] = {{1, "Citt\xE0", 1, 100, 10, 20},
                  {2, "b", 2, 100, 11, 21},  // one transponder's ids in two slots
                  {3, "c", 3, 100, 10, 20},  // another satellite
                  {4, "d", 4, 100, 10, 20},
                  {5, "e", 5, 100, 10, 20},  // nothing tells their networks
                  {6, "f", 4, 100, 11, 21},  // the same service as 4
                  {7, "g", 1, 0, 50, 60},
                  {8, "h", 1, 0, 50, 60},  // no SID, the same streams
                  {9, "i", 1, 0, 50, 61},  // another audio stream
                  {10, "l", 1, 0, None, None},
                  {11, "m", 1, 0, 0, None},  // neither SID nor stream
                  {12, "n", 6, 7, 8, 9},
                  {13, "n", 6, 7, 8, 9},  // a free transponder
                  {14, "o", 9, 7, 8, 9},
                  {15, "o", 9, 7, 8, 9},  // none of the list's
                  {16, "p", 0, 7, 8, 9},
                  {17, "p", 0, 7, 8, 9},  // none at all
                  {18, "", 1, 7, 8, 9},
                  {19, "", 1, 7, 8, 9},  // empty slots that are not all zero
                  {20, " CITT\xC0  ", 2, 5, 30, 40},
                  {21, " ", 1, 61, 1, 1},
                  {22, " ", 1, 62, 1, 1},
                  {26, "q", 1, 100, 10, 20}};  // behind the list's end
  for (const auto& c : channels)
    state.Channel(c.slot) = MakeChannel(c.name, c.transponder, c.sid, c.vpid, c.apid);

  const auto found = [&](bool service, bool streams, bool name) {
    return FindDuplicates(state, {service, streams, name});
  };
  EXPECT_EQ(found(false, false, false), Groups());
  EXPECT_EQ(found(true, false, false), Groups({{1, 2}, {4, 6}}));
  EXPECT_EQ(found(false, true, false), Groups({{7, 8}}));
  EXPECT_EQ(found(false, false, true), Groups({{1, 20}}));
  EXPECT_EQ(found(true, true, true), Groups({{1, 2, 20}, {4, 6}, {7, 8}}));

  int slot = 2;
  for (const char* name : {"Citt\xE0 +1", "  SD CITTA  hd", "Canale5+1", "CANALE5", "HD", "+1", "hd"})
    state.Channel(++slot) = MakeChannel(name, 1, 100, 1, 1);
  const DuplicateRules bare{false, false, false, true};
  const Groups alike = FindDuplicates(state, bare);
  EXPECT_EQ(alike, Groups({{1, 3, 4, 20}, {5, 6}, {7, 9}}));
  EXPECT_TRUE(Surplus(state, bare, alike).empty()) << "they are only looked at";
}

TEST(CanaliDoppi, WhatIsLikeNoChannelThatStaysStays) {
  State state;
  state.ChannelCount = 5;
  state.TransponderCount = 1;
  state.Transponder(1).record = MakeTransponder(11000, true, 0, 1, 2, 1, 2);
  state.Channel(1) = MakeChannel("AAA", 1, 1, 10, 20);
  state.Channel(2) = MakeChannel("AAA", 1, 2, 11, 21);
  state.Channel(3) = MakeChannel("BBB", 1, 2, 12, 22);
  state.Channel(4) = MakeChannel("Radio", 1, 0, 0, 30);
  state.Channel(5) = MakeChannel("Radio 2", 1, 0, 65535, 30);
  const DuplicateRules rules{true, true, true};
  const Groups groups = FindDuplicates(state, rules);
  EXPECT_EQ(groups, Groups({{1, 2, 3}, {4, 5}}));
  EXPECT_EQ(Surplus(state, rules, groups), (std::vector<int>{2, 5}));

  SetFavouriteEntries(state.FavouritesBlock = Base::Bytes(NormalFavouritesSize), 3, {3, 2000});
  Set(state.Channel(5), ChannelField::Active, 0);
  Set(state.Channel(2), ChannelField::Flags, 0x24);
  const auto goes = [&](KeepBy by) { return SurplusByRank(state, rules, groups, KeepRanks(state, by)); };
  EXPECT_EQ(goes(KeepBy::Favourite), std::vector<int>{2}) << "1 is only like 2, and 4 and 5 are in no list";
  EXPECT_EQ(goes(KeepBy::Active), std::vector<int>{5});
  EXPECT_EQ(goes(KeepBy::Free), std::vector<int>{2});

  Formats::SdxTable source;
  source.rows.resize(3);
  for (auto& row : source.rows) {
    row.frequency = "011001";
    row.horizontal = true;
  }
  source.rows[0].sid = source.rows[1].sid = "2";
  source.rows[1].vpid = "12";
  source.rows[1].apid = "22";
  source.rows[2].sid = "1";
  const PerChannel<int> ranks = Formats::RanksBySource(source, state);
  EXPECT_EQ(std::vector(ranks.values.begin() + 1, ranks.values.begin() + 6), (std::vector{1, 1, 2, 0, 0}));
  EXPECT_EQ(SurplusByRank(state, rules, groups, ranks), std::vector<int>{2});
}

}  // namespace Review
