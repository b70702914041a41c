#include "base/text.h"
#include "formats/text_columns.h"
#include "formats/text_format.h"
#include "model/favourites.h"
#include "model/symbol_rates.h"

#include <algorithm>
#include <array>
#include <span>

namespace Formats {
namespace {

using namespace Routines;
using namespace TextColumns;

constexpr std::string_view LineEnd = "\r\n";
// More than a line takes, as a rule: the text is put together without being moved.
constexpr std::size_t LineRoom = 72;

bool EndsLine(char byte) { return byte == '\r' || byte == '\n'; }
// In favourites a bar makes a line look like a list's header.
bool EndsEntry(char byte) { return byte == '|' || (byte >= 0 && byte < ' '); }

// Bytes that are harmful in some line. Hardly any text has one, which takes no branch for each of its bytes to see.
constexpr auto HarmfulBytes = [] {
  std::array<bool, 256> harmful{};
  std::fill_n(harmful.begin(), ' ', true);
  harmful['['] = harmful['|'] = true;
  return harmful;
}();

// Makes blanks of harmful bytes, and of brackets that would end a section.
template <class Harmful>
void BlankOut(std::span<char> text, Harmful harmful) {
  bool any = false;
  for (const char c : text) any |= HarmfulBytes[static_cast<unsigned char>(c)];
  if (!any) return;
  std::replace_if(text.begin(), text.end(), harmful, ' ');
  const std::string_view view(text.data(), text.size());
  for (const std::string_view end : {ChannelsEnd, TranspondersEnd, FavouritesEnd}) {
    for (std::size_t at = view.find(end); at != std::string_view::npos; at = view.find(end)) text[at] = ' ';
  }
}

// Puts a text into room for it.
template <class Harmful>
void PutHarmless(char* room, std::string_view text, Harmful harmful) {
  std::copy(text.begin(), text.end(), room);
  BlankOut({room, text.size()}, harmful);
}

// The first columns of a line, all blank.
template <std::size_t Width>
constexpr auto Blank = [] {
  std::array<char, Width> line{};
  line.fill(' ');
  return line;
}();

void AddChannel(std::string& text, const ChannelRecord& channel, int slot) {
  auto columns = Blank<ChannelLine::Width>;
  char* const line = columns.data();
  Base::PutNumber(line, ChannelLine::Slot, static_cast<std::uint32_t>(slot));
  PutHarmless(line + ChannelLine::Name.first - 1, channel.Name(), EndsLine);
  ForEach<ChannelLine::Numbers>(
      [&](const auto& number) { Base::PutNumber(line, number.column, Get(channel, number.field)); });
  Base::PutHexByte(line, ChannelLine::Coding, Get(channel, ChannelField::Flags));
  line[ChannelLine::Active.first - 1] = Get(channel, ChannelField::Active) != 0 ? 'S' : 'N';
  text.append(line, columns.size()).append(LineEnd);
}

void AddTransponder(std::string& text, const State& state, const TransponderRow& row, int number) {
  const TransponderRecord& record = row.record;
  auto columns = Blank<TransponderLine::Width>;
  char* const line = columns.data();
  Base::PutNumber(line, TransponderLine::Number, static_cast<std::uint32_t>(number));
  Base::PutNumber(line, TransponderLine::Frequency, static_cast<std::uint32_t>(FrequencyMHz(record)));
  ForEach<TransponderLine::Numbers>(
      [&](const auto& field) { Base::PutNumber(line, field.column, Get(record, field.field)); });
  Base::Put(line, TransponderLine::Rate,
            SymbolRateText(state.SymbolRateTable, Get(record, TransponderField::SymbolRate)));
  Base::Put(line, TransponderLine::Polarisation, Get(record, TransponderField::Horizontal) != 0 ? "H" : "V");
  Base::Put(line, TransponderLine::Tone, Get(record, TransponderField::HighBand) != 0 ? "On" : "Off");
  Base::Put(line, TransponderLine::SatelliteWord, " SAT ");
  Base::Put(line, TransponderLine::Satellite, SatelliteLabel(record).substr(4));
  PutHarmless(line + TransponderLine::Bouquet.first - 1, row.BouquetName(), EndsLine);
  // "Auto" is one letter longer than its column and pushes everything behind it one place to the right: other
  // programs that read such files expect it there.
  constexpr std::size_t Fec = TransponderLine::Fec.first - 1, BehindFec = Fec + TransponderLine::Fec.width;
  text.append(line, Fec)
      .append(FecText(record))
      .append(line + BehindFec, columns.size() - BehindFec)
      .append(LineEnd);
}

void AddFavourite(std::string& text, const ChannelRecord& channel, int slot) {
  constexpr std::size_t Name = FavouriteLine::Slot.width + 1;
  auto columns = Blank<Name + ChannelRecord::NameSize>;
  Base::PutNumber(columns.data(), FavouriteLine::Slot, static_cast<std::uint32_t>(slot));
  const std::string_view name = channel.Name();
  PutHarmless(columns.data() + Name, name, EndsEntry);
  text.append(columns.data(), Name + name.size()).append(LineEnd);
}

void AddFavourites(std::string& text, const State& state) {
  text.append("[PREFERITI]").append(LineEnd);
  for (std::size_t list = 0; list < FavouriteLists; ++list) {
    std::string name = FavouriteNameOf(state.FavouritesBlock, list);
    BlankOut(name, EndsLine);
    text.append(Base::ZeroPadded(static_cast<int>(list), 2)).append("| ").append(name).append(LineEnd);
    for (const int slot : FavouriteEntriesOf(state.FavouritesBlock, list)) {
      // What is larger is junk, and too long for its column.
      if (slot <= LastChannelSlot) AddFavourite(text, state.Channel(slot), slot);
    }
  }
  text.append("[END PREFERITI]").append(LineEnd);
}

}  // namespace

std::string WriteText(const State& state) {
  const std::string channels = Base::ZeroPadded(state.ChannelCount, 4).append(LineEnd);
  const std::string transponders = Base::ZeroPadded(state.TransponderCount, 4).append(LineEnd);
  std::string text;
  text.reserve(LineRoom * (static_cast<std::size_t>(UsedChannels(state) + UsedTransponders(state)) +
                           FavouriteLists * FavouriteEntries));
  text = "[CANALI] " + channels;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    const auto nameEnd = channel.bytes.begin() + ChannelRecord::NameSize;
    if (std::any_of(channel.bytes.begin(), nameEnd, [](Base::Byte byte) { return byte != 0; })) {
      AddChannel(text, channel, slot);
    }
  }
  text += "[END CANALI] " + channels + "[TRANSPONDERS] " + transponders;
  for (int number = 1; number <= state.TransponderCount; ++number) {
    const TransponderRow& row = state.Transponder(number);
    if (!IsFree(row.record)) AddTransponder(text, state, row, number);
  }
  text += "[END TRANSPONDERS] " + transponders;
  if (!IsBlankFavourites(state.FavouritesBlock)) AddFavourites(text, state);
  return text;
}

}  // namespace Formats
