#include "ui/review/transponder_window.h"

#include "formats/list_fields.h"
#include "formats/list_summary.h"
#include "review/whereabouts.h"
#include "ui/kit/elided_label.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/set_commands.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace Ui {

using Review::TransponderFinding;
using Review::TransponderMark;
using Routines::ListedTransponder;
using Routines::State;

namespace {

enum Column : int { Kind, Here, There, Channels };

constexpr std::array<const char*, Review::TransponderMarks> KindTexts = {"Manca", "SR o FEC diverso",
                                                                         "Non più in elenco", "Doppio"};

// "11766 V, SR 29900, FEC 2/3, DVB-S2"
QString ListedText(const ListedTransponder& listed) {
  const bool horizontal = listed.polarisation == Routines::Polarisation::Horizontal;
  QString text = QString("%1 %2").arg(Review::MegahertzOf(listed)).arg(horizontal ? "H" : "V");
  if (listed.symbolRate > 0) text += QString(", SR %1").arg((listed.symbolRate + 500) / 1000);
  if (const std::string_view fec = listed.fec; !fec.empty()) text += ", FEC " + CodePageText(fec);
  return listed.delivery == Routines::Delivery::DvbS2 ? text + ", DVB-S2" : text;
}

QString Report(const Edit::TransponderReport& report) {
  QStringList parts;
  const auto add = [&parts](int count, const char* one, const char* more) {
    if (count > 0) parts += Counted(count, one, more);
  };
  add(report.added, "aggiunto", "aggiunti");
  add(report.changed, "modificato", "modificati");
  add(report.removed, "tolto", "tolti");
  add(report.joined, "doppio unito al primo", "doppi uniti al primo");
  add(report.noSlot, "lasciato: nessun posto libero", "lasciati: nessun posto libero");
  add(report.unknownRate, "lasciato: SR.INI non ha il suo SR", "lasciati: SR.INI non ha il loro SR");
  add(report.inUse, "non tolto: ha canali", "non tolti: hanno canali");
  return parts.join(", ");
}

}  // namespace

TransponderWindow::TransponderWindow(Session& session, const QString& fileName,
                                     const Formats::TransponderList& list, QMainWindow& window)
    : ToolWindow("FinestraControlloTransponder", "Controllo dei transponder", &window),
      session_(session),
      fileName_(fileName),
      unreadable_(list.unreadable),
      proposed_(Formats::ProposedSatellites(session.document.Tables(), list.transponders)),
      position_(new QComboBox(this)),
      satellite_(new QComboBox(this)),
      withDvbS2_(new QCheckBox("Anche DVB-S2", this)),
      tree_(new QTreeWidget(this)),
      counts_(new QLabel(this)),
      result_(new ElidedLabel(Qt::ElideRight, this)) {
  for (const ListedTransponder& transponder : list.transponders)
    positions_[transponder.position].push_back(transponder);
  TakeKeys(window);
  counts_->setObjectName("ConteggioControllo");
  counts_->setTextFormat(Qt::PlainText);
  counts_->setWordWrap(true);
  result_->setObjectName("RisultatoControllo");
  SetUpTree();
  auto* column = new QVBoxLayout(this);
  column->addLayout(Choices());
  column->addLayout(KindBoxes());
  column->addWidget(tree_, 1);
  column->addWidget(counts_);
  column->addWidget(result_);
  column->addLayout(Buttons());
  ResizeOnScreen(*this, {860, 560});
  connect(&session.document, &Document::Changed, this, &TransponderWindow::Refresh);
  connect(satellite_, &QComboBox::currentIndexChanged, this, &TransponderWindow::Refresh);
  connect(withDvbS2_, &QCheckBox::toggled, this, &TransponderWindow::Refresh);
  Refresh();
  tree_->setCurrentItem(tree_->topLevelItem(0));
  tree_->setFocus();
}

QLayout* TransponderWindow::Choices() {
  auto* row = new FlowLayout;
  for (auto* box : {PositionBox(), SatelliteBox()}) row->addWidget(box);
  row->addWidget(withDvbS2_);
  withDvbS2_->setObjectName("AncheDvbS2");
  ProposeSatellite();
  connect(position_, &QComboBox::currentIndexChanged, this, [this] {
    ProposeSatellite();
    Refresh();
  });
  return row;
}

// Those that the list seems to have come first, then those with the most transponders.
QComboBox* TransponderWindow::PositionBox() {
  std::vector<std::optional<int>> positions;
  for (const auto& [position, listed] : positions_) positions.push_back(position);
  const auto rank = [this](const std::optional<int>& position) {
    return std::make_pair(position && proposed_.contains(*position), positions_[position].size());
  };
  std::stable_sort(positions.begin(), positions.end(),
                   [&](const auto& one, const auto& other) { return rank(one) > rank(other); });
  for (const auto& position : positions) {
    const QString where = position ? Text(Formats::PositionText(*position)) + ": " : QString();
    position_->addItem(where + QString("%1 transponder").arg(positions_[position].size()),
                       position ? QVariant(*position) : QVariant());
  }
  position_->setObjectName("PosizioneElenco");
  position_->setAccessibleDescription("Posizione orbitale dell'elenco");
  return position_;
}

QComboBox* TransponderWindow::SatelliteBox() {
  const State& state = session_.document.Tables();
  std::set<std::uint32_t> satellites;
  for (int slot = 1; slot <= state.TransponderCount; ++slot) {
    const Routines::TransponderRecord& record = state.Transponder(slot).record;
    if (!IsFree(record)) satellites.insert(Get(record, Routines::TransponderField::Satellite));
  }
  for (const std::uint32_t satellite : satellites)
    satellite_->addItem(CodePageText(Routines::SatelliteText(satellite, session_.bouquets.tables.satellites)),
                        static_cast<int>(satellite));
  satellite_->setObjectName("SatelliteElenco");
  satellite_->setAccessibleDescription("Satellite della lista");
  satellite_->setPlaceholderText("Satellite da scegliere");
  return satellite_;
}

void TransponderWindow::ProposeSatellite() {
  const auto found = proposed_.find(position_->currentData().toInt());
  const bool has = position_->currentData().isValid() && found != proposed_.end();
  satellite_->setCurrentIndex(has ? satellite_->findData(found->second) : satellite_->count() == 1 ? 0 : -1);
}

QLayout* TransponderWindow::KindBoxes() {
  auto* row = new FlowLayout;
  for (std::size_t kind = 0; kind < kinds_.size(); ++kind) {
    kinds_[kind] = new QCheckBox(this);
    kinds_[kind]->setObjectName(QString("Mostra_%1").arg(kind));
    kinds_[kind]->setChecked(true);
    connect(kinds_[kind], &QCheckBox::toggled, this, &TransponderWindow::Fill);
    row->addWidget(kinds_[kind]);
  }
  return row;
}

void TransponderWindow::SetUpTree() {
  tree_->setObjectName("TransponderControllati");
  tree_->setAccessibleName(windowTitle());
  tree_->setHeaderLabels({"Differenza", "Nella lista", "Nell'elenco", "Canali"});
  tree_->setRootIsDecorated(false);
  tree_->setUniformRowHeights(true);
  tree_->setAllColumnsShowFocus(true);
  KeepLines(*tree_, 5);
  for (const auto& [column, letters] : {std::pair{Kind, 24}, {Here, 46}, {There, 34}})
    tree_->setColumnWidth(column, Letters(*tree_, letters));
  connect(tree_, &QTreeWidget::itemActivated, this, &TransponderWindow::GoTo);
  connect(tree_, &QTreeWidget::itemChanged, this, &TransponderWindow::ShowTicks);
  connect(tree_, &QTreeWidget::currentItemChanged, this, &TransponderWindow::ShowTicks);
  // The space bar ticks the current cell, and only the first one can be ticked.
  connect(tree_, &QTreeWidget::itemClicked, this,
          [this](QTreeWidgetItem* item) { tree_->setCurrentItem(item, 0); });
}

QLayout* TransponderWindow::Buttons() {
  auto* left = new FlowLayout;
  goTo_ = AddButton(*left, "VaiAlControllato", "Vai al transponder", [this] { GoTo(tree_->currentItem()); });
  select_ = AddButton(*left, "SelezionaSuTransponder", "Seleziona i canali", [this] { SelectFound(); });
  AddButton(*left, "SegnaTutti", "Segna tutti", [this] { TickAll(true); });
  AddButton(*left, "TogliSegni", "Togli i segni", [this] { TickAll(false); });
  apply_ = AddButton(*left, "ApplicaSegnati", "Applica i segnati", [this] { Apply(); });
  return WithClose(left, "ChiudiControllo");
}

int TransponderWindow::Satellite() const {
  return satellite_->currentIndex() < 0 ? -1 : satellite_->currentData().toInt();
}

void TransponderWindow::Refresh() {
  const State& state = session_.document.Tables();
  if (!state.Loaded) {
    close();
    return;
  }
  const QVariant chosen = position_->currentData();
  const auto& listed = positions_[chosen.isValid() ? std::optional(chosen.toInt()) : std::nullopt];
  found_ = Satellite() < 0 ? Findings()
                           : Review::CheckTransponders(state, listed, Satellite(), withDvbS2_->isChecked());
  Fill();
}

// Ticks stay on the findings that are still there.
void TransponderWindow::Fill() {
  const Findings ticked = Ticked();
  const int current = tree_->indexOfTopLevelItem(tree_->currentItem());
  {
    const QSignalBlocker quiet(tree_);
    tree_->clear();
    shown_.clear();
    for (const TransponderFinding& finding : found_) {
      if (!kinds_[static_cast<std::size_t>(finding.mark)]->isChecked()) continue;
      shown_.push_back(finding);
      QTreeWidgetItem* item = ItemOf(finding);
      const bool tick = std::find(ticked.begin(), ticked.end(), finding) != ticked.end();
      item->setCheckState(Kind, tick ? Qt::Checked : Qt::Unchecked);
      tree_->addTopLevelItem(item);
    }
    tree_->setCurrentItem(
        tree_->topLevelItem(std::clamp(current, 0, std::max(tree_->topLevelItemCount() - 1, 0))));
  }
  ShowCounts();
  ShowTicks();
}

QTreeWidgetItem* TransponderWindow::ItemOf(const TransponderFinding& finding) const {
  const State& state = session_.document.Tables();
  const auto channels = static_cast<int>(Edit::ChannelsOn(state, finding.slot).size());
  const QString text = Text(Review::TransponderText(state, finding.slot)).section(", bouquet", 0, 0);
  const QString here = finding.slot == 0 ? QString() : QString("%1: %2").arg(finding.slot).arg(text);
  auto* item = new QTreeWidgetItem({KindTexts[static_cast<std::size_t>(finding.mark)], here,
                                    OtherText(finding), channels == 0 ? "" : QString::number(channels)});
  item->setSizeHint(Kind, {0, tree_->fontMetrics().height() + 6});
  return item;
}

QString TransponderWindow::OtherText(const TransponderFinding& finding) const {
  switch (finding.mark) {
    case TransponderMark::Gone:
      return {};
    case TransponderMark::Doubled:
      return QString("come il %1").arg(finding.first);
    default:
      return ListedText(finding.listed);
  }
}

void TransponderWindow::ShowCounts() {
  for (std::size_t kind = 0; kind < kinds_.size(); ++kind) {
    const auto count = std::count_if(found_.begin(), found_.end(), [kind](const TransponderFinding& one) {
      return static_cast<std::size_t>(one.mark) == kind;
    });
    kinds_[kind]->setText(QString("%1 (%2)").arg(KindTexts[kind]).arg(count));
    kinds_[kind]->setAccessibleName("Mostra: " + kinds_[kind]->text());
    kinds_[kind]->setEnabled(count > 0);
  }
  QString text = Satellite() < 0  ? QString("Scegliere il satellite della lista a cui appartiene l'elenco")
                 : found_.empty() ? QString("Nessuna differenza")
                                  : Counted(found_.size(), "differenza", "differenze");
  if (unreadable_ > 0)
    text += "; " + Counted(unreadable_, "riga non è un transponder", "righe non sono transponder");
  counts_->setText(fileName_ + ": " + text);
}

void TransponderWindow::ShowTicks() {
  const auto ticked = Ticked().size();
  apply_->setText(ticked == 0 ? "Applica i segnati" : QString("Applica i segnati (%1)").arg(ticked));
  apply_->setEnabled(ticked > 0);
  select_->setEnabled(!shown_.empty());
  const int row = tree_->indexOfTopLevelItem(tree_->currentItem());
  goTo_->setEnabled(row >= 0 && shown_[static_cast<std::size_t>(row)].slot != 0);
}

TransponderWindow::Findings TransponderWindow::Ticked() const {
  Findings ticked;
  for (int row = 0; row < tree_->topLevelItemCount(); ++row) {
    if (tree_->topLevelItem(row)->checkState(Kind) == Qt::Checked)
      ticked.push_back(shown_[static_cast<std::size_t>(row)]);
  }
  return ticked;
}

void TransponderWindow::TickAll(bool on) {
  const QSignalBlocker quiet(tree_);
  for (int row = 0; row < tree_->topLevelItemCount(); ++row)
    tree_->topLevelItem(row)->setCheckState(Kind, on ? Qt::Checked : Qt::Unchecked);
  ShowTicks();
}

void TransponderWindow::GoTo(QTreeWidgetItem* item) {
  const int row = tree_->indexOfTopLevelItem(item);
  const int slot = row < 0 ? 0 : shown_[static_cast<std::size_t>(row)].slot;
  if (slot == 0) return result_->Show("Il transponder non è nella lista.");
  session_.view.GoToRow(View::Transponders, slot);
}

void TransponderWindow::SelectFound() {
  const Findings ticked = Ticked();
  std::set<int> slots;
  for (const TransponderFinding& finding : ticked.empty() ? shown_ : ticked) {
    const std::vector<int> channels = Edit::ChannelsOn(session_.document.Tables(), finding.slot);
    slots.insert(channels.begin(), channels.end());
  }
  if (slots.empty()) return result_->Show("Nessun canale è su questi transponder.");
  SelectChannels(session_, {slots.begin(), slots.end()});
}

void TransponderWindow::Apply() {
  const Findings chosen = Ticked();
  const int satellite = Satellite();
  std::string label;
  Edit::TransponderReport report;
  session_.document.Apply(label, [&](State& state) {
    report = Edit::UpdateTransponders(state, chosen, satellite, session_.bouquets.tables);
    label = report.Done() == 0   ? "Nessun transponder aggiornato"
            : report.Done() == 1 ? "Aggiornato 1 transponder"
                                 : "Aggiornati " + std::to_string(report.Done()) + " transponder";
  });
  const QString text = Text(label) + ": " + Report(report);
  session_.status.ShowResult(text);
  result_->Show(text);
}

}  // namespace Ui
