#include "listed.h"

#include "base/text.h"
#include "formats/list_summary.h"
#include "formats/service_rows.h"

#include <algorithm>

namespace Fuzz {

using namespace Formats;

namespace {

// Eight bits of choices, a satellite, and a few positions that are wanted.
ListOptions OptionsOf(Input& choices) {
  ListOptions options;
  const std::size_t choice = choices.Byte();
  options.television = (choice & 1U) == 0;
  options.radio = (choice & 2U) == 0;
  options.data = (choice & 4U) != 0;
  options.allCodes = (choice & 8U) == 0;
  options.keepHd = (choice & 16U) != 0;
  options.codes = {"04", "A4"};
  options.satellite = static_cast<int>(choices.Byte() % 26);
  if ((choice & 32U) != 0) return options;
  for (const int position : {130, 192, -50})
    options.satellites[position] = static_cast<int>(choices.Byte() % 26);
  return options;
}

bool IsShown(std::string_view name) {
  return std::none_of(name.begin(), name.end(), [](char c) { return c >= 0 && c < ' '; }) &&
         Base::Trimmed(name) == name;
}

bool IsId(int id) { return id >= NotSaid && id <= 65535; }
bool IsPid(int pid) { return pid >= NotSaid && pid < 8191; }

void CheckTransponder(const ListedTransponder& transponder) {
  Require(transponder.position.value_or(0) >= -1800 && transponder.position.value_or(0) <= 1800,
          "a position");
  Require(transponder.frequency == NotSaid || transponder.frequency > 0, "a frequency");
  Require(transponder.symbolRate >= NotSaid, "a symbol rate");
  Require(IsId(transponder.nid) && IsId(transponder.tid), "ids of a transponder");
}

// How many there are.
int CheckEach(ServiceReader& reader) {
  int services = 0;
  for (; reader.Read(); ++services) {
    const ListedService& service = reader.Service();
    CheckTransponder(service.transponder);
    Require(IsShown(service.name) && IsShown(service.provider), "names can be shown");
    Require(IsId(service.sid) && service.number >= 0, "ids of a service");
    Require(IsPid(service.vpid) && IsPid(service.apid) && IsPid(service.pcr), "PIDs");
    for (const int caid : service.caids) Require(caid >= 0 && caid <= 0xFFFF, "a system's number");
  }
  return services + reader.Unreadable();
}

void CheckServiceRows(const SdxTable& table, const ListOptions& options, int lines) {
  CheckRows(table);
  const int full = table.full ? 1 : 0;
  Require(static_cast<int>(table.rows.size()) + table.dropped.Total() + full == table.lines,
          "every service is taken or dropped for a reason");
  Require(table.full || table.lines == lines, "every service is read");
  Require(static_cast<int>(table.others.size()) == table.dropped.Count(Drop::NoPid),
          "what lacks PIDs is kept");
  for (const SdxRow& row : table.rows) {
    Require((row.type == 'T' && options.television) || (row.type == 'R' && options.radio) ||
                (row.type == 'S' && options.data),
            "only the types that are wanted");
    const std::string_view frequency = row.frequency;
    Require(!std::string_view(row.name).empty() && frequency >= "010000" && frequency <= "013999",
            "a name and a frequency of the band");
    Require(row.type != 'T' || row.vpid != "65535", "television has video");
    Require(row.type != 'R' || (row.vpid == "65535" && row.apid != "65535"), "a radio has sound alone");
  }
}

}  // namespace

void CheckServices(Input& choices, const OpenReader& open) {
  const ListOptions options = OptionsOf(choices);
  const int lines = CheckEach(*open());
  const SdxTable table = RowsOf(*open(), options);
  CheckServiceRows(table, options, lines);
  CheckRowImport(table, 1 + options.satellite * 9);
  const Order order = OrderOf(*open());
  Require(static_cast<int>(order.entries.size()) + order.unreadable == lines, "an order has every service");
  const ListSummary summary = SummaryOf(*open());
  int counted = summary.withoutPosition;
  for (const auto& [position, services] : summary.positions) counted += services;
  Require(counted == summary.services && counted <= lines, "positions have all services");
  Require(ProposedSatellites(*DemoList(), summary.transponders).size() <= summary.positions.size(),
          "no more satellites than positions");
}

void CheckTransponders(const TransponderList& list) {
  Require(IsShown(list.satellite) && list.unreadable >= 0, "the satellite can be shown");
  for (const ListedTransponder& transponder : list.transponders) {
    CheckTransponder(transponder);
    Require(transponder.frequency != NotSaid, "a transponder has a frequency");
  }
}

void CheckOrder(const Order& order) {
  Require(IsShown(order.name) && order.unreadable >= 0, "the order's name can be shown");
  for (const OrderEntry& entry : order.entries) {
    Require(IsShown(entry.name) && entry.number >= 0, "an entry can be shown");
    Require(IsId(entry.nid) && IsId(entry.tid) && IsId(entry.sid), "an entry's ids");
    Require(!entry.name.empty() || entry.sid != NotSaid, "an entry stands for a channel");
  }
  const std::string text = WriteOrderText(order);
  Order again = ReadOrderText(std::string_view(text).substr(3));
  Require(again.unreadable == 0 && again.entries.size() == order.entries.size(),
          "an order written is an order");
  for (std::size_t i = 0; i < order.entries.size(); ++i)
    again.entries[i].position = order.entries[i].position;
  Require(again.entries == order.entries, "an order written is the same");
}

}  // namespace Fuzz
