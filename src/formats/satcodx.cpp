#include "formats/satcodx.h"

#include "base/columns.h"
#include "base/text.h"
#include "formats/list_fields.h"
#include "formats/scan_table.h"

#include <algorithm>
#include <cstdint>
#include <map>

namespace Formats {
namespace {

using Base::Column;
using Base::Cut;

namespace SdxLine {
constexpr Column SatelliteName{11, 17}, Type{29, 1}, Format{30, 4}, Frequency{34, 6}, Polarisation{43, 1},
    NameStart{44, 8}, Position{52, 4}, SymbolRate{70, 5}, Fec{75, 1}, Vpid{76, 4}, Apid{80, 4}, Pcr{84, 4},
    Sid{88, 5}, Nid{93, 5}, Tid{98, 5}, Code{112, 4}, NameEnd{116, 12};
}  // namespace SdxLine

constexpr std::string_view NoCode = "____";
constexpr std::string_view Absent = "65535";
// Lines of this service id are looked up in the filter list without their audio PID.
constexpr int SidWithoutPid = 4435;

int Value(std::string_view column) { return static_cast<int>(Base::ColumnNumber(column)); }

// The digits as a number is written, without zeros in front.
std::string_view Number(std::string_view text) {
  const std::string_view digits = Base::LeadingDigits(text);
  const std::size_t zeros = digits.find_first_not_of('0');
  return zeros == std::string_view::npos ? "0" : digits.substr(zeros);
}

struct CodeGroup {
  std::string_view code;
  int codifica;
};

// The groups are the receiver's own: "MGIV" belongs to the first. The first match counts.
constexpr CodeGroup Codes[] = {{"IRDT", 0x84}, {"IRMG", 0x84}, {"IRNV", 0x84}, {"IRVG", 0x84}, {"MGIV", 0x84},
                               {"MGRD", 0x24}, {"MGVA", 0x24}, {"MGCW", 0x24}, {"MGVG", 0x24}, {"NAGV", 0x44},
                               {"BCRT", 0x64}, {"VICS", 0xA4}, {"VCON", 0xA4}, {"VIMG", 0xA4}};

int CodificaOf(std::string_view code) {
  for (const CodeGroup& group : Codes) {
    if (group.code == code) return group.codifica;
  }
  return 0x04;
}

// As texts, character by character: "5632 " is above "17999" and "05632" is not. The first place settles it for nearly
// every line, and takes no call.
inline bool Above(std::string_view text, std::string_view limit) {
  return std::lexicographical_compare(limit.begin(), limit.end(), text.begin(), text.end(),
                                      [](unsigned char one, unsigned char other) { return one < other; });
}

std::string_view PidText(std::string_view text) { return Value(text) == 0 ? Absent : text; }

bool IsHorizontal(std::string_view line) {
  const std::string_view polarisation = Cut(line, SdxLine::Polarisation);
  return polarisation == "H" || polarisation == "1";
}

class Loader {
 public:
  explicit Loader(const SdxOptions& options) : options_(options) {}

  SdxTable Run(std::string_view text) {
    table_.rows.reserve(std::min(options_.most, MostSdxRows));
    while (!text.empty()) {
      const std::string_view line = Base::TakeLine(text);
      // A download leaves every second line blank: those are no services that were dropped.
      if (table_.lines > 0 && Base::TrimmedLeft(line).empty()) continue;
      if (table_.lines++ == 0) table_.satelliteName = Cut(line, SdxLine::SatelliteName);
      coded_ = coded_ || SaysCode(line);
      if (!Passes(line)) continue;
      if (table_.rows.size() >= options_.most) {
        table_.full = true;
        break;
      }
      Fill(table_.rows.emplace_back(), line);
    }
    // Then no line says whether its service is encrypted.
    if (!coded_) table_.lacking.Add(SdxField::Coding);
    return std::move(table_);
  }

 private:
  static bool SaysCode(std::string_view line) {
    return Cut(line, SdxLine::Code).find_first_not_of("_ ") != std::string_view::npos;
  }

  bool Passes(std::string_view line) {
    const bool rate = Above(Cut(line, SdxLine::SymbolRate), options_.allFormats ? "" : "17999");
    if (!rate) return Dropped(Drop::SymbolRate);
    const char type = Cut(line, SdxLine::Type).front();  // a line with a symbol rate has one
    const bool wanted = (type == 'T' && options_.television) || (type == 'R' && options_.radio) ||
                        (type == 'D' && options_.data);
    if (!wanted) return Dropped(Drop::Type);
    if (type != 'D') {
      if (!options_.allFormats && Cut(line, SdxLine::Format) != "MPG2") return Dropped(Drop::NotMpeg2);
      if (Value(Cut(line, type == 'T' ? SdxLine::Vpid : SdxLine::Apid)) == 0) return WithoutPid(line);
    }
    if (!HasWantedCode(line)) return Dropped(Drop::Code);
    return IsLeftOut(line) ? Dropped(Drop::Filter) : true;
  }

  bool WithoutPid(std::string_view line) {
    if (HasWantedCode(line) && !IsLeftOut(line)) Fill(table_.others.emplace_back(), line);
    return Dropped(Drop::NoPid);
  }

  [[nodiscard]] bool HasWantedCode(std::string_view line) const {
    const auto& codes = options_.codes;
    return options_.allCodes ||
           std::find(codes.begin(), codes.end(), Cut(line, SdxLine::Code)) != codes.end();
  }

  [[nodiscard]] bool IsLeftOut(std::string_view line) const {
    return options_.LeavesOut(options_.satellite, Value(Cut(line, SdxLine::Tid)),
                              Value(Cut(line, SdxLine::Sid)), Value(Cut(line, SdxLine::Apid)));
  }

  bool Dropped(Drop reason) {
    table_.dropped.Add(reason);
    return false;
  }

  void Fill(SdxRow& row, std::string_view line) const {
    const char type = Cut(line, SdxLine::Type)[0];
    row.name.Append(Cut(line, SdxLine::NameStart)).Append(Cut(line, SdxLine::NameEnd));
    row.type = type == 'D' ? 'S' : type;
    row.satellite = options_.satellite;
    row.frequency = Cut(line, SdxLine::Frequency);
    row.highBand = Value(row.frequency) >= 11700;
    row.horizontal = IsHorizontal(line);
    row.symbolRate = Cut(line, SdxLine::SymbolRate);
    row.fec = Cut(line, SdxLine::Fec);
    // Whatever a radio line says of video, the channel has none.
    row.vpid = type == 'R' ? Absent : PidText(Cut(line, SdxLine::Vpid));
    row.apid = PidText(Cut(line, SdxLine::Apid));
    row.pcr = Number(Cut(line, SdxLine::Pcr));
    row.sid = Number(Cut(line, SdxLine::Sid));
    row.nid = Number(Cut(line, SdxLine::Nid));
    row.tid = FiveDigits(Value(Cut(line, SdxLine::Tid)));
    row.codifica = CodificaOf(Cut(line, SdxLine::Code));
  }

  const SdxOptions& options_;
  SdxTable table_;
  bool coded_ = false;  // a line has an encryption code
};

}  // namespace

bool SdxOptions::LeavesOut(int onSatellite, int tid, int sid, int apid) const {
  const int key = sid == SidWithoutPid ? 0 : apid == 0 ? 65535 : apid;
  return filtered.contains({key, sid}) || known.contains({onSatellite, tid, sid});
}

void KeepOthers(SdxTable& table, SdxTable whole) {
  table.others = std::move(whole.others);
  auto next = table.rows.begin();
  for (const SdxRow& row : whole.rows) {
    if (next != table.rows.end() && *next == row) {
      ++next;
    } else {
      table.others.push_back(row);
    }
  }
}

SdxTable ReadSatcodx(std::string_view text, const SdxOptions& options) { return Loader(options).Run(text); }

SatcodxSummary SummaryOf(std::string_view text) {
  SatcodxSummary summary;
  DistinctTransponders distinct;
  std::map<std::string, std::size_t> places;
  while (!text.empty()) {
    const std::string_view line = Base::TakeLine(text);
    if (Base::TrimmedLeft(line).empty()) continue;
    ++summary.lines;
    if (Value(Cut(line, SdxLine::Frequency)) == 0) continue;
    const std::string name(Base::Trimmed(Cut(line, SdxLine::SatelliteName)));
    const auto [place, added] = places.try_emplace(name, summary.satellites.size());
    if (added) summary.satellites.emplace_back(name, 0);
    ++summary.satellites[place->second].second;
    ListedTransponder transponder;
    transponder.position = PositionOf(Value(Cut(line, SdxLine::Position)) % 3600);
    transponder.frequency = Value(Cut(line, SdxLine::Frequency)) * 1000;
    transponder.polarisation = IsHorizontal(line) ? Polarisation::Horizontal : Polarisation::Vertical;
    distinct.Add(transponder);
  }
  summary.transponders = std::move(distinct.list);
  return summary;
}

std::vector<std::string> EncryptionCodesOf(std::string_view text) {
  std::vector<std::string> codes;
  std::set<std::string_view> seen;
  while (!text.empty()) {
    const std::string_view line = Base::TakeLine(text);
    const std::string_view code = Cut(line, SdxLine::Code);
    if (code.size() == SdxLine::Code.width && code != NoCode && seen.insert(code).second)
      codes.emplace_back(code);
  }
  return codes;
}

std::set<std::pair<int, int>> ServicesOf(std::string_view text) {
  std::set<std::pair<int, int>> services;
  while (!text.empty()) {
    const std::string_view line = Base::TakeLine(text);
    services.insert({Value(Cut(line, SdxLine::Tid)), Value(Cut(line, SdxLine::Sid))});
  }
  return services;
}

std::set<std::pair<int, int>> FilteredServices(std::string_view text) {
  std::set<std::pair<int, int>> services;
  for (const std::string_view line : Base::Lines(text)) {
    const std::string_view pid = Base::LeadingDigits(line);
    std::string_view rest = Base::TrimmedLeft(line).substr(pid.size());
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    if (!pid.empty() && !Base::LeadingDigits(rest).empty()) {
      services.insert({Base::LeadingNumber(pid), Base::LeadingNumber(rest)});
    }
  }
  return services;
}

std::string DownloadedLines(std::string_view reply) {
  const char end = reply.find('\r') != std::string_view::npos ? '\r' : '\n';
  std::string lines;
  lines.reserve(reply.size() + reply.size() / 64);
  for (std::size_t at = reply.find(end); at != std::string_view::npos; at = reply.find(end)) {
    lines.append(reply.substr(0, at)).append("\r\n");
    reply.remove_prefix(at + 1);
  }
  return lines;
}

bool LooksLikeSatcodx(std::string_view reply) { return Base::Trimmed(reply.substr(0, 7)) == "SATCODX"; }

}  // namespace Formats
