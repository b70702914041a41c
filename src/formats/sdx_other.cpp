#include "formats/sdx_other.h"

#include "base/text.h"
#include "formats/sdx_import.h"

#include <map>

namespace Formats {
namespace {

using namespace Routines;

bool SaysNothing(std::string_view number) { return Base::LeadingNumber(number) == 0; }

SdxFields LackingIn(const SdxRow& row, SdxFields lacking) {
  if (row.transponder) return lacking;
  constexpr std::string_view Absent = "65535";
  constexpr std::string_view FecDigits = "12357";
  for (const SdxField field : {SdxField::Ecm, SdxField::Active, SdxField::Band}) lacking.Add(field);
  const std::pair<bool, SdxField> fields[] = {
      {std::string_view(row.fec).empty() || FecDigits.find(row.fec) == std::string_view::npos, SdxField::Fec},
      {row.vpid == Absent && row.type != 'R', SdxField::Vpid},
      {row.apid == Absent, SdxField::Apid},
      {row.pcr == Absent, SdxField::Pcr},
      {SaysNothing(row.pcr), SdxField::Pcr},
      {SaysNothing(row.tid), SdxField::Tid},
      {SaysNothing(row.nid), SdxField::Nid}};
  for (const auto& [absent, field] : fields) {
    if (absent) lacking.Add(field);
  }
  return lacking;
}

class Maker {
 public:
  Maker(const SdxTable& table, const std::string& rates) : table_(table) {
    list_.symbolRates = rates;
    list_.lacking = table.lacking;
  }

  OtherList Run() {
    for (const SdxRow& row : table_.rows) Add(row);
    list_.offered = list_.Count();
    for (const SdxRow& row : table_.others) Add(row);
    return std::move(list_);
  }

 private:
  void Add(const SdxRow& row) {
    OtherChannel& channel = list_.channels.emplace_back();
    // A row of no channel keeps its number.
    if (!InBand(row) || !IsChannel(row)) return;
    const auto code = RateCodeOf(row, list_.symbolRates);
    channel.record = ChannelRecordOf(row);
    channel.lacking = LackingIn(row, table_.lacking);
    if (!code) channel.lacking.Add(SdxField::SymbolRate);
    channel.transponder = PlaceOf(TransponderRecordOf(row, list_.symbolRates));
    list_.satellites.set(static_cast<std::size_t>(row.satellite) % list_.satellites.size());
  }

  // Each transponder once: a list may have many channels on it.
  int PlaceOf(const TransponderRecord& record) {
    const auto [found, added] =
        places_.try_emplace(record.bytes, static_cast<int>(list_.transponders.size()));
    if (added) list_.transponders.push_back(record);
    return found->second;
  }

  const SdxTable& table_;
  OtherList list_;
  std::map<std::array<Base::Byte, TransponderRecord::Size>, int> places_;
};

}  // namespace

OtherList OtherListOf(const SdxTable& table, const std::string& rates) { return Maker(table, rates).Run(); }

}  // namespace Formats
