// Favourites lists changed by hand: each stays dense, ends at its first 0 and keeps every byte that is not its own.
#include "edit/favourites_edit.h"

#include "core_test.h"
#include "edit/list_operations.h"

#include <numeric>

namespace Edit {

using namespace Routines;
using Entries = std::vector<int>;

class FavouritesEdit : public testing::Test {
 protected:
  FavouritesEdit() {
    state_.ChannelCount = 300;
    for (int slot = 1; slot <= 250; ++slot)
      state_.Channel(slot) = Samples::MakeChannel("c" + std::to_string(999 - slot), 1, slot, 1, 1);
    state_.FavouritesBlock.assign(NormalFavouritesSize, 0xEE);
    for (std::size_t list = 0; list < FavouriteLists; ++list) state_.FavouritesBlock[list * 256] = 0;
    for (std::size_t list = 0; list < FavouriteLists; ++list) state_.FavouritesBlock[list * 256 + 1] = 0;
  }

  Entries Of(std::size_t list) { return FavouriteEntriesOf(state_.FavouritesBlock, list); }

  State state_;
};

TEST_F(FavouritesEdit, ChannelsAreAddedOnceAndOnlyWhereThereIsRoom) {
  AddReport report = AddFavourites(state_, 2, 99, {5, 6, 5, 251, 301, 0, -1});
  EXPECT_EQ(Of(2), (Entries{5, 6}));
  EXPECT_EQ(report.known, 1);
  EXPECT_EQ(report.empty, 4);
  EXPECT_EQ(state_.FavouritesBlock[2 * 256 + 6], 0xEE) << "behind the list's end nothing changes";
  AddFavourites(state_, 2, 1, {8, 9});
  EXPECT_EQ(Of(2), (Entries{5, 8, 9, 6}));

  Entries all(200);
  std::iota(all.begin(), all.end(), 1);
  report = AddFavourites(state_, 2, 4, all);
  EXPECT_EQ(Of(2).size(), FavouriteEntries);
  EXPECT_EQ(report.added + report.known + report.full, 200);
  EXPECT_EQ(report.known, 4);
  EXPECT_TRUE(Of(3).empty()) << "a full list has no end mark and touches no other";
  EXPECT_EQ(AddFavourites(state_, 2, 0, {250}).full, 1);
  RemoveFavourites(state_, 2, {0, 127, 500});
  EXPECT_EQ(Of(2).size(), FavouriteEntries - 2);
}

TEST_F(FavouritesEdit, EntriesMoveWithinAndBetweenLists) {
  AddFavourites(state_, 0, 0, {1, 2, 3, 4, 5, 6});
  EXPECT_EQ(MoveFavourites(state_, 0, {1, 3}, 0, 5).first, 3U);
  EXPECT_EQ(Of(0), (Entries{1, 3, 5, 2, 4, 6}));
  EXPECT_EQ(MoveFavourites(state_, 0, {4, 5}, 0, 0).first, 0U);
  EXPECT_EQ(Of(0), (Entries{4, 6, 1, 3, 5, 2}));
  MoveFavourites(state_, 0, {2, 3}, 0, 3);
  EXPECT_EQ(Of(0), (Entries{4, 6, 1, 3, 5, 2})) << "where they are already";

  AddFavourites(state_, 1, 0, {10, 6, 11});
  const MoveReport report = MoveFavourites(state_, 0, {0, 1, 2}, 1, 1);
  EXPECT_EQ(Of(1), (Entries{10, 4, 1, 6, 11}));
  EXPECT_EQ(Of(0), (Entries{3, 5, 2})) << "what the other list has already leaves this one";
  EXPECT_EQ(report.entries.known, 1);

  Entries all(127);
  std::iota(all.begin(), all.end(), 20);
  AddFavourites(state_, 7, 0, all);
  EXPECT_EQ(MoveFavourites(state_, 0, {0, 1}, 7, 0).entries.full, 1);
  EXPECT_EQ(Of(0), (Entries{5, 2})) << "what finds no room stays";
}

TEST_F(FavouritesEdit, SortingPutsEntriesWithoutChannelLast) {
  SetFavouriteEntries(state_.FavouritesBlock, 4, {9, 5000, 3, 260, 7});
  SortFavourites(state_, 4, FavouriteOrder::ByNumber);
  EXPECT_EQ(Of(4), (Entries{3, 7, 9, 260, 5000}));
  SortFavourites(state_, 4, FavouriteOrder::ByName);
  EXPECT_EQ(Of(4), (Entries{9, 7, 3, 260, 5000}));
}

TEST_F(FavouritesEdit, TheChannelsGoByAListInTheirPlacesOrOnTop) {
  SetFavouriteEntries(state_.FavouritesBlock, 0, {9, 260, 2, 9, 5000, 250});
  state_.Channel(3) = {};
  const auto first = [this](OrderPlace place) {
    State state = state_;
    const SlotMap map = MapByFavourites(state, 0, place);
    EXPECT_TRUE(Rearrange(state, map).empty());
    std::string names;
    for (const int slot : {1, 2, 3, 4, 5, 6, 9, 250})
      names += std::to_string(Get(state.Channel(slot), ChannelField::Sid)) + " ";
    return names;
  };
  EXPECT_EQ(first(OrderPlace::OwnPlaces), "1 9 0 4 5 6 2 250 ");
  EXPECT_EQ(first(OrderPlace::Top), "9 2 250 1 0 4 7 249 ") << "the gap goes along";
}

TEST_F(FavouritesEdit, NamesTakeTheirEightBytes) {
  const Base::Bytes before = state_.FavouritesBlock;
  EXPECT_TRUE(RenameFavourites(state_, 3, "Città"));
  EXPECT_EQ(FavouriteNameOf(state_.FavouritesBlock, 3), "Citt\xE0");
  std::size_t changed = 0;
  for (std::size_t i = 0; i < before.size(); ++i) changed += before[i] != state_.FavouritesBlock[i] ? 1 : 0;
  EXPECT_EQ(changed, FavouriteNameSize);
  for (const char* wrong : {"nove byte", "Ж"}) EXPECT_FALSE(RenameFavourites(state_, 3, wrong)) << wrong;
  EXPECT_TRUE(RenameFavourites(state_, 3, "")) << "a list needs no name";
  EXPECT_EQ(FavouritesTitle(state_.FavouritesBlock, 3), "lista 4");

  state_.FavouritesBlock.resize(100);
  EXPECT_FALSE(RenameFavourites(state_, 3, "Corto"));
  EXPECT_EQ(AddFavourites(state_, 1, 0, {4}).full, 1) << "a block that is too short keeps what it has";
  EXPECT_EQ(state_.FavouritesBlock.size(), 100U);
  state_.FavouritesBlock.clear();
  EXPECT_EQ(AddFavourites(state_, 7, 0, {4}).added, 1);
  EXPECT_EQ(state_.FavouritesBlock.size(), NormalFavouritesSize);
}

}  // namespace Edit
