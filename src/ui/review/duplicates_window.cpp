#include "ui/review/duplicates_window.h"

#include "base/text.h"
#include "formats/source_names.h"
#include "model/cells.h"
#include "model/favourites.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/menu_letters.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/set_commands.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Ui {

using Routines::ChannelRecord;
using Routines::State;

namespace {

constexpr int SlotRole = Qt::UserRole;
constexpr int ColumnGap = 12;
constexpr bool IsNumber(int column) { return column >= 3 && column <= 5; }

QString NameOf(const ChannelRecord& channel) { return CodePageText(Base::TrimmedRight(channel.Name())); }

// "11804 V SAT A"
QString TransponderOf(const State& state, const ChannelRecord& channel) {
  const int slot = static_cast<int>(Get(channel, Routines::ChannelField::Transponder));
  const auto& record = state.Transponder(slot).record;
  return Text(std::to_string(Routines::FrequencyMHz(record)) + " " +
              Routines::TransponderCell(state, slot, 7) + " ") +
         CodePageText(Routines::SatelliteLabel(record));
}

// Of each channel that is in any favourites list, the names of those lists.
std::map<int, QString> FavouritesOf(const State& state) {
  std::map<int, QString> lists;
  for (std::size_t list = 0; list < Routines::FavouriteLists; ++list) {
    const QString name = Text(Routines::FavouritesTitle(state.FavouritesBlock, list));
    for (const int slot : Routines::FavouriteEntriesOf(state.FavouritesBlock, list)) {
      QString& text = lists[slot];
      if (!text.split(", ").contains(name)) text += (text.isEmpty() ? "" : ", ") + name;
    }
  }
  return lists;
}

}  // namespace

void CanaliDoppi(Session& session, QMainWindow& window) {
  if (auto* open = OpenWindow<DuplicatesWindow>(window)) {
    open->BringUp();
    return;
  }
  const State& state = session.document.Tables();
  Review::DuplicateRules rules;
  if (Review::FindDuplicates(state, rules).empty()) {
    rules.name = true;
    if (Review::FindDuplicates(state, rules).empty()) {
      session.dialogs.Message("Nessun canale doppio", {}, Tone::Information);
      return;
    }
    if (!session.dialogs.YesNo("Nessun canale doppio\nCercare anche i canali con lo stesso nome?")) return;
  }
  (new DuplicatesWindow(session, rules, window))->BringUp();
}

DuplicatesWindow::DuplicatesWindow(Session& session, const Review::DuplicateRules& rules, QMainWindow& window)
    : ToolWindow("FinestraCanaliDoppi", "Canali Doppi", &window),
      session_(session),
      tree_(new QTreeWidget(this)),
      counts_(new QLabel(this)) {
  TakeKeys(window);
  counts_->setObjectName("ConteggioDoppi");
  SetUpTree();
  auto* column = new QVBoxLayout(this);
  column->addWidget(RuleBoxes(rules));
  column->addWidget(tree_, 1);
  column->addWidget(counts_);
  column->addLayout(Buttons());
  ResizeOnScreen(*this, {760, 480});
  setTabOrder(bareName_, tree_);
  setTabOrder(tree_, goTo_);

  connect(&session.document, &Document::Changed, this, &DuplicatesWindow::Refresh);
  Refresh();
  tree_->setFocus();
}

QWidget* DuplicatesWindow::RuleBoxes(const Review::DuplicateRules& rules) {
  auto* box = new QWidget(this);
  auto* row = new FlowLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const char* name, const char* caption, bool on) {
    auto* check = new QCheckBox(caption, box);
    check->setObjectName(name);
    check->setChecked(on);
    connect(check, &QCheckBox::toggled, this, &DuplicatesWindow::Refresh);
    row->addWidget(check);
    return check;
  };
  service_ = add("StessoServizio", "Stesso servizio (satellite, TID, NID, SID)", rules.service);
  streams_ = add("StessiPID", "Stesso transponder, SID e PID", rules.streams);
  name_ = add("StessoNome", "Stesso nome", rules.name);
  bareName_ = add("StessoNomeBase", "Stesso nome senza HD, SD, +1", rules.bareName);
  return box;
}

QLayout* DuplicatesWindow::Buttons() {
  auto* left = new FlowLayout;
  goTo_ = AddButton(*left, "VaiAlDoppio", "Vai al canale", [this] { GoTo(tree_->currentItem()); });
  keep_ = AddButton(*left, "TieniDoppi", "Tieni");
  keep_->setMenu(KeepMenu());
  deleteChosen_ =
      AddButton(*left, "EliminaScelti", "Elimina scelti", [this] { DeleteChannels(session_, Chosen()); });
  deactivate_ = AddButton(*left, "DisattivaScelti", "Disattiva scelti",
                          [this] { DeactivateChannels(session_, Chosen()); });
  deleteOthers_ = AddButton(*left, "EliminaTranneIlPrimo", "Elimina tutti tranne il primo",
                            [this] { DeleteChannels(session_, Edit::Slots(surplus_)); });
  select_ = AddButton(*left, "SelezionaDoppi", "Seleziona i trovati", [this] { SelectFound(); });
  return WithClose(left, "ChiudiDoppi");
}

// What stays in each group; all others that are the same are ticked, to be looked at and deleted or not.
QMenu* DuplicatesWindow::KeepMenu() {
  using Review::KeepBy;
  auto* menu = new QMenu(keep_);
  MenuLetters::Follow(*menu);
  const auto add = [&](const char* name, const char* caption, const auto& surplus) {
    QAction* action = menu->addAction(caption, this, [this, surplus] { Propose(surplus()); });
    action->setObjectName(name);
    return action;
  };
  const auto byRank = [this](const Routines::PerChannel<int>& ranks) {
    return Review::SurplusByRank(session_.document.Tables(), Rules(), groups_, ranks);
  };
  add("TieniPrimo", "Il primo", [this] { return surplus_; });
  for (const auto& [name, caption, by] : {std::tuple("TieniAttivo", "Quello attivo", KeepBy::Active),
                                          {"TieniPreferito", "Quello nei preferiti", KeepBy::Favourite},
                                          {"TieniInChiaro", "Quello senza codifica", KeepBy::Free}}) {
    add(name, caption, [this, byRank, keepBy = by] {
      return byRank(Review::KeepRanks(session_.document.Tables(), keepBy));
    });
  }
  keepNewest_ = add("TieniNuovo", "Il più recente (dalla lista a destra)", [this, byRank] {
    return byRank(Formats::RanksBySource(session_.sdx, session_.document.Tables()));
  });
  connect(menu, &QMenu::aboutToShow, this, [this] {
    keepNewest_->setEnabled(!session_.sdx.rows.empty() && !session_.sdx.lacking.Has(Routines::SdxField::Sid));
  });
  return menu;
}

void DuplicatesWindow::Propose(const std::vector<int>& slots) {
  {
    const QSignalBlocker quiet(tree_);
    for (std::size_t i = 0; i < groups_.size(); ++i) {
      QTreeWidgetItem& head = *tree_->topLevelItem(static_cast<int>(i));
      for (std::size_t k = 0; k < groups_[i].size(); ++k) {
        const bool goes = std::find(slots.begin(), slots.end(), groups_[i][k]) != slots.end();
        head.child(static_cast<int>(k))->setCheckState(0, goes ? Qt::Checked : Qt::Unchecked);
      }
    }
  }
  TellCounts();
}

void DuplicatesWindow::SetUpTree() {
  tree_->setObjectName("GruppiDoppi");
  tree_->setAccessibleName("Canali doppi");
  tree_->setHeaderLabels({"Prog.", "Canale", "Transponder", "SID", "VPID", "APID", "Preferiti"});
  for (int column = 0; column < tree_->columnCount(); ++column) {
    if (IsNumber(column)) tree_->headerItem()->setTextAlignment(column, Qt::AlignCenter);
  }
  tree_->setExpandsOnDoubleClick(false);
  tree_->setUniformRowHeights(true);
  KeepLines(*tree_, 5);
  tree_->setAllColumnsShowFocus(true);
  connect(tree_, &QTreeWidget::itemActivated, this, &DuplicatesWindow::GoTo);
  connect(tree_, &QTreeWidget::itemChanged, this, &DuplicatesWindow::TellCounts);
  // The space bar ticks the current cell, and only the first one can be ticked.
  connect(tree_, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* item) { tree_->setCurrentItem(item, 0); });
}

Review::DuplicateRules DuplicatesWindow::Rules() const {
  return {service_->isChecked(), streams_->isChecked(), name_->isChecked(), bareName_->isChecked()};
}

// Ticks stay on channels that are unchanged, wherever these have moved.
void DuplicatesWindow::Refresh() {
  const State& state = session_.document.Tables();
  const Rows earlier = RowsByChannel();
  groups_ = Review::FindDuplicates(state, Rules());
  surplus_ = Review::Surplus(state, Rules(), groups_);
  std::sort(surplus_.begin(), surplus_.end());
  std::vector<std::vector<ChannelRecord>> channels;
  for (const auto& group : groups_) {
    auto& records = channels.emplace_back();
    for (const int slot : group) records.push_back(state.Channel(slot));
  }
  const bool rebuild = channels != shown_;
  shown_ = std::move(channels);
  if (rebuild) {
    Rebuild();
    Restore(earlier);
  }
  FillTexts();
  for (int column = 0; rebuild && column + 1 < tree_->columnCount(); ++column) {
    tree_->resizeColumnToContents(column);
    tree_->setColumnWidth(column, tree_->columnWidth(column) + ColumnGap);
  }
  TellCounts();
}

void DuplicatesWindow::Rebuild() {
  const QSignalBlocker quiet(tree_);
  tree_->clear();
  QList<QTreeWidgetItem*> items;
  for (const auto& group : groups_) {
    auto* head = new QTreeWidgetItem;
    for (std::size_t i = 0; i < group.size(); ++i) {
      (new QTreeWidgetItem(head))->setCheckState(0, Qt::Unchecked);
    }
    items += head;
  }
  tree_->addTopLevelItems(items);
  QFont bold = tree_->font();
  bold.setBold(true);
  for (QTreeWidgetItem* head : items) {
    head->setFirstColumnSpanned(true);
    head->setFont(0, bold);
    head->setSizeHint(0, {0, tree_->fontMetrics().height() + 6});  // of every row
  }
  tree_->expandAll();
  if (!items.isEmpty()) tree_->setCurrentItem(items.front()->child(0));
}

DuplicatesWindow::Rows DuplicatesWindow::RowsByChannel() const {
  Rows rows;
  const QTreeWidgetItem* current = tree_->currentItem();
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    QTreeWidgetItem& head = *tree_->topLevelItem(static_cast<int>(i));
    for (std::size_t k = 0; k < groups_[i].size(); ++k) {
      QTreeWidgetItem* item = head.child(static_cast<int>(k));
      const bool isCurrent = item == current || (k == 0 && &head == current);
      rows[shown_[i][k].bytes].push_back(
          {item, groups_[i][k], item->checkState(0) == Qt::Checked, isCurrent});
    }
  }
  return rows;
}

// The items of `earlier` are gone. Where the number of channels with the same bytes has changed their slots do not tell
// them apart for sure: once one is gone ticks stay only if all had one, else one could pass to a channel that is to stay.
void DuplicatesWindow::Restore(const Rows& earlier) {
  const QSignalBlocker quiet(tree_);
  for (const auto& [bytes, rows] : RowsByChannel()) {
    const auto found = earlier.find(bytes);
    if (found == earlier.end()) continue;
    const std::vector<Row>& old = found->second;
    const auto isTicked = [](const Row& row) { return row.ticked; };
    const bool fewer = rows.size() < old.size();
    const bool allTicked = std::all_of(old.begin(), old.end(), isTicked);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const int slot = rows[i].slot;
      const auto inSlot =
          std::find_if(old.begin(), old.end(), [slot](const Row& row) { return row.slot == slot; });
      const auto same = rows.size() == old.size() ? old.begin() + static_cast<std::ptrdiff_t>(i) : inSlot;
      if (fewer ? allTicked : same != old.end() && same->ticked) rows[i].item->setCheckState(0, Qt::Checked);
      if (same != old.end() && same->current) tree_->setCurrentItem(rows[i].item);
    }
  }
}

void DuplicatesWindow::FillTexts() {
  const QSignalBlocker quiet(tree_);
  const State& state = session_.document.Tables();
  const auto favourites = FavouritesOf(state);
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    QTreeWidgetItem& head = *tree_->topLevelItem(static_cast<int>(i));
    const auto& group = groups_[i];
    head.setText(0, NameOf(shown_[i].front()) + ": " + Counted(group.size(), "canale", "canali"));
    head.setData(0, SlotRole, group.front());
    for (std::size_t k = 0; k < group.size(); ++k) {
      const auto in = favourites.find(group[k]);
      FillChannel(*head.child(static_cast<int>(k)), group[k], in == favourites.end() ? "" : in->second);
    }
  }
}

void DuplicatesWindow::FillChannel(QTreeWidgetItem& item, int slot, const QString& favourites) {
  const State& state = session_.document.Tables();
  const auto cell = [&](int column) { return CodePageText(Routines::ChannelCell(state, slot, column)); };
  const ChannelRecord& channel = state.Channel(slot);
  item.setData(0, SlotRole, slot);
  const QString texts[] = {cell(0), NameOf(channel), TransponderOf(state, channel), cell(3), cell(4),
                           cell(5), favourites};
  int column = 0;
  for (const QString& text : texts) {
    item.setText(column, text);
    if (IsNumber(column)) item.setTextAlignment(column, Qt::AlignCenter);
    ++column;
  }
}

void DuplicatesWindow::TellCounts() {
  std::size_t channels = 0;
  for (const auto& group : groups_) channels += group.size();
  const std::size_t chosen = Chosen().size();
  counts_->setText(groups_.empty() ? QString("Nessun canale doppio")
                                   : Counted(groups_.size(), "gruppo", "gruppi") + ", " +
                                         Counted(channels, "canale", "canali") + ", " +
                                         Counted(chosen, "scelto", "scelti"));
  goTo_->setEnabled(!groups_.empty());
  keep_->setEnabled(!groups_.empty());
  deleteOthers_->setEnabled(!surplus_.empty());
  select_->setEnabled(!groups_.empty());
  deleteChosen_->setEnabled(chosen > 0);
  deactivate_->setEnabled(chosen > 0);
}

std::vector<int> DuplicatesWindow::Chosen() const {
  std::vector<int> slots;
  for (std::size_t i = 0; i < groups_.size(); ++i) {
    const QTreeWidgetItem& head = *tree_->topLevelItem(static_cast<int>(i));
    for (std::size_t k = 0; k < groups_[i].size(); ++k) {
      if (head.child(static_cast<int>(k))->checkState(0) == Qt::Checked) slots.push_back(groups_[i][k]);
    }
  }
  std::sort(slots.begin(), slots.end());
  return slots;
}

// Those that are ticked, where any is.
void DuplicatesWindow::SelectFound() {
  std::vector<int> slots = Chosen();
  if (slots.empty()) {
    for (const auto& group : groups_) slots.insert(slots.end(), group.begin(), group.end());
  }
  std::sort(slots.begin(), slots.end());
  SelectChannels(session_, slots);
}

void DuplicatesWindow::GoTo(const QTreeWidgetItem* item) {
  if (item != nullptr) session_.GoToChannel(item->data(0, SlotRole).toInt());
}

}  // namespace Ui
