#include "model/flash_writer.h"

#include "core_test.h"

namespace Routines {
namespace {

using namespace Samples;

std::vector<ChannelRecord> Channels(int count) {
  std::vector<ChannelRecord> records;
  for (int i = 1; i <= count; ++i) records.push_back(MakeChannel("n" + std::to_string(i), 1, i, 100, 200));
  return records;
}

std::unique_ptr<State> ListOf(int channels, int capacity) {
  auto state = std::make_unique<State>();
  const auto records = Channels(channels);
  std::copy(records.begin(), records.end(), state->ChannelTable.begin() + 1);
  state->MaxChannels = state->ChannelCount = capacity;
  state->TransponderCount = 2;
  state->Transponder(1).record = MakeTransponder(11000, true, 0, 1, 2);
  state->Transponder(2).record = MakeTransponder(12000, true, 0, 1, 2);
  state->FavouritesBlock.assign(NormalFavouritesSize, 3);
  return state;
}

// The SID, and so the number, of a record in an image; 0 for an empty one.
int NumberAt(const Base::Bytes& image, std::size_t at) {
  ChannelRecord record;
  std::copy_n(image.begin() + static_cast<std::ptrdiff_t>(at), ChannelRecord::Size, record.bytes.begin());
  return static_cast<int>(Get(record, ChannelField::Sid));
}

constexpr std::size_t In(std::size_t sector, std::size_t offset) {
  return (sector - 1) * SectorSize + offset;
}
constexpr std::size_t FirstData = In(2, 16 + EntryHeaderSize);
constexpr std::size_t SecondData = In(4, 100 + EntryHeaderSize);
constexpr std::size_t FavouritesData = In(6, 16 + EntryHeaderSize + 5 + 20);

// Two channel sections of 5 and 4 records; behind the first there is room for one record more and 7 bytes.
ImageBuilder Template() {
  ImageBuilder image(21);
  image.PutRecords(2, 0, 16, "TCS", Channels(5))
      .Put(2, 1, 16 + EntryHeaderSize + 187, "EPG", Base::Bytes(50, 'e'));
  image.PutRecords(4, 3, 100, "TCS", Channels(4))
      .Put(4, 2, 100 + EntryHeaderSize + 120, "EPG", Base::Bytes(9, 'e'));
  image.PutRecords(5, 0, 16, "TPT", std::vector(3, TransponderRecord{}));
  return image.PutFavourites(6, 0, 16, Base::Bytes(NormalFavouritesSize, 9), 5);
}

}  // namespace

TEST(FlashWriter, EachFlashTypeFillsTheSectionsItsWay) {
  const Base::Bytes original = Template().Image();
  const auto state = ListOf(20, 20);
  const struct {
    FlashType type;
    int secondBegins;
    bool favourites;
  } cases[] = {{FlashType::One, 2, false}, {FlashType::Two, 7, true}, {FlashType::Three, 2, false}};
  for (const auto& c : cases) {
    const PatchedFlash patched = PatchFlash(*state, original, {c.type, 20, ""});
    EXPECT_EQ(NumberAt(patched.image, FirstData), 1);
    EXPECT_EQ(NumberAt(patched.image, FirstData + 5 * 30), 6)
        << "up to the next entry, past the section's own length";
    EXPECT_EQ(NumberAt(patched.image, SecondData), c.secondBegins);
    EXPECT_EQ(NumberAt(patched.image, SecondData + 3 * 30), c.secondBegins + 3);
    EXPECT_EQ(patched.channelSections, 2);
    EXPECT_EQ(patched.favouritesWritten, c.favourites);
    EXPECT_TRUE(DiffersOnlyInSections(original, patched.image));
    EXPECT_EQ(PatchFlash(*state, patched.image, {c.type, 20, ""}).image, patched.image) << "a second write";
  }
}

TEST(FlashWriter, TheListsEndAndAShortFavouritesBlockAreFilledWithZeros) {
  const Base::Bytes original = Template().Image();
  const auto state = ListOf(3, 3);
  state->FavouritesBlock.clear();
  const Base::Bytes image = PatchFlash(*state, original, {FlashType::Two, 3, ""}).image;
  EXPECT_TRUE(
      std::equal(image.begin() + FavouritesData - 61, image.end(), original.begin() + FavouritesData - 61))
      << "without favourites their area stays";
  EXPECT_EQ(Base::Bytes(image.begin() + FirstData + 90, image.begin() + FirstData + 150), Base::Bytes(60, 0));
  EXPECT_TRUE(std::equal(image.begin() + FirstData + 150, image.begin() + FirstData + 187,
                         original.begin() + FirstData + 150))
      << "what lies behind the section stays";
  EXPECT_EQ(Base::Bytes(image.begin() + SecondData, image.begin() + SecondData + 120), Base::Bytes(120, 0));

  for (const std::size_t size : std::initializer_list<std::size_t>{2291, 4000, 1}) {
    state->FavouritesBlock.assign(size, 3);
    const PatchedFlash patched = PatchFlash(*state, original, {FlashType::Two, 3, ""});
    Base::Bytes expected(std::min(size, NormalFavouritesSize), 3);
    expected.resize(NormalFavouritesSize, 0);
    const auto written = patched.image.begin() + FavouritesData;
    EXPECT_EQ(Base::Bytes(written, written + NormalFavouritesSize), expected);
    EXPECT_EQ(patched.favouritesCleared, std::count(expected.begin(), expected.end(), 0)) << "they were 9";
    EXPECT_TRUE(DiffersOnlyInSections(original, patched.image));
  }
  for (const Base::Bytes& blank : {Base::Bytes{}, Base::Bytes(2291, ' '), Base::Bytes(4000, 0)}) {
    state->FavouritesBlock = blank;
    const PatchedFlash patched = PatchFlash(*state, original, {FlashType::Two, 3, ""});
    EXPECT_TRUE(patched.image == image && !patched.favouritesWritten) << blank.size();
  }
}

// Both sides of every border, and bytes all over the image.
TEST(FlashWriter, TheGuardStopsAnyByteOutsideTheSections) {
  std::vector<bool> mayChange(FlashSize);
  for (const auto& [first, count] :
       {std::pair{FirstData, std::size_t{187}}, std::pair{SecondData, std::size_t{120}},
        std::pair{In(5, 16 + EntryHeaderSize), SectorSize - 16 - EntryHeaderSize},
        std::pair{FavouritesData, NormalFavouritesSize}})
    std::fill_n(mayChange.begin() + static_cast<std::ptrdiff_t>(first), count, true);
  const Base::Bytes original = Template().SetLength(2, 16, 65535).Image();
  Base::Bytes patched = PatchFlash(*ListOf(20, 20), original, {FlashType::Two, 20, ""}).image;
  for (std::size_t at = 1; at < FlashSize; ++at) {
    ASSERT_TRUE(patched[at] == original[at] || mayChange[at]) << at;
    if (mayChange[at - 1] == mayChange[at] && at % 199 != 0) continue;
    for (const std::size_t place : {at - 1, at}) {
      patched[place] ^= 0x80U;
      ASSERT_EQ(DiffersOnlyInSections(original, patched), mayChange[place]) << place;
      patched[place] ^= 0x80U;
    }
  }
  patched.push_back(0);
  EXPECT_FALSE(DiffersOnlyInSections(original, patched));
}

TEST(FlashWriter, WhatAnImageDoesNotTakeIsTold) {
  const Base::Bytes original = Template().Image();
  const auto unwritten = [&](const State& state, FlashType type) {
    const PatchedFlash patched = PatchFlash(state, original, {type, state.ChannelCount, ""});
    return FindUnwritten(state, patched.image, {type, state.ChannelCount, ""}).Text();
  };
  auto state = ListOf(9, 9);
  EXPECT_EQ(unwritten(*state, FlashType::Two), "4 canali non scritti")
      << "the sixth lies where no reader looks";
  state = ListOf(5, 5);
  EXPECT_EQ(unwritten(*state, FlashType::Two), "");
  EXPECT_EQ(unwritten(*state, FlashType::One), "preferiti non scritti");
  state->FavouritesBlock.assign(2291, ' ');
  EXPECT_EQ(unwritten(*state, FlashType::One), "") << "there are none to lose";
  state = ListOf(5, 9);
  EXPECT_EQ(unwritten(*state, FlashType::One), "4 canali in più nell'immagine, preferiti non scritti");
  state = ListOf(353, 999);
  EXPECT_EQ(unwritten(*state, FlashType::Two), "348 canali non scritti");
  state = ListOf(5, 5);
  state->TransponderCount = 4;
  state->Transponder(4).record = state->Transponder(1).record;
  EXPECT_EQ(unwritten(*state, FlashType::Two), "1 transponder diverso");
  state->TransponderCount = 1;
  const Base::Bytes full = PatchFlash(*ListOf(5, 5), original, {FlashType::Two, 5, ""}).image;
  EXPECT_EQ(FindUnwritten(*state, full, {FlashType::Two, 5, ""}).Text(), "1 transponder diverso")
      << "one more than the list has";
  state = ListOf(5, 5);
  state->FavouritesBlock.assign(2291, 0);
  state->FavouritesBlock[FavouriteNameOffset(2291, 0)] = 'C';
  EXPECT_EQ(unwritten(*state, FlashType::Two), "nomi delle liste persi");
  const Base::Bytes bare = ImageBuilder(3).PutRecords(1, 0, 16, "TCS", Channels(5)).Image();
  EXPECT_EQ(FindUnwritten(*ListOf(5, 5), bare, {FlashType::Two, 5, ""}).Text(),
            "2 transponder diversi, preferiti non scritti");
}

}  // namespace Routines
