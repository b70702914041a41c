#include "model/write_settings.h"

#include <gtest/gtest.h>

namespace Routines {

TEST(WriteSettings, TheFirstMissingChoiceIsTold) {
  EXPECT_EQ(CheckSettings({}).error().message, "Si deve selezionare il numero di canali da visualizzare");
  EXPECT_EQ(CheckSettings({0, {}, {}}).error().message, "Si deve selezionare il tipo di FLASH da registrare");
  EXPECT_EQ(CheckSettings({0, 0, {}}).error().message, "Si deve definere la posizione dell' SR 22000");
  EXPECT_TRUE(CheckSettings({2, 2, 1}));
}

TEST(WriteSettings, LimitsAndWarnings) {
  const std::string many = "Impossibile gestire più di ", left = "\nne verranno salvati solo ";
  const std::string warns999 = many + "999 canali sulla FLASH tipo D- 1-x (999 canali)" + left + "999";
  const std::string warns2000 = many + "2000 canali sulla FLASH tipo 2000 Canali" + left + "2000";
  const struct {
    int maxChannels, channelCount;
    std::size_t capacity, type;
    int limit;
    std::string warning;
  } cases[] = {{999, 999, 0, 0, 999, ""},          // an ordinary save
               {999, 999, 0, 1, 1998, ""},         // into a larger receiver
               {3996, 3996, 2, 0, 999, warns999},  // into a smaller one
               {3996, 3996, 2, 2, 2000, warns2000},
               {2000, 2000, 1, 2, 2000, ""},
               {3996, 3996, 2, 1, 3996, ""},
               {0, 1998, 0, 1, 1998, ""},  // the second save writes no less than the first
               {0, 999, 1, 1, 2000, ""},
               {0, 3996, 0, 0, 999, warns999}};
  for (const auto& c : cases) {
    State state;
    state.MaxChannels = c.maxChannels;
    state.ChannelCount = c.channelCount;
    const WritePlan plan = PlanWrite(state, {c.capacity, c.type, 0});
    EXPECT_EQ(plan.maxChannels, c.limit) << c.maxChannels << " " << c.type;
    EXPECT_EQ(plan.warning, c.warning) << c.maxChannels << " " << c.type;
    EXPECT_EQ(static_cast<std::size_t>(plan.type), c.type + 1);
  }
}

}  // namespace Routines
