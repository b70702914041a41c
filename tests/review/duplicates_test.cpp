// Channels that are in the list more than once.
#include "review/duplicates.h"

#include "core_test.h"

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
}

}  // namespace Review
