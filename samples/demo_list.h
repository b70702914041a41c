// The contents of the demo flash: transponders, channels and favourites lists.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Samples {

struct DemoTransponder {
  int frequencyMHz;
  bool horizontal;
  int symbolRate;  // in kBd
  int fecCode;     // 0 1/2, 1 2/3, 2 3/4, 3 5/6, 4 7/8, 5 auto
  int tid;
  int nid;
  int satellite;  // 0 Hot Bird 13E (SAT A), 1 Astra 19.2E (SAT B)
};

struct DemoChannel {
  std::string name;  // UTF-8, at most 16 characters, all of them in Windows-1252
  int transponder;   // from 1, a place in DemoTransponders()
  int flags;         // coding byte; bit 2 tells an active channel
  int sid;
  int vpid;  // this and the following PIDs: 65535 when absent
  int apid;
  int aecm;
  int vecm;
  int pcr;
};

struct DemoFavourites {
  std::string name;        // UTF-8, at most 8 characters
  std::vector<int> slots;  // channel numbers
};

const std::vector<DemoTransponder>& DemoTransponders();

// Entry 0 is channel number 1; an empty entry is a free place in the list. Every call gives the same list.
std::vector<std::optional<DemoChannel>> DemoChannels();

// Eight lists, none of which names a free place.
std::vector<DemoFavourites> DemoFavouriteLists();

}  // namespace Samples
