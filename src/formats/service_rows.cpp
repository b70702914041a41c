#include "formats/service_rows.h"

#include "base/text.h"
#include "formats/foreign_fields.h"

#include <algorithm>
#include <bitset>

namespace Formats {
namespace {

constexpr std::string_view Absent = "65535";
constexpr int Free = 0x04;
constexpr int LowestMegahertz = 10000;
constexpr int HighestMegahertz = 13999;
constexpr int LargestRate = 99999;  // kBd

int Rounded(int thousandths) { return (thousandths + 500) / 1000; }

// Of a number of at most five digits.
SdxRow::Number Digits(int value) {
  const SdxRow::Number padded = FiveDigits(value);
  const std::string_view digits = padded;
  return digits.substr(std::min(digits.find_first_not_of('0'), digits.size() - 1));
}

SdxRow::Number PidText(int pid) { return pid > 0 ? Digits(pid) : SdxRow::Number(Absent); }

// A service that nothing tells the type of is taken for television, which it mostly is.
char TypeOf(const ListedService& service) { return service.type == 0 ? 'T' : service.type; }

bool HasPids(const ListedService& service) {
  switch (service.type) {
    case 'T':
      return service.vpid > 0;
    case 'R':
      return service.apid > 0;
    default:
      return service.type != 0;
  }
}

bool IsCircular(Polarisation polarisation) {
  return polarisation == Polarisation::Left || polarisation == Polarisation::Right;
}

class Maker {
 public:
  explicit Maker(const ListOptions& options) : options_(options) {
    for (const std::string& code : options.codes) {
      if (const auto coding = CodificaIn(code, true)) codings_.set(static_cast<std::size_t>(*coding & 0xFF));
    }
  }

  SdxTable Run(ServiceReader& reader) {
    table_.rows.reserve(MostSdxRows);
    table_.lacking = reader.Lacking();
    const ListedService& service = reader.Service();
    std::optional<Drop> untuned;  // why the transponder at hand is none for a row
    while (!table_.full && reader.Next()) {
      ++table_.lines;
      if (!reader.SameTransponder()) untuned = DropOf(service.transponder);
      if (const auto drop = untuned ? untuned : Add(reader)) table_.dropped.Add(*drop);
    }
    for (int line = 0; line < reader.Unreadable(); ++line) table_.dropped.Add(Drop::Unreadable);
    table_.lines += reader.Unreadable();
    return std::move(table_);
  }

 private:
  std::optional<Drop> DropOf(const ListedTransponder& transponder) {
    if (transponder.delivery == Delivery::Other) return Drop::NotSatellite;
    if (transponder.delivery == Delivery::DvbS2 && !options_.keepHd) return Drop::DvbS2;
    if (transponder.modulation == Modulation::Other && !options_.keepHd) return Drop::Modulation;
    if (transponder.frequency == NotSaid) return Drop::NoFrequency;
    megahertz_ = Rounded(transponder.frequency);
    if (megahertz_ < LowestMegahertz || megahertz_ > HighestMegahertz) return Drop::OutOfBand;
    if (IsCircular(transponder.polarisation)) return Drop::Circular;
    if (transponder.polarisation == Polarisation::Unknown) return Drop::BadPolarisation;
    if (Rounded(transponder.symbolRate) > LargestRate) return Drop::SymbolRate;
    if (!TakeSatellite(transponder)) return Drop::Satellite;
    Tune(transponder);
    return std::nullopt;
  }

  // What the rows of the transponder share.
  void Tune(const ListedTransponder& transponder) {
    tuned_ = {};
    tuned_.satellite = satellite_;
    tuned_.frequency.Append("0").Append(Digits(megahertz_));
    tuned_.highBand = megahertz_ >= 11700;
    tuned_.horizontal = transponder.polarisation == Polarisation::Horizontal;
    if (transponder.symbolRate > 0) tuned_.symbolRate = RateText(Rounded(transponder.symbolRate));
    tuned_.fec = FecDigit(transponder.fec);
  }

  bool TakeSatellite(const ListedTransponder& transponder) {
    satellite_ = options_.satellite;
    // Beside services that say where they are, one that does not is nowhere.
    if (!transponder.position) return options_.satellites.empty();
    const auto chosen = options_.satellites.find(*transponder.position);
    if (chosen == options_.satellites.end()) return false;
    satellite_ = chosen->second;
    return true;
  }

  std::optional<Drop> DropOf(const ListedService& service) {
    const bool wanted = service.type == 'T'   ? options_.television
                        : service.type == 'R' ? options_.radio
                        : service.type == 'S' ? options_.data
                                              : options_.television || options_.radio;
    if (!wanted) return Drop::Type;
    if (service.video > Video::Mpeg2 && !options_.keepHd) return Drop::Video;
    codifica_ = CodificaOf(service);
    const bool coded = options_.allCodes || codings_.test(static_cast<std::size_t>(codifica_));
    return coded ? std::nullopt : std::optional(Drop::Code);
  }

  // Makes a row, or says why there is none.
  std::optional<Drop> Add(ServiceReader& reader) {
    const ListedService& service = reader.Service();
    reader.TakeStreams();
    if (const auto drop = DropOf(service)) return drop;
    reader.TakeIdentity();
    if (!service.valid) return Drop::BadNumber;
    if (service.name.empty()) return Drop::NoName;
    const int apid = std::max(service.apid, 0);
    if (options_.LeavesOut(satellite_, service.transponder.tid, service.sid, apid)) return Drop::Filter;
    if (!HasPids(service)) {
      Fill(table_.others.emplace_back(tuned_), service);
      return Drop::NoPid;
    }
    table_.full = table_.rows.size() >= options_.most;
    if (!table_.full) Fill(table_.rows.emplace_back(tuned_), service);
    return std::nullopt;
  }

  void Fill(SdxRow& row, const ListedService& service) const {
    row.name = service.name;
    row.type = TypeOf(service);
    FillIds(row, service.transponder);
    row.vpid = row.type == 'R' ? SdxRow::Number(Absent) : PidText(service.vpid);
    row.apid = PidText(service.apid);
    row.pcr = service.pcr > 0 ? Digits(service.pcr) : row.type == 'R' ? row.apid : row.vpid;
    row.sid = Digits(std::max(service.sid, 0));
    row.codifica = codifica_;
  }

  static void FillIds(SdxRow& row, const ListedTransponder& transponder) {
    if (transponder.nid != NotSaid) row.nid = Digits(transponder.nid);
    row.tid = FiveDigits(std::max(transponder.tid, 0));
  }

  static SdxRow::Number RateText(int kilobaud) { return Digits(kilobaud).Append("\\\\\\\\"); }

  // Those that the receiver has no code for are automatic to it.
  static std::string_view FecDigit(std::string_view fec) {
    constexpr std::string_view Known[] = {"1/2", "2/3", "3/4", "5/6", "7/8"};
    return std::find(std::begin(Known), std::end(Known), fec) == std::end(Known) ? "" : fec.substr(0, 1);
  }

  const ListOptions& options_;
  std::bitset<256> codings_;
  SdxTable table_;
  SdxRow tuned_;  // the transponder at hand
  // Of the service at hand.
  int megahertz_ = 0;
  int satellite_ = 0;
  int codifica_ = Free;
};

}  // namespace

SdxTable RowsOf(ServiceReader& reader, const ListOptions& options) { return Maker(options).Run(reader); }

int CodificaOf(const ListedService& service) {
  for (const int caid : service.caids) {
    if (const auto coding = CodificaOfSystem(caid)) return *coding;
  }
  return Free;
}

}  // namespace Formats
