#include "ui/sources/sdx_model.h"

#include "base/text.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

#include <algorithm>

namespace Ui {
namespace {

constexpr std::string_view SdxHeader =
    "^Prog.|<Canale                         |^TID    |^SID      |^VPID  |^APID  |^AECM  |^VECM  |^PCR   "
    "|^Codifica|Satellite|Frequenza|NID  |Bouquet       ";

// Sources write PIDs with and without zeros in front.
std::string PidCell(std::string_view pid) {
  constexpr std::size_t Digits = 4;
  return std::string(Digits - std::min(Digits, pid.size()), '0').append(pid);
}

Review::FilterRow FilterRowOf(const Formats::SdxRow& row) {
  using Routines::ChannelKind;
  Routines::ChannelRecord flags;
  Set(flags, Routines::ChannelField::Flags, static_cast<std::uint32_t>(row.codifica));
  Review::FilterRow found;
  found.name = row.name;
  found.kind = row.type == 'T'   ? ChannelKind::Tv
               : row.type == 'R' ? ChannelKind::Radio
                                 : ChannelKind::Service;
  found.sid = Base::LeadingNumber(row.sid);
  found.megahertz = Base::LeadingCount(row.frequency, 999999);
  found.satellite = row.satellite;
  found.coding = row.codifica;
  found.bouquetName = row.bouquet;
  found.inactive = Get(flags, Routines::ChannelField::Active) == 0;
  return found;
}

}  // namespace

SdxModel::SdxModel(const Formats::SdxTable& table, QObject* parent)
    : TableModel(SdxHeader, parent), table_(table) {}

void SdxModel::Refresh() {
  beginResetModel();
  rows_ = static_cast<int>(table_.rows.size());
  endResetModel();
}

void SdxModel::ShowSlots(std::vector<int> slots) {
  if (slots == slots_) return;
  slots_ = std::move(slots);
  if (rows_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, 0));
}

int SdxModel::SlotOf(int row) const {
  const auto place = static_cast<std::size_t>(row) - 1;
  return place < slots_.size() ? slots_[place] : 0;
}

int SdxModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

Qt::ItemFlags SdxModel::flags(const QModelIndex& index) const {
  return TableModel::flags(index) | (index.isValid() ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

QMimeData* SdxModel::mimeData(const QModelIndexList& indexes) const { return RowsAs(SdxRowsType, indexes); }

TableModel::Rows SdxModel::Matching(const Review::Filter& filter) const {
  Rows rows;
  for (int row = 1; row <= rows_; ++row) {
    if (filter.Matches(FilterRowOf(table_.rows[static_cast<std::size_t>(row - 1)]))) rows.push_back(row);
  }
  return rows;
}

QString SdxModel::CellText(int number, int column) const {
  const Formats::SdxRow& row = table_.rows[static_cast<std::size_t>(number - 1)];
  if (column == 0) return Text(Base::ZeroPadded(number, 4));
  if (std::string_view(row.name).starts_with('\0')) return {};
  const std::string codifica = Base::HexByte(row.codifica);
  const std::string satellite = Routines::SatelliteLabel(static_cast<std::uint32_t>(row.satellite));
  const std::string vpid = PidCell(row.vpid), apid = PidCell(row.apid), pcr = PidCell(row.pcr);
  const std::string aecm = PidCell(row.aecm), vecm = PidCell(row.vecm);
  const std::string_view cells[] = {row.name, row.tid,  row.sid,   vpid,          apid,    aecm,       vecm,
                                    pcr,      codifica, satellite, row.frequency, row.nid, row.bouquet};
  return CodePageText(Base::TrimmedRight(cells[static_cast<std::size_t>(column - 1)]));
}

Colour SdxModel::CellColour(int number, int column) const {
  if (column == 0) return Colours::Header;
  return SdxColourOf(table_.rows[static_cast<std::size_t>(number - 1)].Kind());
}

QString SdxModel::Tip(int row) const {
  return InChannelList(row) ? "Già in lista al " + Text(Base::ZeroPadded(SlotOf(row), 4)) : QString();
}

QString SdxModel::Spoken(int row) const {
  const QString found = TableModel::Spoken(row);
  return InChannelList(row) ? found + (found.isEmpty() ? "" : ", ") + "già in lista" : found;
}

}  // namespace Ui
