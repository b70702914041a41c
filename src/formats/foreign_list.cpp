#include "formats/foreign_list.h"

#include "base/text.h"
#include "formats/foreign_fields.h"

#include <utility>

namespace Formats {
namespace {

constexpr const char* Absent = "65535";
constexpr std::size_t NameWidth = 20;
constexpr std::size_t RateWidth = 5;
constexpr int NullPid = 8191;

class Reader {
 public:
  Reader(const ForeignLayout& layout, int satellite) : layout_(layout), satellite_(satellite) {
    places_.fill(MostForeignColumns);
    for (std::size_t i = layout.columns.size(); i-- > 0;)
      places_[static_cast<std::size_t>(layout.columns[i].meaning)] = i;
  }

  // The line's row, or why there is none.
  std::optional<Drop> Read(std::string_view line, SdxRow& row) {
    SplitForeign(line, layout_, fields_);
    valid_ = true;
    row = {};
    row.satellite = satellite_;
    row.name = NameOf(Field(Meaning::Name));
    if (Bare(row.name).empty()) return Drop::NoName;
    if (const auto drop = ReadTransponder(row)) return drop;
    row.vpid = Pid(Meaning::Vpid);
    row.apid = Pid(Meaning::Apid);
    row.pcr = Pid(Meaning::Pcr);
    row.sid = std::to_string(Number(Meaning::Sid));
    row.tid = Base::ZeroPadded(Number(Meaning::Tid), 5);
    row.nid = std::to_string(Number(Meaning::Nid));
    row.type = TypeOf(row);
    // As in every list: a radio has no video, whatever its line says.
    if (row.type == 'R') row.vpid = Absent;
    row.codifica = Codifica();
    return valid_ ? std::nullopt : std::optional(Drop::BadNumber);
  }

 private:
  [[nodiscard]] std::string_view Field(Meaning meaning) const {
    const std::size_t place = places_[static_cast<std::size_t>(meaning)];
    if (place >= fields_.size()) return {};
    const std::string_view field = fields_[place];
    return meaning != Meaning::Name && field.find_first_not_of('-') == std::string_view::npos
               ? std::string_view()
               : field;
  }

  [[nodiscard]] bool Hexadecimal(Meaning meaning) const {
    const std::size_t place = places_[static_cast<std::size_t>(meaning)];
    return place < layout_.columns.size() && layout_.columns[place].hexadecimal;
  }

  // A control character would hide the name or break the line it is shown in.
  static std::string NameOf(std::string_view field) {
    std::string name(Bare(field).substr(0, NameWidth));
    for (char& c : name) {
      if (c >= 0 && c < ' ') c = ' ';
    }
    return name;
  }

  std::optional<Drop> ReadTransponder(SdxRow& row) {
    const std::string_view frequency = Field(Meaning::Frequency);
    if (frequency.empty()) return Drop::NoFrequency;
    const auto megahertz = MegahertzIn(frequency);
    if (!megahertz) return Drop::BadFrequency;
    row.frequency = Base::ZeroPadded(*megahertz, 6);
    row.highBand = *megahertz >= 11700;
    if (layout_.Has(Meaning::Polarisation)) {
      const auto horizontal = HorizontalIn(Field(Meaning::Polarisation));
      if (!horizontal) return Drop::BadPolarisation;
      row.horizontal = *horizontal;
    } else {
      // Some write the letter behind the frequency.
      const std::size_t letter = frequency.find_last_of("0123456789") + 1;
      row.horizontal = HorizontalIn(frequency.substr(letter)).value_or(false);
    }
    if (const std::string_view text = Field(Meaning::SymbolRate); !text.empty()) {
      const auto rate = SymbolRateIn(text);
      if (!rate) return Drop::BadNumber;
      row.symbolRate = std::to_string(*rate) + std::string(RateWidth, '\\');
    }
    row.fec = FecDigitIn(Field(Meaning::Fec));
    return std::nullopt;
  }

  int Number(Meaning meaning) {
    const std::string_view text = Field(meaning);
    if (text.empty()) return 0;
    const auto number = NumberIn(text, Hexadecimal(meaning));
    valid_ = valid_ && number;
    return number.value_or(0);
  }

  std::string Pid(Meaning meaning) {
    const int pid = Number(meaning);
    return pid == 0 || pid == NullPid ? Absent : std::to_string(pid);
  }

  // By its word or number, else by the streams that the service has.
  [[nodiscard]] char TypeOf(const SdxRow& row) const {
    const std::string_view text = Field(Meaning::Type);
    const bool video = row.vpid != Absent || !layout_.Has(Meaning::Vpid);
    const bool audio = row.apid != Absent;
    const char byStreams = video ? 'T' : audio ? 'R' : 'S';
    if (text.empty()) return byStreams;
    if (const auto type = TypeWordIn(text)) return *type;
    const auto number = NumberIn(text, false);
    if (!number) return byStreams;
    switch (*number) {
      case 1:  // television where numbers begin with it, radio where they begin with 0
        return video ? 'T' : 'R';
      case 2:
      case 10:
        return 'R';
      case 3:
      case 12:
        return 'S';
      default:
        return byStreams;
    }
  }

  int Codifica() {
    const auto coding = CodificaIn(Field(Meaning::Coding), Hexadecimal(Meaning::Coding));
    // The name of a system that the receiver has no code for.
    return coding.value_or(0x04);
  }

  const ForeignLayout& layout_;
  int satellite_;
  std::array<std::size_t, Meanings> places_{};
  std::vector<std::string> fields_;
  bool valid_ = true;
};

SdxFields LackingIn(const ForeignLayout& layout) {
  constexpr std::pair<Meaning, SdxField> Fields[] = {{Meaning::Polarisation, SdxField::Polarisation},
                                                     {Meaning::SymbolRate, SdxField::SymbolRate},
                                                     {Meaning::Fec, SdxField::Fec},
                                                     {Meaning::Vpid, SdxField::Vpid},
                                                     {Meaning::Apid, SdxField::Apid},
                                                     {Meaning::Pcr, SdxField::Pcr},
                                                     {Meaning::Sid, SdxField::Sid},
                                                     {Meaning::Tid, SdxField::Tid},
                                                     {Meaning::Nid, SdxField::Nid},
                                                     {Meaning::Type, SdxField::Type},
                                                     {Meaning::Coding, SdxField::Coding}};
  SdxFields lacking;
  for (const auto& [meaning, field] : Fields) {
    if (!layout.Has(meaning)) lacking.Add(field);
  }
  return lacking;
}

}  // namespace

SdxTable ReadForeign(std::string_view text, const ForeignLayout& layout, int satellite, int mostLines) {
  SdxTable table;
  table.lacking = LackingIn(layout);
  Reader reader(layout, satellite);
  bool header = layout.header;
  while (!text.empty() && table.lines < mostLines) {
    const std::string_view line = Base::TakeLine(text);
    if (Bare(line).empty()) continue;
    if (std::exchange(header, false)) continue;
    ++table.lines;
    SdxRow row;
    if (const auto drop = reader.Read(line, row)) {
      table.dropped.Add(*drop);
    } else if (table.rows.size() == MostSdxRows) {
      table.full = true;
      break;
    } else {
      table.rows.push_back(row);
    }
  }
  return table;
}

}  // namespace Formats
