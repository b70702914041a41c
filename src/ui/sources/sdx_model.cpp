#include "ui/sources/sdx_model.h"

#include "base/text.h"
#include "ui/kit/dialogs.h"
#include "ui/kit/text.h"

namespace Ui {
namespace {

constexpr std::string_view SdxHeader =
    "^Prog.|<Canale                         |^TID    |^SID      |^VPID  |^APID  |^AECM  |^VECM  |^PCR   "
    "|^Codifica|Satellite|Frequenza|NID  |Bouquet       ";

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
  const std::string_view cells[] = {row.name,      row.tid,  row.sid,    row.vpid, row.apid,
                                    row.aecm,      row.vecm, row.pcr,    codifica, satellite,
                                    row.frequency, row.nid,  row.bouquet};
  return CodePageText(Base::TrimmedRight(cells[static_cast<std::size_t>(column - 1)]));
}

Colour SdxModel::CellColour(int number, int column) const {
  if (column == 0) return Colours::Header;
  return SdxColourOf(table_.rows[static_cast<std::size_t>(number - 1)].Kind());
}

}  // namespace Ui
