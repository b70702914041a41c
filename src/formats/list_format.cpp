#include "formats/list_format.h"

#include "base/code_page.h"
#include "base/text.h"
#include "formats/dvbv5.h"
#include "formats/lamedb.h"
#include "formats/satcodx.h"
#include "formats/scan_table.h"
#include "formats/userbouquet.h"
#include "formats/vdr_channels.h"
#include "model/flash_loader.h"

#include <algorithm>

namespace Formats {
namespace {

template <class Reader>
std::unique_ptr<ServiceReader> Open(std::string_view text) {
  return std::make_unique<Reader>(text);
}

template <class Reader>
TransponderList TranspondersIn(std::string_view text) {
  Reader reader(text);
  return TranspondersOf(reader);
}

template <class Reader>
Order OrderIn(std::string_view text) {
  Reader reader(text);
  return OrderOf(reader);
}

template <class Reader>
constexpr ListFormat Channels(std::string_view id, std::string_view title,
                              bool (*recognised)(std::string_view)) {
  return {id, title, recognised, Open<Reader>, TranspondersIn<Reader>, OrderIn<Reader>};
}

constexpr ListFormat Formats[] = {
    {"lamedb", "Enigma2 lamedb", IsLamedb, Open<LamedbReader>, ReadLamedbTransponders, OrderIn<LamedbReader>},
    {"userbouquet", "Enigma2 userbouquet", IsUserBouquet, nullptr, nullptr, ReadUserBouquet},
    {"ini", "Transponder .ini", IsTransponderIni, nullptr, ReadTransponderIni, nullptr},
    Channels<DvbV5Reader>("dvbv5", "DVBv5", IsDvbV5),
    {"scan", "Tabella di scansione DVBv5", IsDvbV5ScanTable, nullptr, ReadDvbV5Transponders, nullptr},
    Channels<VdrReader>("vdr", "VDR channels.conf", IsVdrChannels),
    Channels<ZapReader>("zap", "zap channels.conf", IsZap),
    {"order", "Elenco di nomi e numeri", IsOrderText, nullptr, nullptr, ReadOrderText},
};

}  // namespace

ListText::ListText(std::string_view bytes) : view_(bytes) {
  const bool lowFirst = bytes.starts_with("\xFF\xFE");
  if (lowFirst || bytes.starts_with("\xFE\xFF")) {
    view_ = own_ = Base::FromUtf16Lossy(bytes.substr(2), !lowFirst);
  } else if (bytes.starts_with("\xEF\xBB\xBF")) {
    view_.remove_prefix(3);
  }
  if (view_.find('\n') != std::string_view::npos || view_.find('\r') == std::string_view::npos) return;
  std::string lines(view_);
  std::replace(lines.begin(), lines.end(), '\r', '\n');
  own_ = std::move(lines);
  view_ = own_;
}

std::span<const ListFormat> ListFormats() { return Formats; }

const ListFormat* FormatOf(std::string_view text) {
  const auto* found = std::find_if(std::begin(Formats), std::end(Formats),
                                   [&](const ListFormat& format) { return format.Recognised(text); });
  return found == std::end(Formats) ? nullptr : found;
}

namespace {

// That of a SatcoDX list, which says no positions, and 0 for what it does not know.
Order OrderOfSatcodx(std::string_view text) {
  Order order;
  const auto said = [](std::string_view number) {
    const int value = Base::LeadingNumber(number);
    return value == 0 ? Routines::NotSaid : value;
  };
  for (const SdxRow& row : ReadSatcodx(text, WithoutFilters(SdxOptions())).rows)
    order.entries.push_back({0, std::string(Base::TrimmedRight(row.name)), std::nullopt, said(row.nid),
                             said(row.tid), said(row.sid)});
  return order;
}

}  // namespace

Order OrderInFile(Base::ByteView bytes) {
  if (bytes.size() == Routines::FlashSize) {
    auto flash = std::make_unique<Routines::State>();
    Routines::LoadFlash(*flash, bytes, Routines::CapacityOf(bytes), 0, {});
    return Routines::OrderOf(*flash);
  }
  if (LooksLikeSatcodx(Base::AsText(bytes))) return OrderOfSatcodx(Base::AsText(bytes));
  const ListText text(Base::AsText(bytes));
  const ListFormat* format = FormatOf(text.View());
  if (format != nullptr) return format->OrderOf == nullptr ? Order() : format->OrderOf(text.View());
  const bool isText = text.View().find('\0') == std::string_view::npos;
  return isText ? ReadOrderText(text.View()) : Order();
}

}  // namespace Formats
