#include "formats/csv_reader.h"

#include "base/code_page.h"
#include "base/text.h"
#include "formats/csv_format.h"
#include "formats/foreign_fields.h"
#include "formats/foreign_layout.h"
#include "model/cells.h"
#include "model/per_slot.h"
#include "model/symbol_rates.h"

#include <functional>
#include <map>
#include <optional>

namespace Formats {
namespace {

using namespace Routines;

constexpr int Largest16 = 65535;

enum class Title {
  Number,
  Name,
  Transponder,
  Sid,
  Vpid,
  Apid,
  Aecm,
  Vecm,
  Pcr,
  Coding,
  Active,
  Frequency,
  Polarisation,
  Rate,
  Fec,
  Satellite,
  Tid,
  Nid
};
// In the order of Title.
constexpr std::array<std::string_view, 18> Titles = {
    "Prog.",    "Canale", "Transponder", "SID", "VPID", "APID", "AECM",      "VECM", "PCR",
    "Codifica", "Attivo", "Frequenza",   "Pol", "SR",   "FEC",  "Satellite", "TID",  "NID"};

struct NumberColumn {
  Title title;
  Field<ChannelRecord> field;
  SdxField said;
};
constexpr std::array<NumberColumn, 6> NumberColumns = {{{Title::Sid, ChannelField::Sid, SdxField::Sid},
                                                        {Title::Vpid, ChannelField::Vpid, SdxField::Vpid},
                                                        {Title::Apid, ChannelField::Apid, SdxField::Apid},
                                                        {Title::Aecm, ChannelField::Aecm, SdxField::Ecm},
                                                        {Title::Vecm, ChannelField::Vecm, SdxField::Ecm},
                                                        {Title::Pcr, ChannelField::Pcr, SdxField::Pcr}}};

// An apostrophe that keeps a spreadsheet from reading a cell in its own way is no part of it.
std::string_view Bared(std::string_view cell) {
  cell = Bare(cell);
  if (cell.size() > 1 && cell.front() == '\'' && NeedsApostrophe(Bare(cell.substr(1)))) cell.remove_prefix(1);
  return Bare(cell);
}

// A name as its cell has it: without blanks at both ends, and with blanks for what is no letter.
std::string Plain(std::string_view name) {
  std::string text(name);
  std::replace_if(
      text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return std::string(Bare(text));
}

// "4.608" and "4 608" are thousands, "512,00" is a whole number; "12,5" is none.
std::optional<int> WholeIn(std::string_view cell) {
  std::string digits;
  cell = Bared(cell);
  while (!cell.empty()) {
    const std::string_view run = Base::LeadingDigits(cell);
    if (run.empty() || cell.front() == ' ') return std::nullopt;
    const bool group = digits.empty() || run.size() == 3;
    if (!group && run.find_first_not_of('0') != std::string_view::npos) return std::nullopt;
    if (group) digits += run;
    cell.remove_prefix(run.size());
    if (cell.empty()) break;
    if (std::string_view("., \xA0").find(cell.front()) == std::string_view::npos || cell.size() == 1)
      return std::nullopt;
    cell.remove_prefix(1);
    if (!group) return std::nullopt;
  }
  if (digits.empty() || digits.size() > 6) return std::nullopt;
  const int value = Base::LeadingCount(digits, 999999);
  return value > Largest16 ? std::nullopt : std::optional(value);
}

// Two hexadecimal digits, of which the spreadsheet may have taken a zero in front.
std::optional<int> CodingIn(std::string_view cell) {
  cell = Bared(cell);
  if (cell.empty() || cell.size() > 2) return std::nullopt;
  int value = 0;
  for (const char c : cell) {
    const std::size_t digit = std::string_view("0123456789ABCDEFabcdef").find(c);
    if (digit == std::string_view::npos) return std::nullopt;
    value = value * 16 + static_cast<int>(digit < 16 ? digit : digit - 6);
  }
  return value;
}

// "3/4", whatever stands for the stroke; "Auto".
std::optional<std::uint32_t> FecIn(std::string_view cell) {
  constexpr std::array<std::string_view, 5> Known = {"12", "23", "34", "56", "78"};
  cell = Bared(cell);
  if (cell == "Auto") return 5;
  if (cell.size() != 3) return std::nullopt;
  const char digits[] = {cell[0], cell[2]};
  const auto* const found = std::find(Known.begin(), Known.end(), std::string_view(digits, 2));
  return found == Known.end() ? std::nullopt
                              : std::optional(static_cast<std::uint32_t>(found - Known.begin()));
}

class Reader {
 public:
  explicit Reader(const State& state) : state_(state) {
    channels_.list.symbolRates = state.SymbolRateTable;
    channels_.list.satellites.set();
    channels_.list.byNumber = true;
  }

  // Whether the line has the titles that are needed.
  bool TakeTitles(std::string_view line) {
    for (const Separator separator : {Separator::Semicolon, Separator::Tab, Separator::Comma}) {
      layout_.separator = separator;
      SplitForeign(line, layout_, cells_);
      for (std::size_t column = 0; column < cells_.size(); ++column) {
        const auto* const title = std::find(Titles.begin(), Titles.end(), Bared(cells_[column]));
        if (title != Titles.end()) columns_.try_emplace(static_cast<Title>(title - Titles.begin()), column);
      }
      if (columns_.contains(Title::Number) && columns_.contains(Title::Name)) break;
    }
    for (const NumberColumn& column : NumberColumns) {
      if (!columns_.contains(column.title)) lacking_.Add(column.said);
    }
    const std::pair<Title, SdxField> others[] = {
        {Title::Coding, SdxField::Coding},   {Title::Active, SdxField::Active},
        {Title::Rate, SdxField::SymbolRate}, {Title::Fec, SdxField::Fec},
        {Title::Tid, SdxField::Tid},         {Title::Nid, SdxField::Nid}};
    for (const auto& [title, field] : others) {
      if (!columns_.contains(title)) lacking_.Add(field);
    }
    lacking_.Add(SdxField::Band);
    channels_.list.lacking = lacking_;
    return columns_.contains(Title::Number) && columns_.contains(Title::Name);
  }

  void TakeRow(std::string_view line, int number) {
    if (Bare(line).empty()) return;
    SplitForeign(line, layout_, cells_);
    fault_.clear();
    OtherChannel channel;
    channel.lacking = lacking_;
    TransponderRecord transponder;
    const auto slot = TakeNumber();
    TakeChannel(channel.record);
    const bool tuned = TakeTransponder(transponder, channel);
    if (fault_.empty() && tuned) CheckTransponder(transponder);
    if (!fault_.empty()) {
      channels_.faults.push_back("riga " + std::to_string(number) + ", " + fault_);
      KeepOwn(slot.value_or(0));
      return;
    }
    if (tuned) channel.transponder = PlaceOf(transponder);
    Put(channel, slot.value_or(0));
  }

  CsvChannels Finish() {
    OtherList& list = channels_.list;
    list.channels.insert(list.channels.end(), added_.begin(), added_.end());
    list.offered = list.Count();
    return std::move(channels_);
  }

 private:
  [[nodiscard]] std::string_view Cell(Title title) const {
    const auto column = columns_.find(title);
    return column == columns_.end() || column->second >= cells_.size()
               ? std::string_view()
               : std::string_view(cells_[column->second]);
  }

  // The first one of a row is told.
  void Fault(Title title, const std::string& why) {
    if (fault_.empty()) fault_ = std::string(Titles[static_cast<std::size_t>(title)]) + ": " + why;
  }
  void Fault(Title title) { Fault(title, "«" + Base::ToUtf8(Cell(title)) + "»"); }

  // A new row may have none.
  std::optional<int> TakeNumber() {
    if (Bared(Cell(Title::Number)).empty()) return std::nullopt;
    const auto number = WholeIn(Cell(Title::Number));
    if (!number || *number < 1 || *number > LastChannelSlot) {
      Fault(Title::Number);
    } else if (taken_[*number]) {
      Fault(Title::Number, std::to_string(*number) + " c'è già");
    }
    return number;
  }

  void TakeChannel(ChannelRecord& record) {
    TakeName(record);
    for (const NumberColumn& column : NumberColumns) {
      if (!columns_.contains(column.title)) continue;
      const auto value = WholeIn(Cell(column.title));
      if (!value) Fault(column.title);
      Set(record, column.field, static_cast<std::uint32_t>(value.value_or(0)));
    }
    TakeFlags(record);
  }

  // What a cell cannot show of a name, or a spreadsheet takes off it, is as it was.
  void TakeName(ChannelRecord& record) {
    const std::string_view name = Bared(Cell(Title::Name));
    const int own = SlotOfRow();
    if (name.size() > ChannelRecord::NameSize) return Fault(Title::Name);
    if (own != 0 && !state_.Channel(own).Empty() && Plain(state_.Channel(own).Name()) == name) {
      std::copy_n(state_.Channel(own).bytes.begin(), ChannelRecord::NameSize, record.bytes.begin());
    } else if (name.empty()) {
      record.bytes[0] = ' ';
    } else {
      std::copy(name.begin(), name.end(), record.bytes.begin());
    }
  }

  void TakeFlags(ChannelRecord& record) {
    int flags = static_cast<int>(ChannelField::Active.Mask());
    if (columns_.contains(Title::Coding)) {
      const auto coding = CodingIn(Cell(Title::Coding));
      if (!coding) Fault(Title::Coding);
      flags = coding.value_or(flags);
    }
    Set(record, ChannelField::Flags, static_cast<std::uint32_t>(flags));
    if (!columns_.contains(Title::Active)) return;
    const std::string_view active = Bared(Cell(Title::Active));
    const bool yes = active == "S" || active == "s";
    if (!yes && active != "N" && active != "n") Fault(Title::Active);
    Set(record, ChannelField::Active, yes ? 1 : 0);
  }

  // False where the row names none.
  bool TakeTransponder(TransponderRecord& record, OtherChannel& channel) {
    if (Bared(Cell(Title::Frequency)).empty()) return false;
    const auto megahertz = WholeIn(Cell(Title::Frequency));
    const auto horizontal = HorizontalIn(Bared(Cell(Title::Polarisation)));
    const std::string_view satellite = Bared(Cell(Title::Satellite));
    const char letter = satellite.empty() ? ' ' : satellite.back();
    if (!megahertz || *megahertz < 10000 || *megahertz > 13999) Fault(Title::Frequency);
    if (!horizontal) Fault(Title::Polarisation);
    if (letter < 'A' || letter > 'Z') Fault(Title::Satellite);
    if (!fault_.empty()) return true;
    Set(record, TransponderField::HighBand, *megahertz >= 11700 ? 1 : 0);
    Set(record, TransponderField::Frequency,
        static_cast<std::uint32_t>(*megahertz - LocalOscillator(record)) * 1000000U);
    Set(record, TransponderField::Horizontal, *horizontal ? 1 : 0);
    Set(record, TransponderField::Satellite, static_cast<std::uint32_t>(letter - 'A'));
    TakeTransponderData(record, channel);
    return true;
  }

  void TakeTransponderData(TransponderRecord& record, OtherChannel& channel) {
    for (const auto& [title, field] :
         {std::pair{Title::Tid, TransponderField::Tid}, {Title::Nid, TransponderField::Nid}}) {
      if (!columns_.contains(title)) continue;
      const auto value = WholeIn(Cell(title));
      if (!value) Fault(title);
      Set(record, field, static_cast<std::uint32_t>(value.value_or(0)));
    }
    if (columns_.contains(Title::Fec)) {
      const auto fec = FecIn(Cell(Title::Fec));
      if (!fec) Fault(Title::Fec);
      Set(record, TransponderField::Fec, fec.value_or(0));
    }
    if (columns_.contains(Title::Rate)) TakeRate(record, channel);
  }

  // A rate of no digits is one that the list's own table does not have.
  void TakeRate(TransponderRecord& record, OtherChannel& channel) {
    std::string_view cell = Bared(Cell(Title::Rate));
    while (!cell.empty() && cell.back() == '\\') cell.remove_suffix(1);
    if (cell.empty()) {
      channel.lacking.Add(SdxField::SymbolRate);
      return;
    }
    const auto rate = WholeIn(cell);
    for (std::uint32_t code = 0; rate && code < SymbolRateCodes; ++code) {
      const std::string_view known = SymbolRateText(state_.SymbolRateTable, code);
      if (Base::LeadingNumber(known) != *rate) continue;
      Set(record, TransponderField::SymbolRate, code);
      return;
    }
    Fault(Title::Rate);
  }

  // Two cells of a row say which transponder it is.
  void CheckTransponder(const TransponderRecord& transponder) {
    const std::string_view cell = Bared(Cell(Title::Transponder));
    if (cell.empty()) return;
    const auto number = WholeIn(cell);
    if (!number) return Fault(Title::Transponder);
    // A number that is still the channel's own says nothing of a frequency that was changed, nor one of no transponder.
    const TransponderRow* row = TransponderInUse(state_, static_cast<std::uint32_t>(*number));
    const TransponderRow* own =
        TransponderInUse(state_, Get(state_.Channel(SlotOfRow()), ChannelField::Transponder));
    if (row != nullptr && own != nullptr && row != own && SameTransponder(own->record, transponder))
      Fault(Title::Transponder, "«" + std::string(cell) + "» e la frequenza non sono dello stesso");
  }

  // A channel whose row is left out is there all the same, as it was; where nothing tells which it is, any might be.
  void KeepOwn(int slot) {
    if (slot < 1 || slot > state_.ChannelCount || taken_[slot] || state_.Channel(slot).Empty()) {
      channels_.list.satellites.reset();
      return;
    }
    OtherChannel own = OtherChannelOf(state_, slot);
    if (own.transponder != 0) own.transponder = PlaceOf(state_.Transponder(own.transponder).record);
    Put(own, slot);
  }

  // The slot that the row's number is in one's own list; 0 where it is none.
  [[nodiscard]] int SlotOfRow() const {
    const int number = WholeIn(Cell(Title::Number)).value_or(0);
    return number <= state_.ChannelCount ? number : 0;
  }

  int PlaceOf(const TransponderRecord& record) {
    std::vector<TransponderRecord>& all = channels_.list.transponders;
    const auto [found, added] = places_.try_emplace(record.bytes, static_cast<int>(all.size()));
    if (added) all.push_back(record);
    return found->second;
  }

  void Put(const OtherChannel& channel, int number) {
    if (number == 0) {
      added_.push_back(channel);
      return;
    }
    taken_[number] = true;
    std::vector<OtherChannel>& channels = channels_.list.channels;
    channels.resize(std::max(channels.size(), static_cast<std::size_t>(number) + 1));
    channels[static_cast<std::size_t>(number)] = channel;
  }

  const State& state_;
  ForeignLayout layout_;
  std::map<Title, std::size_t> columns_;
  SdxFields lacking_;
  std::vector<std::string> cells_;
  std::string fault_;
  PerChannel<bool> taken_;
  std::vector<OtherChannel> added_;
  std::map<std::array<Base::Byte, TransponderRecord::Size>, int> places_;
  CsvChannels channels_;
};

}  // namespace

Base::Result<CsvChannels> ReadChannelsCsv(std::string_view text, const State& state) {
  Reader reader(state);
  if (!reader.TakeTitles(Base::TakeLine(text)))
    return Base::Error{"Il file non ha le colonne di una lista esportata (Prog., Canale…)"};
  for (int number = 2; !text.empty(); ++number) reader.TakeRow(Base::TakeLine(text), number);
  return reader.Finish();
}

}  // namespace Formats
