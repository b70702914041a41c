#include "formats/lamedb.h"

#include "base/text.h"
#include "formats/foreign_fields.h"
#include "formats/list_fields.h"

#include <optional>

namespace Formats {
namespace {

constexpr std::string_view Beginning = "eDVB services /";
constexpr std::string_view EndOfSection = "end";
constexpr char Separator = ':';

// What a transponder is known by: namespace, transport stream and network, hexadecimal. Takes them off the front.
std::optional<std::uint64_t> TakeKey(std::string_view& fields) {
  std::uint64_t key = 0;
  for (const unsigned bits : {32U, 16U, 16U}) {
    const auto number = TakeHex(fields);
    if (!number || *number >> (bits - 1) > 1 || !TakeEnd(fields, Separator)) return std::nullopt;
    key = key << bits | *number;
  }
  return key;
}

std::optional<int> TakeWhole(std::string_view& fields, int most) {
  const int value = TakeNumber(fields, most);
  return TakeEnd(fields, Separator) && value != NotSaid && value <= most ? std::optional(value)
                                                                         : std::nullopt;
}

// A blank line or, in 5, a comment.
bool SaysNothing(std::string_view line) { return Bare(line).empty() || line.front() == '#'; }

// A transponder of which nothing but its key is known.
ListedTransponder Keyed(std::uint64_t key) {
  ListedTransponder transponder;
  transponder.position = PositionOfNamespace(static_cast<std::uint32_t>(key >> 32U));
  transponder.tid = static_cast<int>(key >> 16U & 0xFFFFU);
  transponder.nid = static_cast<int>(key & 0xFFFFU);
  return transponder;
}

template <class Value, std::size_t Size>
Value Coded(const Value (&table)[Size], std::optional<int> code, Value other) {
  return code && *code < static_cast<int>(Size) ? table[*code] : other;
}

// "s kHz:Bd:polarisation:FEC:position:inversion:flags:system:modulation", the last two not always there.
void TakeTuning(std::string_view fields, ListedTransponder& transponder) {
  constexpr Polarisation Polarisations[] = {Polarisation::Horizontal, Polarisation::Vertical,
                                            Polarisation::Left, Polarisation::Right};
  constexpr std::string_view Fecs[] = {"", "1/2", "2/3", "3/4", "5/6", "7/8"};
  const auto frequency = TakeWhole(fields, 99999999).value_or(0);
  transponder.frequency = frequency > 0 ? frequency : NotSaid;
  transponder.symbolRate = TakeWhole(fields, 999999999).value_or(NotSaid);
  transponder.polarisation = Coded(Polarisations, TakeWhole(fields, 9), Polarisation::Unknown);
  transponder.fec = Coded(Fecs, TakeWhole(fields, 99), std::string_view());
  std::string_view position = Bare(TakeField(fields, Separator));
  const bool west = position.starts_with('-');
  position.remove_prefix(west ? 1 : 0);
  if (const auto tenths = WholeNumber(position, 3599))
    transponder.position = west ? -*tenths : PositionOf(*tenths);
  for (int i = 0; i < 2; ++i) TakeField(fields, Separator);
  if (TakeWhole(fields, 9).value_or(0) > 0) transponder.delivery = Delivery::DvbS2;
  constexpr Modulation Modulations[] = {Modulation::Unknown, Modulation::Qpsk};
  transponder.modulation = Coded(Modulations, TakeWhole(fields, 99).value_or(0), Modulation::Other);
}

char TypeOf(int type) {
  const bool television = type == 1 || type == 4 || type == 5 || type == 17 || (type >= 22 && type <= 32);
  return television ? 'T' : type == 2 || type == 10 ? 'R' : 'S';
}

Video VideoOfType(int type) {
  return type >= 31 && type <= 32 ? Video::Hevc : type >= 22 && type <= 30 ? Video::H264 : Video::Unknown;
}

// Behind "c:" two digits say what the other four are.
void TakeCached(std::uint32_t item, ListedService& service) {
  constexpr std::uint32_t LargestPid = 8191;  // which means none
  const std::uint32_t value = item & 0xFFFFU;
  const std::uint32_t kind = item >> 16U;
  int* const pid = kind == 0 ? &service.vpid : kind == 1 ? &service.apid : kind == 3 ? &service.pcr : nullptr;
  if (pid != nullptr) {
    *pid = value < LargestPid ? static_cast<int>(value) : 0;
    service.valid = service.valid && value <= LargestPid;
  }
  if (kind == 5 && value == 1) service.video = Video::H264;
}

// Takes the six digits that nearly every cached item has, and its end, without a branch for each.
std::optional<std::uint32_t> TakeSixDigits(std::string_view& data) {
  constexpr std::size_t Size = 6;
  if (data.size() <= Size || data[Size] != ',') return std::nullopt;
  std::uint32_t value = 0, digits = 0;
  for (std::size_t at = 0; at < Size; ++at) {
    const unsigned digit = HexValues[static_cast<unsigned char>(data[at])];
    digits |= digit;
    value = value << 4U | digit;
  }
  if (digits > 0xF) return std::nullopt;
  data.remove_prefix(Size + 1);
  return value;
}

// "p:provider,c:…,C:…"
void TakeData(std::string_view data, ListedService& service, std::string_view& provider) {
  while (!data.empty()) {
    const char kind = data.size() > 1 && data[1] == Separator ? data[0] : '\0';
    if (kind != '\0') data.remove_prefix(2);
    if (kind != 'c' && kind != 'C') {
      const std::string_view other = TakeField(data, ',');
      if (kind == 'p') provider = other;
      continue;
    }
    if (const auto item = kind == 'c' ? TakeSixDigits(data) : std::nullopt) {
      TakeCached(*item, service);
      continue;
    }
    const auto number = TakeHex(data);
    if (!TakeEnd(data, ',') || !number) continue;
    if (kind == 'c') TakeCached(*number, service);
    if (kind == 'C' && *number <= 0xFFFF) service.caids.push_back(static_cast<int>(*number));
  }
}

}  // namespace

std::optional<int> PositionOfNamespace(std::uint32_t names) {
  const auto tenths = static_cast<int>(names >> 16U);
  return tenths > 0 && tenths < 3600 ? std::optional(PositionOf(tenths)) : std::nullopt;
}

bool IsLamedb(std::string_view text) {
  const std::string_view line = Base::TakeLine(text);
  return line.starts_with(Beginning) && line.ends_with("/") && line.size() == Beginning.size() + 2 &&
         (line[Beginning.size()] == '4' || line[Beginning.size()] == '5');
}

LamedbReader::LamedbReader(std::string_view text) : text_(text) {
  oneLine_ = Base::TakeLine(text_).ends_with("/5/");
  if (oneLine_) {
    ReadTransponderLines();
  } else {
    ReadTransponders();
  }
}

void LamedbReader::AddTransponder(std::string_view ids, std::string_view tuning) {
  const auto key = TakeKey(ids);
  if (!key || tuning.size() < 2) {
    ++unreadable_;
    return;
  }
  ListedTransponder transponder = Keyed(*key);
  if (tuning.front() == 's') {
    TakeTuning(tuning.substr(2), transponder);
  } else {
    transponder.delivery = Delivery::Other;
  }
  places_[*key] = transponders_.size();
  transponders_.push_back(transponder);
}

void LamedbReader::ReadTransponders() {
  while (!text_.empty() && Base::TakeLine(text_) != "transponders") {
  }
  while (!text_.empty()) {
    const std::string_view ids = Base::TakeLine(text_);
    if (ids == EndOfSection) break;
    if (SaysNothing(ids) || ids == "/") continue;
    AddTransponder(ids, Bare(Base::TakeLine(text_)));
  }
  while (!text_.empty() && Base::TakeLine(text_) != "services") {
  }
}

void LamedbReader::ReadTransponderLines() {
  while (!text_.empty() && !text_.starts_with("s:")) {
    std::string_view line = Base::TakeLine(text_);
    if (!line.starts_with("t:")) {
      unreadable_ += SaysNothing(line) ? 0 : 1;
      continue;
    }
    line.remove_prefix(2);
    const std::string_view ids = TakeField(line, ',');
    AddTransponder(ids, line);
  }
}

// Takes a service's first line, or only one, apart; false where it is none.
bool LamedbReader::TakeApart(std::string_view line) {
  ids_ = line;
  if (oneLine_) {
    if (!ids_.starts_with("s:")) return false;
    ids_.remove_prefix(2);
    data_ = ids_;
    ids_ = TakeField(data_, ',');
    const std::size_t behind = std::min(data_.find("\",p:"), data_.rfind('"'));
    if (!data_.starts_with('"') || behind == std::string_view::npos || behind == 0) return false;
    name_ = data_.substr(1, behind - 1);
    data_.remove_prefix(behind + 1);
  }
  const auto sid = TakeHex(ids_);
  sid_ = static_cast<int>(sid.value_or(0) & 0xFFFFU);
  return sid && *sid <= 0xFFFF && TakeEnd(ids_, Separator);
}

bool LamedbReader::FindTransponder() {
  sameTransponder_ = !key_.empty() && ids_.starts_with(key_);
  if (sameTransponder_) {
    ids_.remove_prefix(key_.size());
    return true;
  }
  const std::string_view fields = ids_;
  const auto key = TakeKey(ids_);
  if (!key) return false;
  key_ = ids_.empty() ? ids_ : fields.substr(0, fields.size() - ids_.size());
  const auto place = places_.find(*key);
  service_.transponder = place == places_.end() ? Keyed(*key) : transponders_[place->second];
  return true;
}

bool LamedbReader::Next() {
  while (!text_.empty()) {
    const std::string_view line = Base::TakeLine(text_);
    if (line == EndOfSection) text_ = {};
    if (line == EndOfSection || SaysNothing(line)) continue;
    if (!TakeApart(line) || !FindTransponder()) {
      ++unreadable_;
      continue;
    }
    if (!oneLine_) {
      name_ = Base::TakeLine(text_);
      data_ = Base::TakeLine(text_);
    }
    return true;
  }
  return false;
}

void LamedbReader::TakeStreams() {
  service_.vpid = service_.apid = service_.pcr = NotSaid;
  service_.caids.clear();
  const auto type = TakeWhole(ids_, 255);
  service_.valid = type.has_value();
  service_.type = TypeOf(type.value_or(0));
  service_.video = VideoOfType(type.value_or(0));
  provider_ = {};
  TakeData(data_, service_, provider_);
}

void LamedbReader::TakeIdentity() {
  service_.sid = sid_;
  service_.number = TakeWhole(ids_, 999999).value_or(0);
  TakeName(service_.name, name_);
  TakeName(service_.provider, provider_);
}

TransponderList ReadLamedbTransponders(std::string_view text) {
  const LamedbReader reader(text);
  TransponderList list;
  list.unreadable = reader.Unreadable();
  list.transponders = reader.Transponders();
  return list;
}

}  // namespace Formats
