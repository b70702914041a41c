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
void TakeVideo(std::string_view& rest, ListedService& service) {
  service.vpid = TakePid(rest, service.valid);
  service.pcr = rest.starts_with('+') ? TakePid(rest = rest.substr(1), service.valid) : NotSaid;
  service.video = rest.starts_with('=') ? VideoOf(TakeNumber(rest = rest.substr(1), 9999)) : Video::Unknown;
  service.valid = TakeEnd(rest, Separator) && service.valid;
}

// Numbers below 256 are devices and the user's own.
void TakeCaids(std::string_view& rest, ListedService& service) {
  service.caids.clear();
  while (const auto caid = TakeHex(rest)) {
    service.valid = service.valid && *caid <= 0xFFFF;
    if (*caid > 0xFF) service.caids.push_back(static_cast<int>(*caid & 0xFFFF));
    if (!rest.starts_with(',')) break;
    rest.remove_prefix(1);
  }
  service.valid = TakeEnd(rest, Separator) && service.valid;
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

bool VdrReader::ReadTransponder(std::string_view line) {
  rest_ = line;
  name_ = TakeField(rest_, Separator);
  if (!tuning_.empty() && rest_.starts_with(tuning_)) {
    rest_.remove_prefix(tuning_.size());
    return true;
  }
  const std::string_view fields = rest_;
  const std::string_view frequency = TakeField(rest_, Separator);
  const std::string_view parameters = TakeField(rest_, Separator);
  const std::string_view source = TakeField(rest_, Separator);
  std::string_view rate = TakeField(rest_, Separator);
  if (source.empty() || !IsCapital(source.front())) return false;
  tuning_ = fields.substr(0, fields.size() - rest_.size());
  transponder_ = {};
  transponder_.frequency = KilohertzIn(frequency);
  const int kilobaud = TakeNumber(rate, 999999);
  transponder_.symbolRate = kilobaud == NotSaid ? NotSaid : kilobaud * 1000;
  TakeParameters(parameters, transponder_);
  transponder_.position = PositionIn(source.substr(1));
  if (source.front() != 'S') transponder_.delivery = Delivery::Other;
  return true;
}

bool VdrReader::Next(ListedService& service) {
  while (!text_.empty()) {
    const std::string_view line = Base::TakeLine(text_);
    if (line.starts_with(Separator)) {
      TakeGroup(line);
    } else if (ReadTransponder(line)) {
      service.transponder = transponder_;
      ++number_;
      return true;
    } else if (!Bare(line).empty() && line.front() != '#') {
      ++unreadable_;
    }
  }
  return false;
}

void VdrReader::TakeStreams(ListedService& service) {
  service.valid = true;
  TakeVideo(rest_, service);
  service.apid = std::max(0, TakePid(rest_, service.valid));
  TakeEnd(rest_, Separator);    // further ones, and languages
  TakeField(rest_, Separator);  // teletext
  TakeCaids(rest_, service);
  service.type = TypeByPids(service);
}

// Names are "name,short;provider", where "|" stands for a colon.
void VdrReader::TakeIdentity(ListedService& service) {
  service.number = number_;
  service.sid = TakeId(rest_, Separator, service.valid);
  service.transponder.nid = TakeId(rest_, Separator, service.valid);
  // A line that ends before it is not whole; some leave out the radio's id behind it.
  service.valid = service.valid && !rest_.empty();
  service.transponder.tid = TakeId(rest_, Separator, service.valid);
  std::string_view provider = name_;
  const std::string_view names = TakeField(provider, ';');
  TakeName(service.name, names.substr(0, names.rfind(',')));
  TakeName(service.provider, provider);
  for (std::string* text : {&service.name, &service.provider})
    std::replace(text->begin(), text->end(), '|', Separator);
}

}  // namespace Formats
