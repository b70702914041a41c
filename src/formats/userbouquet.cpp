#include "formats/userbouquet.h"

#include "base/text.h"
#include "formats/foreign_fields.h"
#include "formats/lamedb.h"
#include "formats/list_fields.h"

namespace Formats {
namespace {

constexpr std::string_view Reference = "#SERVICE";
constexpr std::string_view Name = "#NAME";
constexpr std::string_view Description = "#DESCRIPTION";

// What follows a keyword, with or without a colon; nothing where the line begins with something else.
std::optional<std::string_view> Behind(std::string_view line, std::string_view keyword) {
  if (!line.starts_with(keyword)) return std::nullopt;
  line.remove_prefix(keyword.size());
  if (line.starts_with(':')) line.remove_prefix(1);
  return Bare(line);
}

enum class Kind { Service, Marker, Other };

// kind:flags:type:SID:TSID:ONID:namespace:0:0:0:name, of which all but the first two are hexadecimal.
Kind TakeReference(std::string_view fields, OrderEntry& entry) {
  constexpr char Separator = ':';
  constexpr int Marker = 64;
  const auto kind = WholeNumber(TakeField(fields, Separator), 99999);
  const auto flags = WholeNumber(TakeField(fields, Separator), 99999);
  if (kind == 1 && flags && (*flags & Marker) != 0) return Kind::Marker;
  TakeField(fields, Separator);
  const auto id = [&fields] { return HexNumber(TakeField(fields, Separator), 65535); };
  const auto sid = id();
  const auto tid = id();
  const auto nid = id();
  const auto names = HexNumber(TakeField(fields, Separator), UINT32_MAX);
  if (kind != 1 || flags != 0 || !sid || !tid || !nid || !names) return Kind::Other;
  for (int i = 0; i < 3; ++i) TakeField(fields, Separator);
  entry = {0,
           {},
           PositionOfNamespace(*names),
           static_cast<int>(*nid),
           static_cast<int>(*tid),
           static_cast<int>(*sid)};
  TakeName(entry.name, fields.substr(0, fields.find(Separator)));
  return Kind::Service;
}

}  // namespace

bool IsUserBouquet(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = Base::TakeLine(text);
    if (Behind(line, Reference)) return true;
    if (!Bare(line).empty() && line.front() != '#') return false;
  }
  return false;
}

Order ReadUserBouquet(std::string_view text) {
  Order order;
  bool named = false;  // whether a description would be the last entry's
  while (!text.empty()) {
    const std::string_view line = Base::TakeLine(text);
    if (const auto reference = Behind(line, Reference)) {
      OrderEntry entry;
      const Kind kind = TakeReference(*reference, entry);
      named = kind == Kind::Service;
      if (named) order.entries.push_back(entry);
      if (kind == Kind::Other) ++order.unreadable;
    } else if (const auto description = Behind(line, Description)) {
      if (named) TakeName(order.entries.back().name, *description);
    } else if (const auto name = Behind(line, Name)) {
      TakeName(order.name, *name);
    }
  }
  return order;
}

}  // namespace Formats
