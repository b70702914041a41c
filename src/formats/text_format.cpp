#include "formats/text_format.h"

#include "base/code_page.h"
#include "base/columns.h"
#include "base/text.h"
#include "model/favourites.h"
#include "model/symbol_rates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <span>
#include <vector>

namespace Formats {
namespace {

using namespace Routines;
using Base::Column;
using Base::Cut;

// The columns of each kind of line, for the writer and the reader alike.
namespace ChannelLine {
constexpr Column Slot{1, 4}, Name{6, 16}, Coding{63, 2}, Active{66, 1};
constexpr std::size_t Width = 66;
constexpr struct {
  Column column;
  Field<ChannelRecord> field;
} Numbers[] = {{{23, 3}, ChannelField::Transponder}, {{27, 5}, ChannelField::Sid},
               {{33, 5}, ChannelField::Vpid},        {{39, 5}, ChannelField::Apid},
               {{45, 5}, ChannelField::Aecm},        {{51, 5}, ChannelField::Vecm},
               {{57, 5}, ChannelField::Pcr}};
}  // namespace ChannelLine

namespace TransponderLine {
constexpr Column Number{1, 3}, Frequency{5, 5}, Rate{29, 5}, Fec{35, 3}, Polarisation{39, 1}, Tone{41, 3},
    ToneOn{41, 2}, SatelliteWord{44, 5}, Satellite{49, 1}, Bouquet{51, Base::ToLineEnd};
constexpr std::size_t Width = Bouquet.first - 1 + TransponderRow::BouquetNameSize;
constexpr struct {
  Column column;
  Field<TransponderRecord> field;
} Numbers[] = {{{11, 5}, TransponderField::Tid},
               {{17, 5}, TransponderField::Nid},
               {{23, 5}, TransponderField::ChannelCount}};
}  // namespace TransponderLine

namespace FavouriteLine {
constexpr Column List{1, 2}, Name{5, Base::ToLineEnd}, Slot{1, 4};
}  // namespace FavouriteLine

constexpr Column ChannelCountColumn{10, Base::ToLineEnd};
constexpr Column TransponderCountColumn{16, Base::ToLineEnd};
constexpr std::string_view LineEnd = "\r\n";
// More than a line takes, as a rule: the text is put together without being moved.
constexpr std::size_t LineRoom = 72;

// What a favourites block measures after an import: the receivers' first kind had no more.
constexpr std::size_t ImportedFavouritesSize = 2291;

bool EndsLine(char byte) { return byte == '\r' || byte == '\n'; }
// In favourites a bar makes a line look like a list's header.
bool EndsEntry(char byte) { return byte == '|' || (byte >= 0 && byte < ' '); }

// Hands over each entry of a table with its numbers known when the program is built, which makes a line's columns
// as cheap as if they were spelled out.
template <const auto& Table, class Work>
void ForEach(Work work) {
  [&work]<std::size_t... Index>(std::index_sequence<Index...>) { (work(Table[Index]), ...); }
  (std::make_index_sequence<std::size(Table)>());
}

// Bytes that are harmful in some line. Hardly any text has one, which takes no branch for each of its bytes to see.
constexpr auto HarmfulBytes = [] {
  std::array<bool, 256> harmful{};
  std::fill_n(harmful.begin(), ' ', true);
  harmful['['] = harmful['|'] = true;
  return harmful;
}();

// Makes blanks of harmful bytes, and of the bracket that would end a section.
template <class Harmful>
void BlankOut(std::span<char> text, Harmful harmful) {
  bool any = false;
  for (const char c : text) any |= HarmfulBytes[static_cast<unsigned char>(c)];
  if (!any) return;
  std::replace_if(text.begin(), text.end(), harmful, ' ');
  const std::string_view view(text.data(), text.size());
  for (std::size_t at = view.find("[END "); at != std::string_view::npos; at = view.find("[END "))
    text[at] = ' ';
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

// The leading digits of a column of at most five places; nothing when the number is larger than `most`.
inline std::optional<std::uint32_t> NumberIn(std::string_view line, const Column& column,
                                             std::uint32_t most) {
  // Nearly every number fills its column: such a one is read without a branch for each of its places.
  std::uint32_t value = 0, digits = 0;
  bool whole = line.size() >= column.first - 1 + column.width;
  if (whole) {
    for (std::size_t at = 0; at < column.width; ++at) {
      const unsigned digit = Base::DigitValues[static_cast<unsigned char>(line[column.first - 1 + at])];
      digits |= digit;
      value = value * 10 + digit;
    }
    whole = digits <= 0xF;
  }
  if (!whole) value = Base::ColumnNumber(Cut(line, column));
  return value > most ? std::nullopt : std::optional(value);
}

// A field whose number is too large keeps what it has. Spelled out at each of its few callers, where the columns are
// known, it takes half the time.
template <class Record>
inline void SetNumber(Record& record, const Field<Record>& field, std::string_view line,
                      const Column& column) {
  if (const auto value = NumberIn(line, column, field.Mask() >> field.shift)) Set(record, field, *value);
}

int CountIn(std::string_view line, const Column& column, int most) {
  return Base::LeadingCount(Cut(line, column), most);
}

// The coding column is written in hexadecimal and read digit by digit as decimal, letters as 0 and "A4" apart. A channel
// that is not active loses its coding.
std::uint32_t CodingTaken(std::string_view coding, bool active) {
  if (!active) return 0;
  if (coding == "A4") return 0xA4;
  const auto digit = [&coding](std::size_t place) {
    return place < coding.size() && coding[place] >= '0' && coding[place] <= '9'
               ? static_cast<std::uint32_t>(coding[place] - '0')
               : 0U;
  };
  return 16 * digit(0) + digit(1);
}

constexpr std::uint32_t ActiveBit = ChannelField::Active.Mask();

void Compare(std::uint32_t meant, std::uint32_t taken, CodingChanges& changes) {
  if ((meant & ~taken & ActiveBit) != 0) {
    ++changes.inactive;
  } else if (meant != taken) {
    ++changes.codings;
  }
}

class Reader {
 public:
  Reader(State& state, std::string_view text, const BouquetTables& bouquets)
      : state_(state), rest_(text), bouquets_(bouquets) {}

  // Reads section by section; the name of the one that is broken, or nothing.
  const char* Run(ImportReport& report) {
    if (!ReadChannels()) return "Canali";
    if (!ReadTransponders(report)) return "Transponders";
    report.listRead = true;
    return ReadFavourites() ? nullptr : "PREFERITI";
  }

  [[nodiscard]] bool Changed() const { return changed_; }
  [[nodiscard]] const CodingChanges& Codings() const { return codings_; }

 private:
  // The next line, when it has the marker in it.
  std::optional<std::string_view> Header(std::string_view marker) {
    std::string_view rest = rest_;
    const std::string_view line = Base::TakeLine(rest);
    if (line.find(marker) == std::string_view::npos) return std::nullopt;
    rest_ = rest;
    return line;
  }

  // Hands every line up to the one with the marker in it to `take`; false when the file ends before it.
  template <class Take>
  bool Lines(std::string_view marker, Take take) {
    // No line end is in it, so it is looked for in all of them at once.
    const std::size_t end = rest_.find(marker);
    const bool ended = end != std::string_view::npos;
    std::string_view lines = ended ? rest_.substr(0, rest_.rfind('\n', end) + 1) : rest_;
    rest_.remove_prefix(lines.size());
    Base::TakeLine(rest_);
    while (!lines.empty()) take(Base::TakeLine(lines));
    return ended;
  }

  bool ReadChannels() {
    const auto header = Header("[CANALI]");
    if (!header) return false;
    changed_ = true;
    state_.MaxChannels = state_.ChannelCount = CountIn(*header, ChannelCountColumn, LastChannelSlot);
    std::fill_n(state_.ChannelTable.begin() + 1, state_.ChannelCount, ChannelRecord{});
    return Lines("[END CANALI]", [this](std::string_view line) { TakeChannel(line); });
  }

  void TakeChannel(std::string_view line) {
    const auto slot = NumberIn(line, ChannelLine::Slot, LastChannelSlot);
    if (!slot) return;
    ChannelRecord& channel = state_.Channel(*slot);
    const std::string_view name = Cut(line, ChannelLine::Name);
    std::copy(name.begin(), name.end(), channel.bytes.begin());
    ForEach<ChannelLine::Numbers>(
        [&](const auto& number) { SetNumber(channel, number.field, line, number.column); });
    const std::string_view coding = Cut(line, ChannelLine::Coding);
    const bool active = Cut(line, ChannelLine::Active) != "N";
    const std::uint32_t taken = CodingTaken(coding, active);
    Set(channel, ChannelField::Flags, taken);
    std::uint32_t meant = 0;
    const auto end = std::from_chars(coding.data(), coding.data() + coding.size(), meant, 16).ptr;
    if (end == coding.data() + 2) Compare(active ? meant : meant & ~ActiveBit, taken, codings_);
  }

  bool ReadTransponders(ImportReport& report) {
    const auto header = Header("[TRANSPONDERS]");
    if (!header) return false;
    report.transpondersRead = true;
    state_.TransponderCount = CountIn(*header, TransponderCountColumn, LastTransponderSlot);
    for (std::size_t slot = 1; slot < state_.TransponderTable.size(); ++slot) {
      state_.Transponder(slot).record = {};
    }
    const bool ended =
        Lines("[END TRANSPONDERS]", [&](std::string_view line) { TakeTransponder(line, report); });
    for (TransponderRow& row : state_.TransponderTable) FindCode(row);
    return ended;
  }

  // The file's bouquet names stay; their codes are the ones in use here.
  void FindCode(TransponderRow& row) const {
    const Bouquet* bouquet = FindBouquet(bouquets_, FrequencyMHz(row.record), SatelliteLabel(row.record));
    row.SetBouquet(std::string(row.BouquetName()), bouquet == nullptr ? "" : bouquet->code);
  }

  void TakeTransponder(std::string_view line, ImportReport& report) {
    const auto slot = NumberIn(line, TransponderLine::Number, LastTransponderSlot);
    if (!slot) return;
    TransponderRow& row = state_.Transponder(*slot);
    TransponderRecord& record = row.record;
    const std::int64_t oscillator = Cut(line, TransponderLine::ToneOn) == "On" ? 10600 : 9750;
    const std::int64_t hertz =
        (Base::LeadingNumber(Cut(line, TransponderLine::Frequency)) - oscillator) * 1000000;
    if (hertz > 0 && hertz <= 0xFFFFFFFF)
      Set(record, TransponderField::Frequency, static_cast<std::uint32_t>(hertz));
    for (const auto& number : TransponderLine::Numbers) SetNumber(record, number.field, line, number.column);
    const std::string_view rate = Cut(line, TransponderLine::Rate);
    const std::size_t found = state_.SymbolRateTable.find(rate);
    if (found == std::string::npos) ++report.unknownRates;
    Set(record, TransponderField::SymbolRate,
        found == std::string::npos ? 0 : static_cast<std::uint32_t>((found + 1) / SymbolRateCell));
    Set(record, TransponderField::Fec, FecCode(Cut(line, TransponderLine::Fec)));
    TakeTuning(line, record);
    row.SetBouquet(Base::Trimmed(Cut(line, TransponderLine::Bouquet)), row.BouquetCode());
  }

  static std::uint32_t FecCode(std::string_view text) {
    TransponderRecord record;
    for (std::uint32_t code = 0; code < 5; ++code) {
      Set(record, TransponderField::Fec, code);
      if (FecText(record) == text) return code;
    }
    return 5;
  }

  // The byte as a sum; a satellite letter that makes it overflow leaves it cleared.
  static void TakeTuning(std::string_view line, TransponderRecord& record) {
    const std::string_view satellite = Cut(line, TransponderLine::Satellite);
    const int letter = satellite.empty() ? 0 : static_cast<unsigned char>(satellite[0]);
    const int flags = (Base::Trimmed(Cut(line, TransponderLine::Tone)) == "On" ? 1 : 0) +
                      (Cut(line, TransponderLine::Polarisation) == "H" ? 2 : 0) + 8 * (letter - 'A');
    if (flags >= 0 && flags <= 255) Set(record, TransponderField::Tuning, static_cast<std::uint32_t>(flags));
  }

  bool ReadFavourites() {
    if (!Header("[PREFERITI]")) return false;
    state_.FavouritesBlock.assign(ImportedFavouritesSize, 0);
    std::vector<std::uint32_t> pending;
    std::size_t list = 0;
    const bool ended = Lines("[END PREFERITI]", [&](std::string_view line) {
      if (line.find('|') == std::string_view::npos) {
        pending.push_back(NumberIn(line, FavouriteLine::Slot, 9999).value_or(0));
        return;
      }
      StoreList(list, pending);
      list = static_cast<std::size_t>(Base::LeadingNumber(Cut(line, FavouriteLine::List)));
      StoreName(list, Cut(line, FavouriteLine::Name));
      pending.clear();
    });
    StoreList(list, pending);
    return ended;
  }

  void StoreList(std::size_t list, std::span<const std::uint32_t> entries) {
    if (entries.empty() || list >= FavouriteLists) return;
    const auto block = state_.FavouritesBlock.begin() + static_cast<std::ptrdiff_t>(list * FavouriteListSize);
    std::fill_n(block, FavouriteListSize, Base::Byte{0});
    auto at = block;
    for (const std::uint32_t slot : entries.first(std::min(entries.size(), FavouriteEntries))) {
      *at++ = static_cast<Base::Byte>(slot / 256);
      *at++ = static_cast<Base::Byte>(slot % 256);
    }
  }

  void StoreName(std::size_t list, std::string_view name) {
    if (list >= FavouriteLists) return;
    name = name.substr(0, FavouriteNameSize);
    const std::size_t at = FavouriteNameOffset(state_.FavouritesBlock.size(), list);
    std::copy(name.begin(), name.end(), state_.FavouritesBlock.begin() + static_cast<std::ptrdiff_t>(at));
  }

  State& state_;
  std::string_view rest_;
  const BouquetTables& bouquets_;
  bool changed_ = false;
  CodingChanges codings_;
};

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

CodingChanges CodingsLostAsText(const State& state) {
  CodingChanges changes;
  for (int slot = 1; slot <= state.ChannelCount; ++slot) {
    const ChannelRecord& channel = state.Channel(slot);
    if (channel.Empty()) continue;
    const std::uint32_t flags = Get(channel, ChannelField::Flags);
    const bool active = Get(channel, ChannelField::Active) != 0;
    Compare(flags, CodingTaken(Base::HexByte(static_cast<int>(flags)), active), changes);
  }
  return changes;
}

std::string CodingChanges::Text() const {
  std::string text;
  if (inactive > 0)
    text = Base::Counted(inactive, "canale diventa non attivo", "canali diventano non attivi");
  if (codings > 0) {
    text += text.empty() ? "" : ", ";
    text += Base::Counted(codings, "codifica cambiata", "codifiche cambiate");
  }
  return text;
}

ImportReport ReadText(State& state, std::string_view text, const std::string& fileName,
                      const BouquetTables& bouquets) {
  Reader reader(state, text, bouquets);
  ImportReport report;
  const char* broken = reader.Run(report);
  report.changed = reader.Changed();
  report.codings = reader.Codings();
  if (broken != nullptr)
    report.whole = Base::Error{std::string("Formato file invalido (") + broken + ") per " + fileName};
  return report;
}

}  // namespace Formats
