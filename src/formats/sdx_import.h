// Carrying rows of the SDX table into the channel list, with the transponders they need.
#pragma once

#include "formats/sdx_table.h"
#include "model/bouquets.h"

#include <array>
#include <vector>

namespace Formats {

// Whether a row can have a transponder: its frequency does not lie below every local oscillator, nor above what a
// record can hold. A row of frequency 0 is an empty one, and one from a flash brings its transponder along.
bool InBand(const SdxRow& row);
// Whether it is no empty one.
bool IsChannel(const SdxRow& row);

// The records that a row becomes; the channel's without the number of its transponder. `rates` is the symbol-rate table
// that gives the rate its code, 0 where it has none for it.
Routines::ChannelRecord ChannelRecordOf(const SdxRow& row);
Routines::TransponderRecord TransponderRecordOf(const SdxRow& row, std::string_view rates);
std::optional<std::uint32_t> RateCodeOf(const SdxRow& row, std::string_view rates);

// A service of the loaded list: satellite (0 is A), transport stream and service id; and its slot.
struct KnownService {
  std::array<int, 3> service{};
  int slot = 0;
};

// Each channel whose transponder the list has.
std::vector<KnownService> KnownServices(const Routines::State& state);

// For each row of a table the first slot of the list that has its service, 0 where none has it: by satellite, transport
// stream and service id, and by satellite, transponder and service id where the row does not say its stream.
std::vector<int> SlotsWith(const Routines::State& state, const std::vector<SdxRow>& rows);

// The slots that `count` rows take: from `start` on, as far as the list goes, or its empty ones.
std::vector<int> SlotsFrom(const Routines::State& state, int start, int count);
std::vector<int> EmptySlots(const Routines::State& state, int count);

// What stands in slots before rows are put there: channels, and favourites entries of them.
struct Overwritten {
  int channels = 0;
  int favourites = 0;

  // "261 canali, 20 voci di preferiti"; empty where there is nothing.
  [[nodiscard]] std::string Text() const;
};

Overwritten OverwrittenBy(const Routines::State& state, const std::vector<int>& slots);

class SdxImport {
 public:
  // Works on `state`, whose symbol-rate table gives the rates their codes.
  SdxImport(Routines::State& state, const Routines::BouquetTables& bouquets)
      : state_(state), bouquets_(bouquets) {}
  SdxImport(Routines::State& state, Routines::BouquetTables&& bouquets) = delete;  // they must stay

  // Puts a row into a slot of the channel table in the place of what is there. `position` is the row's number in the
  // SDX table, from 1, for messages. A row of frequency 0 empties the slot.
  void Put(const SdxRow& row, int slot, int position);

  // The sentence to show once when rows found no transponder and went to the last one; else empty.
  [[nodiscard]] const std::string& Message() const { return message_; }
  // New transponders whose symbol rate has no code; one from a flash keeps the code it had there.
  [[nodiscard]] int UnknownRates() const { return unknownRates_; }

 private:
  int TransponderOf(const SdxRow& row, int position);

  Routines::State& state_;
  const Routines::BouquetTables& bouquets_;
  std::string message_;
  int unknownRates_ = 0;
};

}  // namespace Formats
