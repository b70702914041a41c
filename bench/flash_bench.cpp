// Work on a flash image beside the least that any program must do for it: copying its bytes once.
#include "edit/recovery.h"
#include "image_builder.h"
#include "model/flash_loader.h"
#include "model/flash_writer.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace Routines;

// A full list: 3996 channels in two sections and 254 transponders.
const Base::Bytes& FullImage() {
  static const Base::Bytes image = [] {
    std::vector<ChannelRecord> channels;
    for (int i = 1; i <= 2000; ++i)
      channels.push_back(Samples::MakeChannel("Canale", i % 254 + 1, i, 100, 200));
    std::vector<TransponderRecord> transponders;
    for (int i = 0; i < 254; ++i)
      transponders.push_back(Samples::MakeTransponder(10700 + i * 8, i % 2 == 0, 0, 1, 2));
    Samples::ImageBuilder builder(1);
    builder.PutRecords(1, 0, 16, "TCS", channels).PutRecords(2, 0, 16, "TCS", channels);
    builder.PutRecords(3, 0, 16, "TPT", transponders);
    builder.PutFavourites(4, 0, 16, Base::Bytes(NormalFavouritesSize, 1), 0);
    return builder.Image();
  }();
  return image;
}

void CopyImage(benchmark::State& run) {
  Base::Bytes copy(FlashSize);
  for (auto _ : run) {
    std::copy(FullImage().begin(), FullImage().end(), copy.begin());
    benchmark::DoNotOptimize(copy.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(CopyImage);

void LoadImage(benchmark::State& run) {
  const auto state = std::make_unique<State>();
  for (auto _ : run) {
    LoadFlash(*state, FullImage(), LastChannelSlot, 0, {});
    benchmark::DoNotOptimize(state.get());
  }
}
BENCHMARK(LoadImage);

void PatchImage(benchmark::State& run) {
  const auto state = std::make_unique<State>();
  LoadFlash(*state, FullImage(), LastChannelSlot, 0, {});
  for (auto _ : run) {
    auto patched = PatchFlash(*state, FullImage(), {FlashType::Two, LastChannelSlot, ""});
    benchmark::DoNotOptimize(patched.image.data());
  }
}
BENCHMARK(PatchImage);

// What the window does itself each time it puts unsaved work aside; the disk is another thread's business.
void EncodeUnsavedWork(benchmark::State& run) {
  const auto state = std::make_unique<State>();
  LoadFlash(*state, FullImage(), LastChannelSlot, 0, {});
  for (auto _ : run) {
    auto file = Edit::EncodeRecovery(*state, {}, {});
    benchmark::DoNotOptimize(file.data());
  }
}
BENCHMARK(EncodeUnsavedWork);

}  // namespace
