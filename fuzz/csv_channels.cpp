// Reading the channel list for spreadsheets back, and what is read beside the list that it came from.
#include "formats/csv_reader.h"
#include "formats/foreign_text.h"
#include "fuzz_support.h"
#include "review/compare.h"

using namespace Fuzz;
using namespace Formats;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const auto text = DecodeForeign(input.Text(), "");
  if (!text) return 0;
  static const std::unique_ptr<Routines::State> State = DemoList();
  const auto read = ReadChannelsCsv(text->text, *State);
  if (!read) return 0;
  Require(read->list.Count() <= Routines::LastChannelSlot + text->lines,
          "no more channels than numbers and lines");
  for (const Routines::OtherChannel& channel : read->list.channels) {
    Require(channel.transponder < static_cast<int>(read->list.transponders.size()),
            "each has a transponder of the list");
  }
  const Review::Comparison found = Review::Compare(*State, read->list);
  for (const Review::Difference& difference : found.differences)
    static_cast<void>(DetailsOf(*State, read->list, difference));
  return 0;
}
