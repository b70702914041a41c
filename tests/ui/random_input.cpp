#include "ui/random_input.h"

#include "image_builder.h"
#include "model/routines.h"

namespace Ui {

Base::Bytes RandomImage(Random& random) {
  Samples::ImageBuilder image(random.Next());
  std::vector<Routines::TransponderRecord> transponders;
  for (int i = random.Below(300); i > 0; --i) {
    auto& record = transponders.emplace_back(
        Samples::MakeTransponder(10600 + random.Below(2300), random.Chance(50), random.Below(4),
                                 random.Below(16), random.Below(7), random.Below(65536), random.Below(400)));
    if (random.Chance(5)) random.Fill(record);
  }
  image.PutRecords(1, 1, 16 + static_cast<std::size_t>(random.Below(3000)), "TPT", transponders);
  const int most = random.Chance(30) ? 2000 : 60;
  for (std::size_t sector = 2; sector < 5; ++sector) {
    std::vector<Routines::ChannelRecord> channels;
    for (int i = random.Below(most); i > 0; --i) {
      auto& record = channels.emplace_back(Samples::MakeChannel(
          "C" + std::to_string(random.Below(200)), random.Below(256), random.Below(500),
          random.Chance(30) ? 65535 : random.Below(9000), random.Chance(20) ? 65535 : random.Below(9000)));
      if (random.Chance(5)) random.Fill(record);
      if (random.Chance(10)) record = {};
    }
    image.PutRecords(sector, 0, 16 + static_cast<std::size_t>(random.Below(4000)), "TCS", channels);
  }
  Base::Bytes block(random.Chance(80) ? Routines::NormalFavouritesSize
                                      : static_cast<std::size_t>(random.Below(6000)));
  for (std::size_t at = 0; at + 1 < block.size(); at += 2) {
    if (random.Chance(20)) continue;
    const int slot = random.Below(random.Chance(90) ? 3 * most : 65536);
    block[at] = static_cast<Base::Byte>(slot >> 8);
    block[at + 1] = static_cast<Base::Byte>(slot & 255);
  }
  if (random.Chance(85)) image.PutFavourites(5, 2, 100, block, static_cast<std::size_t>(random.Below(500)));
  if (random.Chance(20))
    image.SetDirectory(1 + static_cast<std::size_t>(random.Below(8)), 5, random.Next() & 65535U);
  if (random.Chance(20)) image.SetLength(2, 16, random.Next() & 65535U);
  return image.Image();
}

}  // namespace Ui
