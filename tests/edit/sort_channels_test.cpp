#include "edit/sort_channels.h"

#include "base/code_page.h"
#include "edit/cell_edit.h"
#include "edit/list_operations.h"
#include "model/cells.h"
#include "model/favourites.h"

#include <gtest/gtest.h>

namespace Edit {
namespace {

using namespace Routines;

class SortChannelsTest : public testing::Test {
 protected:
  SortChannelsTest() {
    state_->ChannelCount = 100;
    state_->TransponderCount = 38;
    state_->FavouritesBlock.assign(2488, 0);
  }

  void Put(int slot, const char* name, const char* sid = "1") {
    EXPECT_TRUE(EditChannel(*state_, slot, ChannelColumn::Name, name));
    EXPECT_TRUE(EditChannel(*state_, slot, ChannelColumn::Sid, sid));
    EXPECT_TRUE(EditChannel(*state_, slot, ChannelColumn::Vpid, "160"));
  }

  // Sorts, and says who stands where then: "1 Rai 2, 4 Rai 10".
  std::string Sort(const std::vector<int>& slots, const SortOrder& order) {
    plan_ = PlanSort(*state_, slots, order);
    lost_ = SortChannels(*state_, plan_);
    std::string list;
    for (int slot = 1; slot <= LastChannelSlot; ++slot) {
      if (state_->Channel(slot).Empty()) continue;
      if (!list.empty()) list += ", ";
      list += std::to_string(slot) + " " + Base::ToUtf8(state_->Channel(slot).Name());
    }
    return list;
  }

  [[nodiscard]] Slots From(int start) const { return SlotRun(start, state_->ChannelCount); }

  std::unique_ptr<State> state_ = std::make_unique<State>();
  SortPlan plan_;
  std::vector<LostFavourite> lost_;
};

TEST_F(SortChannelsTest, NamesAsAPersonSortsThem) {
  Put(1, "Rai 10");
  Put(2, "rai 2", "7");
  Put(4, "Élite");
  Put(5, "RAI 02", "8");
  Put(6, "Epic");
  Put(100, "Aaa");
  state_->ChannelCount = 99;
  SetFavouriteEntries(state_->FavouritesBlock, 0, {3, 1, 100});
  EXPECT_EQ(Sort(From(1), {{SortKey::Name}}), "1 Élite, 2 Epic, 3 rai 2, 4 RAI 02, 5 Rai 10, 100 Aaa");
  EXPECT_EQ(plan_.moved, 5);
  EXPECT_EQ(FavouriteEntriesOf(state_->FavouritesBlock, 0), (std::vector{5, 100}));
  EXPECT_EQ(lost_.size(), 1U) << "an entry on an empty place";
}

TEST_F(SortChannelsTest, TheSelectionKeepsItsPlacesAndGroupsBeginAtMultiples) {
  for (const auto& [slot, name] : {std::pair(2, "D HD"), {3, "C"}, {5, "B HD"}, {9, "A"}}) Put(slot, name);
  EXPECT_EQ(Sort({2, 4, 5, 9}, {{SortKey::HdFirst, SortKey::Name}}), "2 B HD, 3 C, 4 D HD, 5 A");
  EXPECT_EQ(Sort(From(3), {{SortKey::HdFirst}, 10}), "2 B HD, 10 D HD, 20 C, 21 A");
  EXPECT_EQ(plan_.gaps, 16);
  EXPECT_EQ(plan_.groups, 2);
  EXPECT_EQ(PlanSort(*state_, From(50), {{SortKey::HdFirst}, 10}).groups, 0);
  EXPECT_EQ(PlanSort(*state_, {2, 10, 20, 21}, {{SortKey::Name}, 10}).without, 2) << "only two multiples";
}

TEST_F(SortChannelsTest, EachKey) {
  for (const auto& [number, megahertz] : {std::pair(1, "12000"), {2, "11000"}})
    ASSERT_TRUE(EditTransponder(*state_, number, TransponderColumn::Frequency, megahertz, {}));
  state_->Transponder(1).SetBouquet("Zeta", "02");
  ASSERT_TRUE(EditTransponder(*state_, 2, TransponderColumn::Satellite, "SAT B", {}));
  for (const auto& [slot, name] : {std::pair(1, "a"), {2, "b"}, {3, "c"}}) Put(slot, name);
  const auto set = [&](int slot, int column, const char* value) {
    ASSERT_TRUE(EditChannel(*state_, slot, column, value));
  };
  set(1, ChannelColumn::Vpid, "0");
  set(2, ChannelColumn::Transponder, "2");
  set(3, ChannelColumn::Transponder, "1");
  set(1, ChannelColumn::Sid, "30");
  set(2, ChannelColumn::Sid, "4");
  set(1, ChannelColumn::Flags, "24");
  set(3, ChannelColumn::Active, "N");
  SetFavouriteEntries(state_->FavouritesBlock, 7, {3});
  const auto first = [&](SortKey key) {
    const SortPlan plan = PlanSort(*state_, From(1), {{key}});
    std::string order(3, ' ');
    for (std::size_t slot = 1; slot <= 3; ++slot)
      order[static_cast<std::size_t>(plan.map[slot] - 1)] = static_cast<char>('a' + slot - 1);
    return order;
  };
  EXPECT_EQ(first(SortKey::Kind), "bca");
  EXPECT_EQ(first(SortKey::Satellite), "cba") << "without a transponder last";
  EXPECT_EQ(first(SortKey::Bouquet), "cab");
  EXPECT_EQ(first(SortKey::Frequency), "bca");
  EXPECT_EQ(first(SortKey::Sid), "cba");
  EXPECT_EQ(first(SortKey::Coding), "cba");
  EXPECT_EQ(first(SortKey::FavouritesFirst), "cab");
  EXPECT_EQ(first(SortKey::ActiveFirst), "abc");
}

}  // namespace
}  // namespace Edit
