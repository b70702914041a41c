#include "ui/sources/missing_window.h"

#include "edit/told.h"
#include "review/whereabouts.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/lines_window.h"
#include "ui/session/set_commands.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Ui {

MissingWindow::MissingWindow(Session& session, Find find, QMainWindow& window)
    : ToolWindow("ElencoNonInSDX", "Elenco canali Non in SDX", &window),
      session_(session),
      find_(std::move(find)),
      tree_(new QTreeWidget(this)),
      count_(new QLabel(this)) {
  TakeKeys(window);
  count_->setObjectName("ConteggioNonInSDX");
  SetUpTree();
  auto* column = new QVBoxLayout(this);
  column->addWidget(tree_, 1);
  column->addWidget(count_);
  column->addLayout(Buttons());
  ResizeOnScreen(*this, {620, 480});
  connect(&session.document, &Document::Changed, this, &MissingWindow::Refresh);
  Refresh();
  tree_->setCurrentItem(tree_->topLevelItem(0));
  tree_->setFocus();
}

void MissingWindow::SetUpTree() {
  tree_->setObjectName("RigheNonInSDX");
  tree_->setAccessibleName(windowTitle());
  tree_->setHeaderLabels({"Prog.", "Canale", "Transponder"});
  tree_->setRootIsDecorated(false);
  tree_->setUniformRowHeights(true);
  tree_->setAllColumnsShowFocus(true);
  KeepLines(*tree_, 5);
  tree_->setColumnWidth(0, Letters(*tree_, 12));
  tree_->setColumnWidth(1, Letters(*tree_, 24));
  connect(tree_, &QTreeWidget::itemActivated, this, &MissingWindow::GoTo);
  connect(tree_, &QTreeWidget::itemChanged, this, &MissingWindow::TellCount);
  // The space bar ticks the current cell, and only the first one can be ticked.
  connect(tree_, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* item) { tree_->setCurrentItem(item, 0); });
}

QLayout* MissingWindow::Buttons() {
  auto* left = new FlowLayout;
  const auto lines = [this] { return session_.ChannelLines(slots_); };
  forAny_ = {
      AddButton(*left, "VaiAlNonInSDX", "Vai al canale", [this] { GoTo(tree_->currentItem()); }),
      AddButton(*left, "SelezionaNonInSDX", "Seleziona i trovati",
                [this] { SelectChannels(session_, Chosen()); }),
      AddButton(*left, "SegnaNonInSDX", "Segna tutti", [this] { TickAll(true); }),
      AddButton(*left, "TogliSegniNonInSDX", "Togli i segni", [this] { TickAll(false); }),
      AddButton(*left, "CopiaNonInSDX", "Copia", [lines] { QApplication::clipboard()->setText(lines()); }),
      AddButton(*left, "SalvaNonInSDX", "Salva come testo…",
                [this, lines] { SaveLines(session_, lines()); })};
  forTicked_ = {
      AddButton(*left, "EliminaNonInSDX", "Elimina scelti", [this] { DeleteChannels(session_, Ticked()); }),
      AddButton(*left, "DisattivaNonInSDX", "Disattiva scelti",
                [this] { DeactivateChannels(session_, Ticked()); })};
  return WithClose(left, "ChiudiNonInSDX");
}

void MissingWindow::Refresh() {
  const Routines::State& state = session_.document.Tables();
  std::vector<Routines::ChannelRecord> ticked;
  for (std::size_t row = 0; row < records_.size(); ++row) {
    if (tree_->topLevelItem(static_cast<int>(row))->checkState(0) == Qt::Checked)
      ticked.push_back(records_[row]);
  }
  const int current = tree_->indexOfTopLevelItem(tree_->currentItem());
  const QSignalBlocker quiet(tree_);
  tree_->clear();
  records_.clear();
  slots_ = state.Loaded ? find_() : Edit::Slots();
  for (const int slot : slots_) {
    records_.push_back(state.Channel(slot));
    const bool tick = std::find(ticked.begin(), ticked.end(), records_.back()) != ticked.end();
    QTreeWidgetItem* item = Item(slot);
    item->setSizeHint(0, {0, tree_->fontMetrics().height() + 6});
    item->setCheckState(0, tick ? Qt::Checked : Qt::Unchecked);
    tree_->addTopLevelItem(item);
  }
  tree_->setCurrentItem(
      tree_->topLevelItem(std::clamp(current, 0, std::max(tree_->topLevelItemCount() - 1, 0))));
  TellCount();
}

QTreeWidgetItem* MissingWindow::Item(int slot) const {
  const Routines::State& state = session_.document.Tables();
  const auto transponder = Get(state.Channel(slot), Routines::ChannelField::Transponder);
  return new QTreeWidgetItem({QString("%1").arg(slot, 4, 10, QChar('0')), Text(Edit::NameIn(state, slot)),
                              Text(Review::TransponderText(state, static_cast<int>(transponder)))});
}

void MissingWindow::TellCount() {
  const auto ticked = Ticked().size();
  count_->setText(Counted(slots_.size(), "canale", "canali") + ", " + Counted(ticked, "scelto", "scelti"));
  for (QPushButton* button : forAny_) button->setEnabled(!slots_.empty());
  for (QPushButton* button : forTicked_) button->setEnabled(ticked > 0);
}

void MissingWindow::TickAll(bool on) {
  const QSignalBlocker quiet(tree_);
  for (int row = 0; row < tree_->topLevelItemCount(); ++row)
    tree_->topLevelItem(row)->setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
  TellCount();
}

Edit::Slots MissingWindow::Ticked() const {
  Edit::Slots ticked;
  for (int row = 0; row < tree_->topLevelItemCount(); ++row) {
    if (tree_->topLevelItem(row)->checkState(0) == Qt::Checked)
      ticked.push_back(slots_[static_cast<std::size_t>(row)]);
  }
  return ticked;
}

Edit::Slots MissingWindow::Chosen() const {
  const Edit::Slots ticked = Ticked();
  return ticked.empty() ? slots_ : ticked;
}

void MissingWindow::GoTo(QTreeWidgetItem* item) {
  const int row = tree_->indexOfTopLevelItem(item);
  if (row >= 0) session_.GoToChannel(slots_[static_cast<std::size_t>(row)]);
}

}  // namespace Ui
