#include "base/code_page.h"

#include <gtest/gtest.h>

namespace Base {

TEST(CodePage, EveryByteSurvivesTheWayThereAndBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string one(1, static_cast<char>(byte));
    EXPECT_EQ(FromUtf8(ToUtf8(one)), one) << byte;
  }
}

TEST(CodePage, ShowsAccentsAndRefusesWhatItDoesNotHave) {
  EXPECT_EQ(ToUtf8("Citt\xE0 \x80 \x9F"), "Città € Ÿ");
  for (const char* text : {"Ł", "漢", "😀", "\xC3", "\xC0\x80", "\xE0\x82\x80", "\xFF", "\x80", "a\xE2\x82"})
    EXPECT_EQ(FromUtf8(text), std::nullopt) << text;
}

TEST(CodePage, LossyTextKeepsItsColumns) { EXPECT_EQ(FromUtf8Lossy("a😀b漢à\xFF."), "a?b?\xE0?."); }

}  // namespace Base
