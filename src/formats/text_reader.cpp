#include "base/code_page.h"
#include "base/text.h"
#include "formats/text_columns.h"
#include "formats/text_format.h"
#include "model/favourites.h"
#include "model/symbol_rates.h"

#include <charconv>
#include <optional>
#include <vector>

namespace Formats {
namespace {

using namespace Routines;
using namespace TextColumns;
using Base::Cut;

constexpr Column ChannelCountColumn{10, Base::ToLineEnd};
constexpr Column TransponderCountColumn{16, Base::ToLineEnd};

// What a favourites block measures after an import: the receivers' first kind had no more.
constexpr std::size_t ImportedFavouritesSize = 2291;

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
    return Lines(ChannelsEnd, [this](std::string_view line) { TakeChannel(line); });
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
    const bool ended = Lines(TranspondersEnd, [&](std::string_view line) { TakeTransponder(line, report); });
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
    const bool ended = Lines(FavouritesEnd, [&](std::string_view line) {
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
