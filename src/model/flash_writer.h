// Patching the tables into an image of the receiver. Only the data of its channel, transponder and favourites
// sections change; every other byte stays as the receiver made it.
#pragma once

#include "model/flash_image.h"
#include "model/routines.h"
#include "model/write_settings.h"

#include <string>

namespace Routines {

struct PatchedFlash {
  Base::Bytes image;
  int channelSections = 0;
  bool favouritesWritten = false;
  int favouritesCleared = 0;  // bytes behind a short block that held something and are zero now
};

// `original` has FlashSize bytes. Slots 1..plan.maxChannels are written as far as the image's sections reach.
PatchedFlash PatchFlash(const State& state, Base::ByteView original, const WritePlan& plan);

// Whether two images differ only where a write may change one: from the start of a channel or transponder
// section's data to the section's limit, and in the favourites area. No where one of them is no image.
bool DiffersOnlyInSections(Base::ByteView original, Base::ByteView patched);

// "2 Sezioni TCS per 931 Canali effettivi" and whether the favourites were written, for the box after a
// write.
std::string WriteSummary(const State& state, const PatchedFlash& patched);

// What loading a written image would not give back.
struct Unwritten {
  std::vector<int> channels;       // slots whose channel is missing or different
  std::vector<int> extraChannels;  // empty slots of the list where the image has a channel
  int transponders = 0;            // that are missing, different, or there where the list has none
  bool favourites = false;
  bool favouriteNames = false;

  [[nodiscard]] bool Nothing() const {
    return channels.empty() && extraChannels.empty() && transponders == 0 && !favourites && !favouriteNames;
  }
  // "344 canali non scritti, preferiti non scritti"; empty when nothing is missing.
  [[nodiscard]] std::string Text() const;
};

// ": 344 canali non scritti, 16 byte azzerati in fondo all'area dei preferiti" behind an image's name, UTF-8; empty where there
// is nothing to tell.
std::string TextOf(const PatchedFlash& patched, const Unwritten& unwritten);

// `written` is loaded as the receiver that `plan` was made for does, up to the channels it can take. Whatever its
// type, the favourites count too, unless the list has none.
Unwritten FindUnwritten(const State& state, Base::ByteView written, const WritePlan& plan);

}  // namespace Routines
