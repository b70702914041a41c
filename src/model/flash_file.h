// Flash images as files: the check of their size, and overwriting one without ever losing what it held.
#pragma once

#include "base/bytes.h"
#include "base/file.h"
#include "base/result.h"

#include <map>
#include <string>

namespace Routines {

// The image at `path`. A wrong size is an error under `title`, and so is what the system refuses.
Base::Result<Base::Bytes> ReadFlash(const std::string& path, const std::string& title);

// "Dimensione FLASH selezionata errata 524287"
Base::Error WrongFlashSize(std::uint64_t size, const std::string& title);

// Whether a flash is there, as far as that can be told without reading it; the same errors.
Base::Outcome LooksLikeFlash(const std::string& path, const std::string& title);

// What this program has written while it runs: anything else in the place of an image is somebody's work and is kept
// before it is overwritten.
struct Backups {
  std::string programFolder;  // takes the copy where the image's own folder takes no new file
  std::map<std::string, Base::Bytes> written;  // the last image by resolved path
};

struct Saved {
  // Name of the copy of the old image, with its folder where that is another one; empty where it is what this program wrote.
  std::string copy = {};
  // Name of the copy of what another program has saved there meanwhile, empty for none.
  std::string othersCopy = {};
  int removedCopies = 0;  // old ones that have given way to newer ones
};

// " - com'era prima resta in lista.dat.bak - tolte 2 copie …" of the image called `name`, UTF-8; empty where there is nothing to tell.
std::string TextOf(const Saved& saved, const std::string& name);

// Overwrites the image at `path`, which held `before` when it was read, with `after`. Where they differ outside of the
// sections that a write may change, that is an error and nothing is written. Unless the old bytes are what the last save
// wrote, they are kept as NAME.bak beside it (NAME.bak2, … where another one exists), and so is what the file holds by the
// time it is replaced, if that is something else; without those copies nothing is written. `lastLook` runs when all that is
// left to do is to take the file's place; its error is one of the whole.
Base::Result<Saved> SaveFlash(const std::string& path, Base::ByteView before, Base::ByteView after,
                              Backups& backups, const Base::LastLook& lastLook = {});

// Writes `after`, which was made of another file's `original`, to `path`, be it new or not, with the same check. Whatever it
// held is kept as above.
Base::Result<Saved> SaveFlashCopy(const std::string& path, Base::ByteView original, Base::ByteView after,
                                  Backups& backups, const Base::LastLook& lastLook = {});
// The same, but a name that is taken is an error and nothing is written.
Base::Result<Saved> SaveNewFlash(const std::string& path, Base::ByteView original, Base::ByteView after,
                                 Backups& backups, const Base::LastLook& lastLook = {});

}  // namespace Routines
