#include "formats/dvbv5.h"

#include "base/text.h"
#include "formats/foreign_fields.h"
#include "formats/list_fields.h"

namespace Formats {
namespace {

// "[name]"; a name may have brackets of its own.
std::optional<std::string_view> NameOfBlock(std::string_view line) {
  line = Bare(line);
  if (!line.starts_with('[')) return std::nullopt;
  line.remove_prefix(1);
  return line.substr(0, line.rfind(']'));
}

struct Entry {
  std::string_view key, value;
};

// Both empty where the line is none.
Entry EntryOf(std::string_view line) {
  line = Bare(line);
  if (line.starts_with('#') || line.find('=') == std::string_view::npos) return {};
  const std::string_view key = Bare(TakeField(line, '='));
  return {key, Bare(line)};
}

Delivery DeliveryOf(std::string_view value) {
  return value == "DVBS" ? Delivery::DvbS : value == "DVBS2" ? Delivery::DvbS2 : Delivery::Other;
}

Modulation ModulationOf(std::string_view value) {
  if (value.ends_with("AUTO")) return Modulation::Unknown;
  return value == "QPSK" ? Modulation::Qpsk : Modulation::Other;
}

// "3/4"
Base::ShortText<4> FecOf(std::string_view value) {
  const int one = TakeNumber(value, 9);
  const int other = value.starts_with('/') ? WholeNumber(value.substr(1), 10).value_or(0) : 0;
  return FecOfDigits(other == 10 ? one * 100 + other : one * 10 + other);
}

int IdOf(std::string_view value, bool& valid) { return TakeId(value, '\0', valid); }
int PidOf(std::string_view value, bool& valid) { return TakePid(value, valid); }

// Whether the key says something of the transponder.
bool TakeTransponderEntry(const Entry& entry, ListedTransponder& transponder, bool& valid) {
  const auto& [key, value] = entry;
  if (key == "FREQUENCY") {
    transponder.frequency = KilohertzIn(value);
  } else if (key == "SYMBOL_RATE") {
    transponder.symbolRate = WholeNumber(value, 999999999).value_or(NotSaid);
  } else if (key == "POLARIZATION") {
    transponder.polarisation = PolarisationIn(value);
  } else if (key == "INNER_FEC") {
    transponder.fec = FecOf(value);
  } else if (key == "DELIVERY_SYSTEM") {
    transponder.delivery = DeliveryOf(value);
  } else if (key == "MODULATION") {
    transponder.modulation = ModulationOf(value);
  } else if (key == "NETWORK_ID") {
    transponder.nid = IdOf(value, valid);
  } else if (key == "TRANSPORT_ID") {
    transponder.tid = IdOf(value, valid);
  } else {
    return false;
  }
  return true;
}

void TakeEntry(const Entry& entry, ListedService& service) {
  const auto& [key, value] = entry;
  if (TakeTransponderEntry(entry, service.transponder, service.valid)) return;
  if (key == "SERVICE_ID") service.sid = IdOf(value, service.valid);
  if (key == "VIDEO_PID") service.vpid = PidOf(value, service.valid);
  if (key == "AUDIO_PID") service.apid = PidOf(value, service.valid);
  if (key == "VCHANNEL") service.number = WholeNumber(value, 999999).value_or(0);
}

// The block that begins `text` or the first one in it, which it takes off, and its name; false where there is none. Lines before it that
// say something are counted.
bool TakeBlock(std::string_view& text, std::string_view& named, ListedService& service, int& strays) {
  std::optional<std::string_view> name;
  while (!text.empty() && !name) {
    const std::string_view line = Base::TakeLine(text);
    name = NameOfBlock(line);
    if (!name && !EntryOf(line).key.empty()) ++strays;
  }
  if (!name) return false;
  named = *name;
  service = {};
  while (!text.empty()) {
    std::string_view behind = text;
    const std::string_view line = Base::TakeLine(behind);
    if (NameOfBlock(line)) break;
    TakeEntry(EntryOf(line), service);
    text = behind;
  }
  return true;
}

// A service has an id; the stream table that gives it gives its PIDs as well, so that one without has none.
bool IsService(const ListedService& service) { return service.sid != NotSaid; }

// Blocks that a file is known by.
bool HasBlocks(std::string_view text, bool services) {
  ListedService block;
  std::string_view name;
  int strays = 0;
  bool any = false;
  for (int blocks = 0; blocks < 50 && TakeBlock(text, name, block, strays); ++blocks) {
    const bool tuned = block.transponder.frequency != NotSaid;
    if (tuned && IsService(block)) return services;
    any = any || tuned;
  }
  return any && !services;
}

constexpr char Separator = ':';

bool IsZapLine(std::string_view line) {
  if (std::count(line.begin(), line.end(), Separator) != 7) return false;
  TakeField(line, Separator);
  const bool frequency = KilohertzIn(TakeField(line, Separator)) != NotSaid;
  const std::string_view polarisation = TakeField(line, Separator);
  return frequency && polarisation.size() == 1 && PolarisationIn(polarisation) != Polarisation::Unknown;
}

}  // namespace

bool IsDvbV5(std::string_view text) { return HasBlocks(text, true); }
bool IsDvbV5ScanTable(std::string_view text) { return HasBlocks(text, false); }

bool DvbV5Reader::Next() {
  while (TakeBlock(text_, name_, service_, unreadable_)) {
    if (IsService(service_)) return true;
    ++unreadable_;
  }
  return false;
}

// A block is read as a whole. A scan leaves out what it did not find.
void DvbV5Reader::TakeStreams() {
  for (int* pid : {&service_.vpid, &service_.apid}) *pid = std::max(*pid, 0);
  service_.type = TypeByPids(service_);
}

void DvbV5Reader::TakeIdentity() { TakeName(service_.name, name_); }

TransponderList ReadDvbV5Transponders(std::string_view text) {
  TransponderList list;
  ListedService block;
  std::string_view name;
  while (TakeBlock(text, name, block, list.unreadable)) {
    const bool good = block.valid && block.transponder.frequency != NotSaid;
    if (good) list.transponders.push_back(block.transponder);
    if (!good) ++list.unreadable;
  }
  return list;
}

bool IsZap(std::string_view text) { return MostLines(text, "#", IsZapLine); }

bool ZapReader::ReadTransponder(std::string_view line) {
  if (!IsZapLine(line)) return false;
  rest_ = line;
  name_ = TakeField(rest_, Separator);
  service_ = {};
  ListedTransponder& transponder = service_.transponder;
  transponder.frequency = KilohertzIn(TakeField(rest_, Separator));
  transponder.polarisation = PolarisationIn(TakeField(rest_, Separator));
  TakeField(rest_, Separator);  // the place on the switch
  const auto kilobaud = WholeNumber(TakeField(rest_, Separator), 999999);
  transponder.symbolRate = kilobaud ? *kilobaud * 1000 : NotSaid;
  return true;
}

bool ZapReader::Next() {
  while (!text_.empty()) {
    const std::string_view line = Base::TakeLine(text_);
    if (ReadTransponder(line)) {
      ++number_;
      return true;
    }
    if (!Bare(line).empty() && line.front() != '#') ++unreadable_;
  }
  return false;
}

void ZapReader::TakeStreams() {
  for (int* pid : {&service_.vpid, &service_.apid}) {
    *pid = std::max(0, TakePid(rest_, service_.valid));
    service_.valid = TakeEnd(rest_, Separator) && service_.valid;
  }
  service_.type = TypeByPids(service_);
}

void ZapReader::TakeIdentity() {
  service_.number = number_;
  service_.sid = TakeId(rest_, Separator, service_.valid);
  TakeName(service_.name, name_);
}

}  // namespace Formats
