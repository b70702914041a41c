#include "formats/scan_table.h"

#include "base/text.h"
#include "formats/foreign_fields.h"
#include "formats/list_fields.h"

namespace Formats {
namespace {

constexpr std::string_view Satellite = "[SATTYPE]";
constexpr std::string_view Transponders = "[DVB]";
constexpr char Separator = ',';

Modulation ModulationOf(std::string_view text) {
  if (text.empty()) return Modulation::Unknown;
  return text == "QPSK" ? Modulation::Qpsk : Modulation::Other;
}

// "11919,V,27500,23,S2,8PSK"; false where the first three are no transponder.
bool TakeTransponder(std::string_view fields, ListedTransponder& transponder) {
  transponder.frequency = KilohertzIn(Bare(TakeField(fields, Separator)));
  transponder.polarisation = PolarisationIn(TakeField(fields, Separator));
  const auto kilobaud = WholeNumber(TakeField(fields, Separator), 999999);
  transponder.symbolRate = kilobaud ? *kilobaud * 1000 : NotSaid;
  transponder.fec = FecOfDigits(WholeNumber(TakeField(fields, Separator), 999).value_or(0));
  const std::string_view system = Bare(TakeField(fields, Separator));
  if (system.find("S2") != std::string_view::npos) transponder.delivery = Delivery::DvbS2;
  // Behind the modulation some have the number of a stream.
  fields = Bare(fields);
  transponder.modulation = ModulationOf(fields.substr(0, fields.find_first_of(" ,")));
  return transponder.frequency != NotSaid && transponder.polarisation != Polarisation::Unknown && kilobaud;
}

void TakeSatelliteEntry(std::string_view key, std::string_view value, TransponderList& list) {
  if (key == "2") TakeName(list.satellite, value);
  const auto tenths = key == "1" ? WholeNumber(value, 3599) : std::nullopt;
  if (tenths) list.position = PositionOf(*tenths);
}

}  // namespace

bool IsTransponderIni(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = Bare(Base::TakeLine(text));
    if (line == Satellite || line == Transponders) return true;
    if (!line.empty() && line.front() != ';' && line.front() != '#') return false;
  }
  return false;
}

TransponderList ReadTransponderIni(std::string_view text) {
  TransponderList list;
  std::string_view section;
  while (!text.empty()) {
    std::string_view line = Bare(Base::TakeLine(text));
    if (line.starts_with('[')) section = line;
    if (line.empty() || line.front() == '[' || line.front() == ';') continue;
    const std::string_view key = Bare(TakeField(line, '='));
    if (section == Satellite) TakeSatelliteEntry(key, Bare(line), list);
    if (section != Transponders || key == "0") continue;  // their count
    ListedTransponder transponder;
    if (TakeTransponder(line, transponder)) {
      list.transponders.push_back(transponder);
    } else {
      ++list.unreadable;
    }
  }
  for (ListedTransponder& transponder : list.transponders) transponder.position = list.position;
  return list;
}

std::optional<int> PositionInFileName(std::string_view name) {
  return PositionIn(name.substr(name.find_last_of("-_") + 1));
}

void DistinctTransponders::Add(const ListedTransponder& transponder) {
  constexpr int Nowhere = 9999;
  if (transponder.frequency == NotSaid) return;
  const bool isNew =
      seen_.insert({transponder.position.value_or(Nowhere), transponder.frequency, transponder.polarisation})
          .second;
  if (isNew) list.push_back(transponder);
}

TransponderList TranspondersOf(ServiceReader& reader) {
  DistinctTransponders distinct;
  while (reader.Read()) distinct.Add(reader.Service().transponder);
  TransponderList list;
  list.transponders = std::move(distinct.list);
  list.unreadable = reader.Unreadable();
  return list;
}

}  // namespace Formats
