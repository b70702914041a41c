#include "formats/order_list.h"

#include "base/code_page.h"
#include "base/text.h"
#include "formats/foreign_fields.h"
#include "formats/list_fields.h"

namespace Formats {
namespace {

constexpr char Separator = ';';
constexpr int HighestNumber = 999999;

// Decimal, or hexadecimal behind "0x".
std::optional<int> IdOf(std::string_view text) {
  text = Bare(text);
  if (!text.starts_with("0x") && !text.starts_with("0X")) return WholeNumber(text, 65535);
  const auto id = HexNumber(text.substr(2), 65535);
  return id ? std::optional(static_cast<int>(*id)) : std::nullopt;
}

// "NID-TID-SID"; nothing at all is fine, anything else is not.
bool TakeIds(std::string_view text, OrderEntry& entry) {
  text = Bare(text);
  if (text.empty()) return true;
  const auto nid = IdOf(TakeField(text, '-'));
  const auto tid = IdOf(TakeField(text, '-'));
  const auto sid = IdOf(text);
  if (!nid || !tid || !sid) return false;
  entry.nid = *nid;
  entry.tid = *tid;
  entry.sid = *sid;
  return true;
}

// The ids stand behind the last separator, so that a name may have some of its own.
bool TakeEntry(std::string_view line, OrderEntry& entry) {
  const std::size_t first = line.find(Separator);
  const std::size_t last = line.rfind(Separator);
  if (first == std::string_view::npos) {
    TakeName(entry.name, line);
    return !entry.name.empty();
  }
  const std::string_view number = Bare(line.substr(0, first));
  if (!number.empty()) entry.number = WholeNumber(number, HighestNumber).value_or(NotSaid);
  const bool ids = first != last;
  TakeName(entry.name, line.substr(first + 1, ids ? last - first - 1 : std::string_view::npos));
  return entry.number != NotSaid && (!ids || TakeIds(line.substr(last + 1), entry)) &&
         (!entry.name.empty() || entry.sid != NotSaid);
}

bool IsEntry(std::string_view line) {
  OrderEntry entry;
  return std::count(line.begin(), line.end(), Separator) >= 2 && TakeEntry(line, entry);
}

}  // namespace

Order ReadOrderText(std::string_view text) {
  Order order;
  while (!text.empty()) {
    const std::string_view line = Bare(Base::TakeLine(text));
    if (line.empty() || line.front() == '#') continue;
    OrderEntry entry;
    if (TakeEntry(line, entry)) {
      order.entries.push_back(entry);
    } else {
      ++order.unreadable;
    }
  }
  return order;
}

bool IsOrderText(std::string_view text) { return MostLines(text, "#", IsEntry); }

std::string WriteOrderText(const Order& order) {
  std::string text = "\xEF\xBB\xBF";
  for (const OrderEntry& entry : order.entries) {
    if (entry.number > 0) text += std::to_string(entry.number);
    text.append(";").append(Base::ToUtf8(entry.name)).append(";");
    if (entry.sid != NotSaid)
      text.append(std::to_string(std::max(entry.nid, 0)))
          .append("-")
          .append(std::to_string(std::max(entry.tid, 0)));
    if (entry.sid != NotSaid) text.append("-").append(std::to_string(entry.sid));
    text += "\r\n";
  }
  return text;
}

Order OrderOf(ServiceReader& reader) {
  Order order;
  while (reader.Read()) {
    const ListedService& service = reader.Service();
    const ListedTransponder& transponder = service.transponder;
    order.entries.push_back(
        {service.number, service.name, transponder.position, transponder.nid, transponder.tid, service.sid});
  }
  order.unreadable = reader.Unreadable();
  return order;
}

}  // namespace Formats
