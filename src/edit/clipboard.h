// The channels copied or cut and not yet pasted.
#pragma once

#include "base/result.h"
#include "edit/list_operations.h"
#include "model/bouquets.h"

#include <string>

namespace Edit {

using Routines::ChannelRecord;
using Routines::TransponderRecord;

struct Clipboard {
  std::vector<ChannelRecord> channels;
  std::vector<TransponderRecord> transponders;  // of each channel, free where it had none
  std::vector<LostFavourite>
      cut;                  // entries that a cut took out, with the channel's place in `channels` as slot
  std::string symbolRates;  // the table that gives the transponders' codes their rates
  int cutNumber = 0;        // of that cut, in the state of its list
  int listNumber = 0;       // of the list they came from
  bool wasCut = false;      // they have been taken out of it

  [[nodiscard]] int Count() const { return static_cast<int>(channels.size()); }

  friend bool operator==(const Clipboard&, const Clipboard&) = default;
};

Clipboard CopyChannels(const State& state, const Slots& slots);

// Deletes the channels just copied and keeps which favourites went with them. They come back with the next paste,
// unless the cut itself has been undone before.
std::vector<LostFavourite> CutChannels(State& state, const Slots& slots, Clipboard& clipboard);

struct PasteReport {
  int withoutTransponder = 0;       // channels from another list whose transponder found no slot
  int favouritesBack = 0;           // entries of a cut that are in their lists again
  int favouritesFull = 0;           // and those whose list has no room for them
  std::vector<LostFavourite> lost;  // entries on empty slots at the list's end that were pushed out
};

enum class PasteWay { Move, Overwrite };

// Puts the clipboard's channels into slots `position` on, and brings the transponders' counts up to date. Channels
// of another list take the slot of their transponder or a free one. Where they have no room, or moving would push
// a channel out, it is an error that changes nothing.
Base::Result<PasteReport> Paste(State& state, const Clipboard& clipboard, int position, PasteWay way,
                                const Routines::BouquetTables& bouquets);

// The channels as lines of tab-separated cells, as a spreadsheet takes them; bytes of the code page.
std::string TabSeparated(const State& state, const Slots& slots);

}  // namespace Edit
