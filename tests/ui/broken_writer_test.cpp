// A writer that goes wrong, in the place of the real one, must not get a byte onto the disk.
#include "model/flash_image.h"
#include "model/flash_writer.h"
#include "ui/window_fixture.h"

namespace {

using namespace Routines;

std::optional<std::size_t> spoiltByte;

}  // namespace

// The linker sends the window's calls of PatchFlash here.
PatchedFlash RealPatchFlash(const State& state, Base::ByteView original,
                            const WritePlan& plan) __asm__("__real_" PATCH_FLASH_SYMBOL);
PatchedFlash BrokenPatchFlash(const State& state, Base::ByteView original,
                              const WritePlan& plan) __asm__("__wrap_" PATCH_FLASH_SYMBOL);

PatchedFlash BrokenPatchFlash(const State& state, Base::ByteView original, const WritePlan& plan) {
  PatchedFlash patched = RealPatchFlash(state, original, plan);
  if (spoiltByte) patched.image[*spoiltByte] ^= 1U;
  return patched;
}

namespace Ui {

TEST_F(Window, AWriterThatLeavesTheSectionsIsStopped) {
  const std::string copy = folder_.Write("copia.dat", Contents(flash_));
  SaveAs(copy, 647);
  Delete(1, 2);
  const Routines::State before = List();
  const Base::Bytes onDisk = Contents(copy);
  // A directory, and the last byte of the image.
  for (const std::size_t place : {std::size_t{2}, Routines::FlashSize - 1}) {
    spoiltByte = place;
    Tells("Salva", "Impossibile scrivere copia.dat: la modifica esce dalle sezioni conosciute",
          "Errore FLASH di Output");
    EXPECT_EQ(Contents(copy), onDisk);
    EXPECT_TRUE(List() == before);
    EXPECT_EQ(driver_->TextOf("ModificheNonSalvate"), "Modifiche non salvate");
  }
  EXPECT_FALSE(std::filesystem::exists(copy + ".bak2"));
  spoiltByte.reset();
  Summary(*driver_, 2, 645, true);
  ASSERT_TRUE(driver_->Choose("Salva"));
  EXPECT_NE(Contents(copy), onDisk);
}

}  // namespace Ui
