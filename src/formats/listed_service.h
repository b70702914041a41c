// A service as the channel lists of today describe it, whatever their layout, and the way through such a list.
#pragma once

#include "model/listed_transponder.h"
#include "model/sdx_fields.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Formats {

using Routines::SdxField;
using Routines::SdxFields;

using Routines::Delivery;
using Routines::ListedTransponder;
using Routines::Modulation;
using Routines::NotSaid;
using Routines::Polarisation;

enum class Video : std::uint8_t { Unknown, Mpeg2, H264, Hevc, Other };

struct ListedService {
  ListedTransponder transponder;
  std::string name;  // this and the provider are bytes of the code page without control characters
  std::string provider;
  int number = 0;  // of the channel in its list; 0 where the list gives none
  int sid = NotSaid;
  // 0 where the file says that there is none.
  int vpid = NotSaid;
  int apid = NotSaid;
  int pcr = NotSaid;  // most files say it only where it is not the video's
  Video video = Video::Unknown;
  char type = 0;           // 'T' television, 'R' radio, 'S' data; 0 where nothing tells
  std::vector<int> caids;  // of the systems that encrypt it
  bool valid = true;       // no number was one that could not be read
};

// Goes through a list from its front to its end, each service once.
class ServiceReader {
 public:
  virtual ~ServiceReader() = default;

  // Goes to the next service; false behind the last one.
  bool Read() {
    if (!Next()) return false;
    TakeStreams();
    TakeIdentity();
    return true;
  }
  // The one it went to last.
  [[nodiscard]] const ListedService& Service() const { return service_; }

  // Read in three steps, so that a service which nobody wants costs no more than it takes to see that. Next gives the
  // transponder without its ids; TakeStreams PIDs, video, type and encryption; TakeIdentity ids, names and number, behind
  // which it is known whether all is valid. Each of the latter two at most once behind a Next, in this order.
  virtual bool Next() = 0;
  virtual void TakeStreams() = 0;
  virtual void TakeIdentity() = 0;
  // Whether the transponder that Next gave is, but for its ids, the one before: neighbours mostly share theirs.
  [[nodiscard]] bool SameTransponder() const { return sameTransponder_; }

  // What lists of this format never say.
  [[nodiscard]] virtual SdxFields Lacking() const { return {}; }

  // What stood so far where a service belongs and is none.
  [[nodiscard]] int Unreadable() const { return unreadable_; }

 protected:
  ServiceReader() = default;
  ServiceReader(const ServiceReader&) = default;
  ServiceReader& operator=(const ServiceReader&) = default;

  ListedService service_;
  bool sameTransponder_ = false;
  int unreadable_ = 0;
};

struct TransponderList {
  std::string satellite;        // as the file names it, bytes of the code page
  std::optional<int> position;  // of the whole file, as above
  std::vector<ListedTransponder> transponders;
  int unreadable = 0;  // lines or blocks that should be transponders and are none
};

}  // namespace Formats
