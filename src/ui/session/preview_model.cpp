#include "ui/session/preview_model.h"

#include "base/text.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/list/row_colours.h"

#include <QBrush>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

namespace Ui {

std::vector<PreviewLine> LinesOf(const Routines::State& state, const Routines::SlotMap& map,
                                 const std::vector<int>& slots) {
  std::vector<PreviewLine> lines;
  for (const int slot : slots) {
    if (state.Channel(slot).Empty()) continue;
    const QString name = CodePageText(Base::TrimmedRight(state.Channel(slot).Name()));
    const bool stays = map[slot] == slot;
    lines.push_back({map[slot],
                     {name, stays ? QString() : QString::number(slot)},
                     map[slot] == 0 ? QString("Non trova posto") : QString()});
  }
  std::stable_sort(lines.begin(), lines.end(),
                   [](const PreviewLine& one, const PreviewLine& other) { return one.slot < other.slot; });
  return lines;
}

PreviewModel::PreviewModel(QStringList titles, bool ticks, QObject* parent)
    : QAbstractTableModel(parent), titles_(std::move(titles)), ticks_(ticks) {}

void PreviewModel::Show(std::vector<PreviewLine> lines) {
  beginResetModel();
  lines_ = std::move(lines);
  endResetModel();
  Q_EMIT TicksChanged();
}

bool PreviewModel::Ticked(std::size_t line) const {
  return lines_[line].fault.isEmpty() &&
         !std::binary_search(leftOut_.begin(), leftOut_.end(), lines_[line].slot);
}

int PreviewModel::TickedLines() const {
  int ticked = 0;
  for (std::size_t line = 0; line < lines_.size(); ++line) ticked += Ticked(line) ? 1 : 0;
  return ticked;
}

void PreviewModel::TickAll(bool ticked) {
  leftOut_.clear();
  for (const PreviewLine& line : lines_)
    if (!ticked) leftOut_.push_back(line.slot);
  std::sort(leftOut_.begin(), leftOut_.end());
  if (!lines_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
  Q_EMIT TicksChanged();
}

int PreviewModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int PreviewModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 1 + static_cast<int>(titles_.size());
}

QVariant PreviewModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto place = static_cast<std::size_t>(index.row());
  const PreviewLine& line = lines_[place];
  const bool number = index.column() == 0;
  switch (role) {
    case Qt::DisplayRole:
      if (!number) return line.cells[index.column() - 1];
      return line.slot == 0 ? QString() : Text(Base::ZeroPadded(line.slot, 4));
    case Qt::CheckStateRole:
      return number && ticks_ ? QVariant(Ticked(place) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::BackgroundRole:
      return line.fault.isEmpty() ? QVariant() : QBrush(ToColor(Colours::Wrong));
    case Qt::ForegroundRole:
      return line.fault.isEmpty() ? QVariant() : QBrush(TextOn(Colours::Wrong));
    case Qt::ToolTipRole:
      // A text may be longer than its column.
      return line.fault.isEmpty() ? data(index, Qt::DisplayRole) : line.fault;
    case Qt::AccessibleTextRole:
      return line.fault.isEmpty() ? QVariant() : data(index, Qt::DisplayRole).toString() + ", " + line.fault;
    default:
      return {};
  }
}

bool PreviewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!ticks_ || !index.isValid() || role != Qt::CheckStateRole || index.column() != 0) return false;
  const PreviewLine& line = lines_[static_cast<std::size_t>(index.row())];
  if (!line.fault.isEmpty()) return false;
  const auto place = std::lower_bound(leftOut_.begin(), leftOut_.end(), line.slot);
  const bool out = place != leftOut_.end() && *place == line.slot;
  const bool ticked = value.toInt() == Qt::Checked;
  if (ticked == !out) return true;
  if (ticked) {
    leftOut_.erase(place);
  } else {
    leftOut_.insert(place, line.slot);
  }
  Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
  Q_EMIT TicksChanged();
  return true;
}

QVariant PreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == 0 ? QString("Nr.") : titles_[section - 1];
}

Qt::ItemFlags PreviewModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  const bool done = lines_[static_cast<std::size_t>(index.row())].fault.isEmpty();
  if (ticks_ && index.column() == 0 && done) flags |= Qt::ItemIsUserCheckable;
  return flags;
}

PreviewButtons::PreviewButtons(QDialog& dialog, PreviewModel& preview, const QString& caption)
    : box(new QDialogButtonBox(&dialog)), confirm(box->addButton(caption, QDialogButtonBox::AcceptRole)) {
  confirm->setObjectName("Command1");
  const auto add = [&](const char* name, const char* text, bool tick) {
    auto* button = box->addButton(text, QDialogButtonBox::ActionRole);
    button->setObjectName(name);
    QObject::connect(button, &QPushButton::clicked, &preview, [&preview, tick] { preview.TickAll(tick); });
  };
  if (preview.HasTicks()) {
    add("SegnaRighe", "Segna tutti", true);
    add("TogliSegniRighe", "Togli i segni", false);
  }
  box->addButton(QDialogButtonBox::Cancel)->setObjectName("cmdAnnulla");
  QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
}

void ShowPreview(QTableView& table, PreviewModel& preview, const std::vector<int>& letters) {
  table.setModel(&preview);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setTabKeyNavigation(false);
  table.setWordWrap(false);
  table.verticalHeader()->hide();
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 6);
  table.horizontalHeader()->setStretchLastSection(true);
  for (std::size_t column = 0; column < letters.size(); ++column)
    table.setColumnWidth(static_cast<int>(column), Letters(table, letters[column]));
  KeepLines(table, 6);
}

}  // namespace Ui
