#include "formats/vdr_channels.h"

#include "base/text.h"
#include "formats/foreign_fields.h"
#include "formats/list_fields.h"

namespace Formats {
namespace {

constexpr char Separator = ':';
constexpr std::ptrdiff_t Separators = 12;
constexpr int HighestNumber = 1000000;

bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }

// A source is a capital and, of a satellite, its position.
bool IsChannel(std::string_view line) {
  if (std::count(line.begin(), line.end(), Separator) != Separators) return false;
  for (int field = 0; field < 3; ++field) TakeField(line, Separator);
  const std::string_view source = TakeField(line, Separator);
  return !source.empty() && IsCapital(source.front()) && WholeNumber(TakeField(line, Separator), 999999);
}

// Letters, most with a number behind them: "HC34M2S0".
void TakeParameters(std::string_view text, ListedTransponder& transponder) {
  constexpr int Automatic = 999;
  transponder.polarisation = Polarisation::Unknown;
  transponder.delivery = Delivery::DvbS;
  transponder.modulation = Modulation::Unknown;
  transponder.fec = {};
  while (!text.empty()) {
    const char key = static_cast<char>(text.front() & ~0x20);  // a capital of either
    const Polarisation polarisation = PolarisationIn(text.substr(0, 1));
    text.remove_prefix(1);
    const int value = TakeNumber(text, Automatic);
    if (polarisation != Polarisation::Unknown) transponder.polarisation = polarisation;
    if (key == 'C') transponder.fec = FecOfDigits(value);
    if (key == 'S' && value > 0) transponder.delivery = Delivery::DvbS2;
    if (key == 'M' && value > 0 && value < Automatic)
      transponder.modulation = value == 2 ? Modulation::Qpsk : Modulation::Other;
  }
}

Video VideoOf(int kind) {
  switch (kind) {
    case NotSaid:
    case 0:
      return Video::Unknown;
    case 1:
    case 2:
      return Video::Mpeg2;
    case 27:
      return Video::H264;
    case 36:
      return Video::Hevc;
    default:
      return Video::Other;
  }
}

// "163+1202=2": the video, its clock, its kind.
void TakeVideo(std::string_view field, ListedService& service) {
  std::string_view pids = TakeField(field, '=');
  service.video = VideoOf(TakeNumber(field, 9999));
  service.vpid = PidAtFront(TakeField(pids, '+'), service.valid);
  service.pcr = PidAtFront(pids, service.valid);
}

// Numbers below 256 are devices and the user's own.
void TakeCaids(std::string_view field, ListedService& service) {
  while (!field.empty()) {
    const auto caid = HexNumber(TakeField(field, ','), 0xFFFF);
    if (!caid) {
      service.valid = false;
    } else if (*caid > 0xFF) {
      service.caids.push_back(static_cast<int>(*caid));
    }
  }
}

// "Name,short;provider", where "|" stands for a colon.
void TakeNames(std::string_view field, ListedService& service) {
  const std::string_view names = TakeField(field, ';');
  TakeName(service.name, names.substr(0, names.rfind(',')));
  TakeName(service.provider, field);
  for (std::string* text : {&service.name, &service.provider})
    std::replace(text->begin(), text->end(), '|', Separator);
}

}  // namespace

bool IsVdrChannels(std::string_view text) { return MostLines(text, ":#", IsChannel); }

// ":@201 Name" sets what the next channel counts as; it never counts back.
void VdrReader::TakeGroup(std::string_view line) {
  line.remove_prefix(1);
  if (!line.starts_with('@')) return;
  line.remove_prefix(1);
  number_ = std::max(number_, TakeNumber(line, HighestNumber) - 1);
}

bool VdrReader::ReadTransponder(std::string_view line, ListedTransponder& transponder) {
  rest_ = line;
  name_ = TakeField(rest_, Separator);
  const std::string_view frequency = TakeField(rest_, Separator);
  const std::string_view parameters = TakeField(rest_, Separator);
  const std::string_view source = TakeField(rest_, Separator);
  std::string_view rate = TakeField(rest_, Separator);
  if (source.empty() || !IsCapital(source.front())) return false;
  transponder.frequency = KilohertzIn(frequency);
  const int kilobaud = TakeNumber(rate, 999999);
  transponder.symbolRate = kilobaud == NotSaid ? NotSaid : kilobaud * 1000;
  TakeParameters(parameters, transponder);
  transponder.position = PositionIn(source.substr(1));
  if (source.front() != 'S') transponder.delivery = Delivery::Other;
  return true;
}

bool VdrReader::Next(ListedService& service) {
  while (!text_.empty()) {
    const std::string_view line = Base::TakeLine(text_);
    if (line.starts_with(Separator)) {
      TakeGroup(line);
    } else if (ReadTransponder(line, service.transponder)) {
      service.number = ++number_;
      return true;
    } else if (!Bare(line).empty() && line.front() != '#') {
      ++unreadable_;
    }
  }
  return false;
}

void VdrReader::Complete(ListedService& service) {
  service.valid = std::count(rest_.begin(), rest_.end(), Separator) >= 6;  // some leave the radio id out
  TakeNames(name_, service);
  TakeVideo(TakeField(rest_, Separator), service);
  service.apid = std::max(0, PidAtFront(TakeField(rest_, Separator), service.valid));
  TakeField(rest_, Separator);  // teletext
  service.caids.clear();
  TakeCaids(TakeField(rest_, Separator), service);
  service.sid = IdIn(TakeField(rest_, Separator), service.valid);
  service.transponder.nid = IdIn(TakeField(rest_, Separator), service.valid);
  service.transponder.tid = IdIn(TakeField(rest_, Separator), service.valid);
  service.type = TypeByPids(service);
}

}  // namespace Formats
