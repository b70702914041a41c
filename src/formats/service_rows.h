// The services of a list of today as rows of the SDX table.
#pragma once

#include "formats/listed_service.h"
#include "formats/satcodx.h"

#include <map>

namespace Formats {

// What the user wants of a list: as of a SatcoDX list, whose `satellite` is that of services without a position. Codes are
// the receiver's coding bytes as two digits: "24".
struct ListOptions : SdxOptions {
  // The satellites (0 is A) of the positions, in tenths of a degree, that are wanted.
  std::map<int, int> satellites;
  bool keepHd = false;  // DVB-S2, modulations other than QPSK, H.264 and HEVC
};

// All filters come before the count of the table's rows. Ends with the 4001st service that would be a row. What a service
// does not say is absent ("65535") where it is a PID, empty where it is its rate, FEC or network, "00000" where it is its
// stream; no PCR is the video's, or the audio's of a radio.
SdxTable RowsOf(ServiceReader& reader, const ListOptions& options);

// The receiver's coding byte of a service: that of the first system it has one for, else that of free services.
int CodificaOf(const ListedService& service);

}  // namespace Formats
