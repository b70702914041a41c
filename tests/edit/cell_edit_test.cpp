// What may be typed into a cell, and which bytes of its record it changes.
#include "edit/cell_edit.h"

#include "core_test.h"
#include "model/cells.h"

namespace Edit {
namespace {

using namespace Routines;
using Samples::Junk;

class CellEdit : public testing::Test {
 protected:
  CellEdit() {
    Junk junk(7);
    state_.ChannelCount = 20;
    state_.TransponderCount = 10;
    state_.SymbolRateTable = Tests::UsualRates();
    for (Base::Byte& byte : Channel(5).bytes) byte = static_cast<Base::Byte>(1 + junk.Below(255));
    std::copy_n("Uno  \0\0\0\0\0\0\0\0\0\0\0", 16, Channel(5).bytes.begin());
    Set(Channel(5), ChannelField::Transponder, 3);
    for (const int slot : {3, 4}) {
      for (Base::Byte& byte : Transponder(slot).bytes) byte = static_cast<Base::Byte>(junk.Below(256));
      Set(Transponder(slot), TransponderField::Frequency, 1500000000);
      Set(Transponder(slot), TransponderField::ChannelCount, 1);
    }
  }

  ChannelRecord& Channel(int slot) { return state_.Channel(slot); }
  TransponderRecord& Transponder(int slot) { return state_.Transponder(slot).record; }

  // Positions of the bytes that an edit changes; nothing where it is refused.
  template <class Record, class Edit>
  std::string Changed(Record& record, Edit edit) {
    const State before = state_;
    const Record old = record;
    if (!edit()) {
      EXPECT_EQ(state_, before) << "a refused edit leaves everything";
      return "refused";
    }
    std::string places;
    for (std::size_t i = 0; i < Record::Size; ++i)
      if (record.bytes[i] != old.bytes[i]) places += std::to_string(i) + " ";
    return places;
  }
  std::string ChannelBytes(int column, std::string_view typed) {
    return Changed(Channel(5), [&] { return static_cast<bool>(EditChannel(state_, 5, column, typed)); });
  }
  std::string TransponderBytes(int column, std::string_view typed) {
    return Changed(Transponder(3),
                   [&] { return static_cast<bool>(EditTransponder(state_, 3, column, typed, {})); });
  }

  State state_;
};

TEST_F(CellEdit, NamesAreMeasuredInTheReceiversBytes) {
  using ChannelColumn::Name;
  EXPECT_EQ(ChannelBytes(Name, "Uno"), "") << "the padding of an unchanged name stays";
  EXPECT_EQ(ChannelBytes(Name, "Unò€"), "2 3 4 ");
  EXPECT_EQ(Channel(5).Name(), "Un\xF2\x80");
  EXPECT_EQ(ChannelBytes(Name, "sedici caratteri"), "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 ");
  EXPECT_EQ(ChannelBytes(Name, "Corto"), "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 ");
  for (const char* wrong : {"", "   ", "diciassette bytes", "Ж", "due\nrighe", "\xFF"})
    EXPECT_EQ(ChannelBytes(Name, wrong), "refused") << wrong;
}

TEST_F(CellEdit, NumbersAreDecimalAndFitTheirField) {
  Set(Channel(5), ChannelField::Vpid, 0x0101);
  EXPECT_EQ(ChannelBytes(ChannelColumn::Vpid, " 65535 "), "20 21 ");
  EXPECT_EQ(ChannelBytes(ChannelColumn::Pcr, "0"), "28 29 ");
  for (const char* wrong : {"", "65536", "-1", "+1", "0x10", "1F", "1 2", "4294967297"})
    EXPECT_EQ(ChannelBytes(ChannelColumn::Sid, wrong), "refused") << wrong;

  for (const char* right : {"25", "a4 via", "24 Seca", "ff"})
    EXPECT_EQ(ChannelBytes(ChannelColumn::Flags, right), "16 ") << right;
  for (const char* wrong : {"", "4", "123", "GG", "24 Via", "-4"})
    EXPECT_EQ(ChannelBytes(ChannelColumn::Flags, wrong), "refused") << wrong;
  EXPECT_EQ(ChannelBytes(ChannelColumn::Active, "n"), "16 ");
  EXPECT_EQ(Get(Channel(5), ChannelField::Flags), 0xFBU);
  EXPECT_EQ(ChannelBytes(ChannelColumn::Active, "forse"), "refused");
  EXPECT_EQ(ChannelBytes(ChannelColumn::Number, "6"), "refused");
}

TEST_F(CellEdit, ChannelsTakeTheirCountAlongToAnotherTransponder) {
  EXPECT_EQ(ChannelBytes(ChannelColumn::Transponder, "004 11250 V SAT A"), "17 ");
  EXPECT_EQ(Get(Transponder(3), TransponderField::ChannelCount), 0U);
  EXPECT_EQ(Get(Transponder(4), TransponderField::ChannelCount), 2U);
  for (const char* wrong : {"0", "5", "11", "300", "", "tre"})
    EXPECT_EQ(ChannelBytes(ChannelColumn::Transponder, wrong), "refused") << wrong;

  Channel(7) = Samples::MakeChannel("Sette", 4, 1, 1, 1);
  EXPECT_EQ(*EditChannels(state_, SlotRun(5, 9), ChannelColumn::Transponder, "3"), 2)
      << "empty slots stay empty";
  EXPECT_TRUE(Channel(6).Empty());
  EXPECT_EQ(Get(Transponder(3), TransponderField::ChannelCount), 2U);
  EXPECT_EQ(Get(Transponder(4), TransponderField::ChannelCount), 0U);
}

TEST_F(CellEdit, AnEmptySlotBecomesAChannel) {
  EXPECT_TRUE(EditChannel(state_, 9, ChannelColumn::Sid, "77"));
  EXPECT_EQ(Channel(9).Name(), "Canale 0009");
  EXPECT_EQ(Get(Channel(9), ChannelField::Sid), 77U);
  EXPECT_EQ(Get(Channel(9), ChannelField::Active), 1U);
  EXPECT_TRUE(EditChannel(state_, 10, ChannelColumn::Name, "Nuovo"));
  EXPECT_EQ(Channel(10).Name(), "Nuovo");
  EXPECT_FALSE(EditChannel(state_, 21, ChannelColumn::Name, "Oltre")) << "a row that is no longer there";
}

TEST_F(CellEdit, EveryFrequencyShowsAsItWasTyped) {
  for (int megahertz = 9766; megahertz <= 12750; ++megahertz) {
    for (const char* tone : {"On", "Off"}) {
      if (megahertz < 10616 && tone[1] == 'n') continue;
      ASSERT_NE(TransponderBytes(TransponderColumn::Tone, tone), "refused");
      ASSERT_NE(TransponderBytes(TransponderColumn::Frequency, std::to_string(megahertz)), "refused");
      ASSERT_EQ(TransponderCell(state_, 3, TransponderColumn::Frequency), std::to_string(megahertz));
      const auto hertz = Get(Transponder(3), TransponderField::Frequency);
      const auto plain = static_cast<std::uint32_t>(megahertz - LocalOscillator(Transponder(3))) * 1000000U;
      ASSERT_TRUE(hertz >= plain && (hertz < plain + 256 || hertz == 1U << 24U)) << "the smallest that does";
    }
  }
  for (const char* wrong : {"", "0", "9750", "9765", "99999", "11,7", "4294978962"})
    EXPECT_EQ(TransponderBytes(TransponderColumn::Frequency, wrong), "refused") << wrong;
}

TEST_F(CellEdit, TransponderFieldsKeepToThemselves) {
  Transponder(3).bytes = {0x59, 0x68, 0x2F, 0, 1, 2, 3, 4, 9, 0x17, 9, 0b10100100};
  EXPECT_EQ(TransponderBytes(TransponderColumn::Fec, "Auto"), "") << "every other code is shown as Auto too";
  EXPECT_EQ(TransponderBytes(TransponderColumn::Fec, "7/8"), "10 ");
  EXPECT_EQ(TransponderBytes(TransponderColumn::SymbolRate, "27500"), "9 ");
  EXPECT_EQ(TransponderBytes(TransponderColumn::SymbolRate, "12345"), "refused");
  EXPECT_EQ(TransponderBytes(TransponderColumn::Polarisation, "h"), "11 ");
  EXPECT_EQ(TransponderBytes(TransponderColumn::Satellite, "SAT B Astra"), "11 ");
  EXPECT_EQ(Transponder(3).bytes[11], 0b00001110) << "the unknown bit survives";
  for (const char* wrong : {"SAT", "SAT 1", "SAT BB", "B"})
    EXPECT_EQ(TransponderBytes(TransponderColumn::Satellite, wrong), "refused") << wrong;
  EXPECT_EQ(TransponderBytes(TransponderColumn::Channels, "3"), "refused");

  EXPECT_FALSE(EditTransponder(state_, 6, TransponderColumn::Tid, "1", {})) << "it is free";
  EXPECT_TRUE(EditTransponder(state_, 6, TransponderColumn::Frequency, "12034", {}));
  EXPECT_EQ(FrequencyMHz(Transponder(6)), 12034);
  EXPECT_EQ(Get(Transponder(6), TransponderField::HighBand), 1U);
  EXPECT_EQ(state_.Transponder(6).BouquetName().substr(0, 7), "Nessuno");
}

}  // namespace
}  // namespace Edit
