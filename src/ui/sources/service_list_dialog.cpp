#include "ui/sources/service_list_dialog.h"

#include "edit/cell_edit.h"
#include "formats/list_fields.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"
#include "ui/session/session.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>

namespace Ui {
namespace {

// A file may name as many as it likes; those with the fewest services are then left out.
constexpr std::size_t MostPositions = 100;

QString Number(int value) { return QLocale().toString(value); }

std::vector<std::string> CodesOf(const Formats::ListSummary& summary) {
  std::vector<std::string> codes;
  for (const auto& [coding, services] : summary.codings)
    codes.push_back(Base::HexByte(static_cast<std::uint32_t>(coding)));
  return codes;
}

// "24 Seca", or the number alone.
QString CodingText(int coding) {
  const std::string code = Base::HexByte(static_cast<std::uint32_t>(coding));
  for (const std::string_view known : Edit::Codings) {
    if (known.starts_with(code)) return Text(known);
  }
  return Text(code);
}

// The positions with the most services first.
std::vector<std::pair<int, int>> MostServicesFirst(const Formats::ListSummary& summary) {
  std::vector<std::pair<int, int>> positions(summary.positions.begin(), summary.positions.end());
  std::stable_sort(positions.begin(), positions.end(),
                   [](const auto& one, const auto& other) { return one.second > other.second; });
  if (positions.size() > MostPositions) positions.resize(MostPositions);
  return positions;
}

// Chooses the satellite's entry, which is put in where the box has none.
void Choose(QComboBox& box, int satellite) {
  for (int i = 1; i < box.count(); ++i) {
    box.setCurrentIndex(i);
    if (SatelliteIn(box) == satellite) return;
  }
  box.addItem(Text(Routines::SatelliteLabel(static_cast<std::uint32_t>(satellite))));
  box.setCurrentIndex(box.count() - 1);
}

}  // namespace

ServiceListDialog::ServiceListDialog(const Source& source, Formats::ListSummary summary,
                                     const Session& session, QWidget* parent)
    : QDialog(parent),
      source_(source),
      summary_(std::move(summary)),
      session_(session),
      rows_(CodesOf(summary_), FiltersOf(session), *this),
      keepHd_(new QCheckBox("Tieni anche DVB-S2 e HD", this)),
      outcome_(new QLabel(this)) {
  setObjectName("ImportazioneElenco");
  setWindowTitle("Da lista VDR, DVBv5 o Enigma2");
  keepHd_->setObjectName("TieniHD");
  outcome_->setObjectName("Esito");
  outcome_->setWordWrap(true);
  outcome_->setMinimumHeight(3 * fontMetrics().lineSpacing());
  FillCodings();
  Build();
  rows_.OnChange([this] { ShowOutcome(); });
  connect(keepHd_, &QCheckBox::toggled, this, &ServiceListDialog::ShowOutcome);
  built_ = true;
  ShowOutcome();
  ShowTips(*this);
  ResizeOnScreen(*this, {560, 640});
}

void ServiceListDialog::FillCodings() {
  for (const auto& [coding, services] : summary_.codings)
    rows_.List().addItem(CodingText(coding) + ": " + Counted(services, "canale", "canali"));
  rows_.AddAllCodes();
  rows_.List().item(rows_.List().count() - 1)->setSelected(true);
}

void ServiceListDialog::Build() {
  const QString services = summary_.services == 1 ? "1 canale" : Number(summary_.services) + " canali";
  auto* title = new QLabel(
      QString("%1: %2, %3 da satellite").arg(source_.fileName, Text(source_.format.title), services), this);
  title->setObjectName("Riconosciuto");
  title->setTextFormat(Qt::PlainText);
  title->setWordWrap(true);
  auto* form = new QFormLayout(this);
  form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  form->addRow(title);
  QWidget* satellites = Satellites();
  form->addRow(satellite_ != nullptr ? "Satellite da assegnare" : "Satelliti da assegnare", satellites);
  rows_.AddTo(*form);
  form->addRow("", keepHd_);
  form->addRow(outcome_);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton("Importa", QDialogButtonBox::AcceptRole)->setObjectName("Command1");
  buttons->addButton(QDialogButtonBox::Cancel)->setObjectName("cmdAnnulla");
  connect(buttons, &QDialogButtonBox::accepted, this, &ServiceListDialog::Confirm);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
}

QWidget* ServiceListDialog::Satellites() {
  if (!summary_.positions.empty()) return Positions();
  satellite_ = SatelliteBox("Combo1");
  satellite_->setPlaceholderText("da scegliere");
  return satellite_;
}

QComboBox* ServiceListDialog::SatelliteBox(const QString& name) {
  auto* box = new QComboBox(this);
  box->setObjectName(name);
  FillSatellites(*box, session_.bouquets.tables.satellites);
  connect(box, &QComboBox::currentIndexChanged, this, &ServiceListDialog::ShowOutcome);
  return box;
}

QTableWidget* ServiceListDialog::Positions() {
  const auto positions = MostServicesFirst(summary_);
  const auto proposed = Formats::ProposedSatellites(session_.document.Tables(), summary_.transponders);
  auto* table = new QTableWidget(static_cast<int>(positions.size()), 3, this);
  table->setObjectName("Posizioni");
  table->setAccessibleName("Posizioni orbitali del file");
  table->setHorizontalHeaderLabels({"Posizione", "Canali", "Satellite"});
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionMode(QAbstractItemView::NoSelection);
  table->setTabKeyNavigation(false);
  table->verticalHeader()->hide();
  table->horizontalHeader()->setStretchLastSection(true);
  for (const auto& [position, services] : positions) {
    const int row = static_cast<int>(positions_.size());
    const QString text = Text(Formats::PositionText(position));
    QComboBox* box = SatelliteBox(QString("Satellite_%1").arg(position));
    box->setAccessibleDescription("Satellite di " + text);
    box->insertItem(0, "non importare");
    box->setCurrentIndex(0);
    if (const auto found = proposed.find(position); found != proposed.end()) Choose(*box, found->second);
    table->setItem(row, 0, new QTableWidgetItem(text));
    table->setItem(row, 1, new QTableWidgetItem(Number(services)));
    table->item(row, 1)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table->setCellWidget(row, 2, box);
    table->setRowHeight(row, box->sizeHint().height());
    positions_.emplace_back(position, box);
  }
  const int rows = table->rowHeight(0) * std::min(table->rowCount(), 6);
  table->setMaximumHeight(table->horizontalHeader()->sizeHint().height() + rows + 2 * table->frameWidth());
  table->resizeColumnToContents(0);
  table->resizeColumnToContents(1);
  return table;
}

Formats::ListOptions ServiceListDialog::Chosen() const {
  Formats::ListOptions options;
  rows_.Take(options);
  options.keepHd = keepHd_->isChecked();
  if (satellite_ != nullptr) options.satellite = SatelliteIn(*satellite_);
  for (const auto& [position, box] : positions_) {
    if (box->currentIndex() > 0) options.satellites[position] = SatelliteIn(*box);
  }
  return options;
}

const char* ServiceListDialog::Refusal() const {
  const bool chosen = satellite_ != nullptr
                          ? satellite_->currentIndex() >= 0
                          : std::any_of(positions_.begin(), positions_.end(), [](const auto& position) {
                              return position.second->currentIndex() > 0;
                            });
  return chosen ? rows_.Refusal() : NoSatelliteChosen;
}

// Boxes tell of their first entry while the dialog is still being built.
void ServiceListDialog::ShowOutcome() {
  if (!built_) return;
  const char* refusal = Refusal();
  outcome_->setText(refusal == nullptr ? Outcome() : QString(refusal) + ".");
}

QString ServiceListDialog::Outcome() const {
  const auto reader = source_.format.Services(source_.text);
  const Formats::SdxTable table = Formats::RowsOf(*reader, Chosen());
  const int rows = static_cast<int>(table.rows.size());
  if (table.full) return QString("Più di %1 canali: saranno presi i primi %1.").arg(Number(rows));
  QString said = QString("%1 su %2 %3")
                     .arg(Number(rows), Number(table.lines), rows == 1 ? "sarà preso" : "saranno presi");
  if (const std::string drops = table.dropped.Text(); !drops.empty()) said += "; gli altri: " + Text(drops);
  return said + ".";
}

void ServiceListDialog::Confirm() {
  if (const char* refusal = Refusal(); refusal != nullptr) {
    session_.dialogs.Message(refusal, {});
    return;
  }
  accept();
}

}  // namespace Ui
