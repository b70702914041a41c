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
    const char letter = text.front();
    text.remove_prefix(1);
    const int value = TakeNumber(text, Automatic);
    const Polarisation polarisation = PolarisationOf(letter);
    if (polarisation != Polarisation::Unknown) transponder.polarisation = polarisation;
    const int key = letter | 0x20;
    if (key == 'c') transponder.fec = FecOfDigits(value);
    if (key == 's' && value > 0) transponder.delivery = Delivery::DvbS2;
    if (key == 'm' && value > 0 && value < Automatic)
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

bool VdrReader::ReadTransponder() {
  const std::string_view fields = rest_;
  std::string_view line = rest_;
  const std::string_view frequency = TakeField(line, Separator);
  const std::string_view parameters = TakeField(line, Separator);
  const std::string_view source = TakeField(line, Separator);
  std::string_view rate = TakeField(line, Separator);
  if (source.empty() || !IsCapital(source.front())) return false;
  rest_ = line;
  // With the separator behind them, or the next line's rate might go on where this one ends.
  tuning_ = line.empty() ? line : fields.substr(0, fields.size() - line.size());
  ListedTransponder& transponder = service_.transponder = {};
  transponder.frequency = KilohertzIn(frequency);
  const int kilobaud = TakeNumber(rate, 999999);
  transponder.symbolRate = kilobaud == NotSaid ? NotSaid : kilobaud * 1000;
  TakeParameters(parameters, transponder);
  transponder.position = PositionIn(source.substr(1));
  if (source.front() != 'S') transponder.delivery = Delivery::Other;
  return true;
}

bool VdrReader::Next() {
  while (!text_.empty()) {
    const std::string_view line = Base::TakeLine(text_);
    if (line.starts_with(Separator)) {
      TakeGroup(line);
      continue;
    }
    rest_ = line;
    name_ = TakeField(rest_, Separator);
    sameTransponder_ = !tuning_.empty() && rest_.starts_with(tuning_);
    if (sameTransponder_) rest_.remove_prefix(tuning_.size());
    if (sameTransponder_ || ReadTransponder()) {
      ++number_;
      return true;
    }
    if (!Bare(line).empty() && line.front() != '#') ++unreadable_;
  }
  return false;
}

void VdrReader::TakeStreams() {
  std::string_view rest = rest_;
  bool& valid = service_.valid = true;
  TakeVideo(rest, service_);
  service_.apid = std::max(0, TakePid(rest, valid));
  TakeEnd(rest, Separator);    // further ones, and languages
  TakeField(rest, Separator);  // teletext
  TakeCaids(rest, service_);
  service_.type = TypeByPids(service_);
  rest_ = rest;
}

// Names are "name,short;provider", where "|" stands for a colon.
void VdrReader::TakeIdentity() {
  bool& valid = service_.valid;
  service_.number = number_;
  service_.sid = TakeId(rest_, Separator, valid);
  service_.transponder.nid = TakeId(rest_, Separator, valid);
  // A line that ends before it is not whole; some leave out the radio's id behind it.
  valid = valid && !rest_.empty();
  service_.transponder.tid = TakeId(rest_, Separator, valid);
  std::string_view provider = name_;
  const std::string_view names = TakeField(provider, ';');
  TakeName(service_.name, names.substr(0, names.rfind(',')));
  TakeName(service_.provider, provider);
  for (std::string* text : {&service_.name, &service_.provider})
    std::replace(text->begin(), text->end(), '|', Separator);
}

}  // namespace Formats
