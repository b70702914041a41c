// Flash images out of a few bytes of fuzz input: an image that a receiver could have made, and steps that change it.
// Thousands of them a second are made so, and a change of one input byte changes what matters.
#pragma once

#include "fuzz_support.h"
#include "model/flash_image.h"

#include <string>
#include <vector>

namespace Fuzz {

// What a step does, each to the entry that directory slot 0..7 of sector 0..7 points at. An input gives a step as one
// byte (the step times 64, the sector times 8, the slot) and its operands.
enum class Step {
  Directory = 0,  // word: the directory's offset becomes this
  Length = 1,     // word: the entry's length field becomes this
  Put = 2,        // word, count, bytes: go to that many bytes behind the entry's start
  Fill = 3        // kind, count, bytes: name the entry and repeat the bytes all over its data
};

// The kinds of a fill; any number chooses one.
inline constexpr std::array<std::string_view, 4> EntryNames = {"TCS", "TPT", "Support", "EPG"};

// The images to begin with; any number chooses one.
enum class Beginning {
  Junk = 0,      // no entry anywhere
  Demo = 1,      // the demo list, spread over two channel sections
  TwoCopies = 2  // a smaller receiver's, whose second section repeats the first without its first channel
};

// A step as an input has it.
std::string StepBytes(Step step, std::size_t sector, std::size_t slot, std::size_t operand,
                      std::string_view bytes = {});

class HostileFlash {
 public:
  HostileFlash();

  // The image that the rest of an input describes; it stands until the next call.
  Base::ByteView Make(Input& input);

 private:
  void Take(Input& input);
  void Put(std::size_t sector, std::size_t at, Base::ByteView bytes);

  std::vector<Base::Bytes> beginnings_;
  std::size_t beginning_ = 0;
  Base::Bytes image_;
  std::array<bool, Routines::FlashSize / Routines::SectorSize> touched_{};
};

// What an image's layout says, worked out from its bytes alone.
struct Layout {
  std::vector<Routines::Range> mayChange;  // by a write; sorted, none of them touching another
  std::vector<Routines::Range> channels, transponders,
      favourites;                                               // room of each such section, in their order
  std::size_t favouritesSize = Routines::NormalFavouritesSize;  // after a load
  int transponderCount = -1;                                    // of the last section; -1 without any
  // No entry runs into another one or has room left for a record more, so that saving a list into the image that it
  // was loaded from must keep all of it.
  bool plain = true;
};

Layout LayoutOf(Base::ByteView image);

// Whether the two differ only in `mayChange`.
bool DifferOnlyIn(const std::vector<Routines::Range>& mayChange, Base::ByteView one, Base::ByteView other);

}  // namespace Fuzz
