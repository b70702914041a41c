// Flash images as files: the check of their size, and overwriting one without ever losing what it held.
#pragma once

#include "base/bytes.h"
#include "base/result.h"

#include <set>
#include <string>

namespace Routines {

// The image at `path`. A wrong size is an error under `title`, and so is what the system refuses.
Base::Result<Base::Bytes> ReadFlash(const std::string& path, const std::string& title);

// "Dimensione FLASH selezionata errata 524287"
Base::Error WrongFlashSize(std::uint64_t size, const std::string& title);

// The copies of overwritten images made while the program runs: one for each image, before its first
// overwriting.
struct Backups {
  std::string programFolder;    // takes the copy where the image's own folder takes no new file
  std::set<std::string> taken;  // resolved paths
};

// Overwrites the image at `path`, which holds `before`, with `after`. Its first time in a session the old
// bytes are kept as NAME.bak beside it (NAME.bak2, … where another one exists); without that copy nothing is
// written.
Base::Outcome SaveFlash(const std::string& path, Base::ByteView before, Base::ByteView after,
                        Backups& backups);

}  // namespace Routines
