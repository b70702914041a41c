#include "base/text.h"

#include <gtest/gtest.h>

namespace Base {

TEST(Text, LinesEndWithEitherEnding) {
  const std::vector<std::string_view> expected = {"a", "", " b", "c\rd"};
  EXPECT_EQ(Lines("a\r\n\r\n b\nc\rd"), expected);
  EXPECT_EQ(Lines("a\r\n\n b\r\nc\rd\n"), expected);
  EXPECT_TRUE(Lines("").empty());
}

TEST(Text, NumbersAreLeadingDigitsThatFit) {
  const struct {
    std::string_view text;
    int value;
  } cases[] = {{"  12abc", 12},  {"", 0},      {"-5", 0},   {"\t7", 0},
               {"65535", 65535}, {"65536", 0}, {"0x1F", 0}, {"99999999999999999999", 0}};
  for (const auto& c : cases) EXPECT_EQ(LeadingNumber(c.text), c.value) << c.text;
  EXPECT_EQ(Trimmed("  \t a  "), "\t a");
  EXPECT_EQ(Trimmed("    "), "");
}

}  // namespace Base
