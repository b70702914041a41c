#include "ui/sources/foreign_dialog.h"

#include "base/text.h"
#include "formats/foreign_list.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"
#include "ui/sources/sdx_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTableWidget>

namespace Ui {

using Formats::Meaning;
using Formats::Separator;

namespace {

// In the order of Separator.
constexpr const char* Separators[] = {"Tabulazione", "Punto e virgola ;",     "Virgola ,", "Barra |",
                                      "Spazi",       "Nessuno: colonne fisse"};
constexpr std::size_t PreviewLines = 50;
constexpr int WidestColumn = 40;  // letters
// What is counted while the user chooses; the import itself reads on.
constexpr int CountedLines = 100000;

QString Number(int value) { return QLocale().toString(value); }

QString Lines(int count) { return count == 1 ? QString("1 riga") : Number(count) + " righe"; }

QString StartsText(const std::vector<std::size_t>& starts) {
  QStringList numbers;
  for (const std::size_t start : starts) numbers += QString::number(start + 1);
  return numbers.join(", ");
}

// In ascending order, each once; numbers that are no place in a line are left out.
std::vector<std::size_t> StartsIn(const QString& text) {
  static const QRegularExpression NoDigits("\\D+");
  std::vector<std::size_t> starts;
  for (const QString& number : text.split(NoDigits, Qt::SkipEmptyParts)) {
    const auto place = number.toULongLong();
    if (place >= 1 && place <= Formats::LongestForeignLine) starts.push_back(place - 1);
  }
  std::sort(starts.begin(), starts.end());
  starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
  return starts;
}

}  // namespace

ForeignDialog::ForeignDialog(const QString& caption, const QString& fileName,
                             const Formats::ForeignText& text,
                             const std::optional<Formats::ForeignLayout>& earlier,
                             const std::vector<Routines::Satellite>& satellites, Dialogs& dialogs,
                             QWidget* parent)
    : QDialog(parent), text_(text), sample_(Formats::SampleOf(text.text)), dialogs_(dialogs) {
  setObjectName("ImportazioneTesto");
  setWindowTitle(caption);
  const auto known = earlier ? Formats::Reapplied(*earlier, sample_) : std::nullopt;
  chosen_ = known;
  layout_ = known ? *known : Formats::GuessForeign(sample_);
  QString recognised = QString("%1: testo %2, %3").arg(fileName, Text(text.encoding), Lines(text.lines));
  recognised += known ? ". Ha tante colonne quante l'ultimo file importato: valgono le stesse scelte."
                      : ". Controllare che cosa contiene ogni colonna.";
  Build(recognised, satellites);
  ConnectChoices();
  ShowLayout();
  ShowTips(*this);
  ResizeOnScreen(*this, {920, 600});
}

void ForeignDialog::Build(const QString& recognised, const std::vector<Routines::Satellite>& satellites) {
  auto* title = new QLabel(recognised, this);
  title->setObjectName("Riconosciuto");
  title->setTextFormat(Qt::PlainText);
  title->setWordWrap(true);
  satellite_ = new QComboBox(this);
  satellite_->setObjectName("Combo1");
  FillSatellites(*satellite_, satellites);
  satellite_->setPlaceholderText("da scegliere");
  separator_ = new QComboBox(this);
  separator_->setObjectName("Separatore");
  for (const char* caption : Separators) separator_->addItem(caption);
  starts_ = new QLineEdit(this);
  starts_->setObjectName("InizioColonne");
  quotes_ = new QCheckBox("I campi possono stare fra virgolette", this);
  quotes_->setObjectName("Virgolette");
  header_ = new QCheckBox("La prima riga contiene i titoli", this);
  header_->setObjectName("Intestazione");

  preview_ = new QTableWidget(this);
  preview_->setObjectName("Anteprima");
  preview_->setAccessibleName("Prime righe del file");
  preview_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  preview_->setSelectionMode(QAbstractItemView::NoSelection);
  preview_->setTabKeyNavigation(false);
  KeepLines(*preview_, 7);
  preview_->setCornerButtonEnabled(false);
  preview_->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + 6);
  preview_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  columns_ = new ColumnHeader(preview_);
  preview_->setHorizontalHeader(columns_);
  outcome_ = new QLabel(this);
  outcome_->setObjectName("Esito");
  outcome_->setWordWrap(true);
  outcome_->setMinimumHeight(2 * fontMetrics().lineSpacing());
  auto* buttons = new QDialogButtonBox(this);
  confirm_ = buttons->addButton("Importa", QDialogButtonBox::AcceptRole);
  confirm_->setObjectName("Command1");
  buttons->addButton(QDialogButtonBox::Cancel)->setObjectName("cmdAnnulla");
  connect(buttons, &QDialogButtonBox::accepted, this, &ForeignDialog::Confirm);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  form_ = new QFormLayout;
  form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  form_->addRow("Satellite da assegnare", satellite_);
  form_->addRow("Separatore", separator_);
  form_->addRow("Inizio delle colonne", starts_);
  auto* ticks = new FlowLayout;
  ticks->addWidget(quotes_);
  ticks->addWidget(header_);
  form_->addRow("", ticks);
  auto* column = new QVBoxLayout(this);
  column->addWidget(title);
  column->addLayout(form_);
  column->addWidget(preview_, 1);
  column->addWidget(outcome_);
  column->addWidget(buttons);
}

void ForeignDialog::ConnectChoices() {
  connect(separator_, &QComboBox::currentIndexChanged, this, [this](int index) {
    layout_.separator = static_cast<Separator>(index);
    if (layout_.starts.empty()) layout_.starts = Formats::GuessStarts(sample_);
    Divide();
  });
  connect(starts_, &QLineEdit::textEdited, this, [this](const QString& text) {
    layout_.starts = StartsIn(text);
    Divide();
  });
  connect(quotes_, &QCheckBox::toggled, this, [this](bool on) {
    layout_.quotes = on;
    Divide();
  });
  connect(header_, &QCheckBox::toggled, this, [this](bool on) {
    layout_.header = on;
    Formats::TakeTitles(layout_, sample_);
    chosen_ = layout_;
    ShowLayout();
  });
  connect(columns_, &ColumnHeader::Changed, this, [this] {
    layout_.columns = columns_->Columns();
    chosen_ = layout_;
    ShowOutcome();
  });
}

void ForeignDialog::Divide() {
  Formats::GuessColumns(layout_, sample_);
  if (chosen_ && chosen_->columns.size() == layout_.columns.size()) {
    layout_.columns = chosen_->columns;
    layout_.header = chosen_->header;
    Formats::TakeTitles(layout_, sample_);
  }
  ShowLayout();
}

void ForeignDialog::ShowLayout() {
  const bool fixed = layout_.separator == Separator::Columns;
  {
    const QSignalBlocker quietSeparator(separator_);
    const QSignalBlocker quietQuotes(quotes_);
    const QSignalBlocker quietHeader(header_);
    separator_->setCurrentIndex(static_cast<int>(layout_.separator));
    quotes_->setChecked(layout_.quotes);
    header_->setChecked(layout_.header);
  }
  quotes_->setEnabled(!fixed);
  starts_->setVisible(fixed);
  form_->labelForField(starts_)->setVisible(fixed);
  if (!starts_->hasFocus()) starts_->setText(StartsText(layout_.starts));
  ShowPreview();
  ShowOutcome();
}

void ForeignDialog::ShowPreview() {
  const std::size_t first = layout_.header ? 1 : 0;
  const std::size_t count = std::min(sample_.size() - std::min(first, sample_.size()), PreviewLines);
  const int columns = static_cast<int>(layout_.columns.size());
  preview_->clear();
  preview_->setRowCount(static_cast<int>(count));
  preview_->setColumnCount(columns);
  std::vector<std::string> fields;
  for (std::size_t row = 0; row < count; ++row) {
    Formats::SplitForeign(sample_[first + row], layout_, fields);
    fields.resize(layout_.columns.size());
    for (int i = 0; i < columns; ++i) {
      const auto& field = fields[static_cast<std::size_t>(i)];
      preview_->setItem(static_cast<int>(row), i,
                        new QTableWidgetItem(CodePageText(std::string_view(field).substr(0, 200))));
    }
  }
  QStringList titles;
  for (const auto& column : layout_.columns) {
    titles += column.title.empty() ? QString("Colonna %1").arg(titles.size() + 1)
                                   : CodePageText(std::string_view(column.title).substr(0, 60));
  }
  preview_->setHorizontalHeaderLabels(titles);
  columns_->ShowColumns(layout_.columns);
  columns_->ComeAfter(*header_);
  preview_->resizeColumnsToContents();
  const int widest = std::max(Letters(*preview_, WidestColumn), columns_->ChooserWidth());
  for (int i = 0; i < columns; ++i) {
    preview_->setColumnWidth(i, std::clamp(preview_->columnWidth(i), columns_->ChooserWidth(), widest));
  }
}

void ForeignDialog::ShowOutcome() {
  const bool enough = layout_.Has(Meaning::Name) && layout_.Has(Meaning::Frequency);
  confirm_->setEnabled(enough);
  outcome_->setText(enough ? Outcome() : QString("Scegliere la colonna del nome e quella della frequenza."));
}

QString ForeignDialog::Outcome() const {
  const Formats::SdxTable table = Formats::ReadForeign(text_.text, layout_, 0, CountedLines);
  const int rows = static_cast<int>(table.rows.size());
  QString said;
  if (table.full) {
    said = QString("Più di %1 righe darebbero canali: saranno prese le prime %1").arg(Number(rows));
  } else {
    said = QString("%1 su %2 %3")
               .arg(Lines(rows), Number(table.lines), rows == 1 ? "darebbe un canale" : "darebbero canali");
  }
  if (!table.full && table.lines == CountedLines) said += " (contate fin qui)";
  if (const std::string drops = table.dropped.Text(); !drops.empty()) said += "; le altre: " + Text(drops);
  said += ".";
  const std::pair<Meaning, const char*> wanted[] = {
      {Meaning::Polarisation, "polarizzazione (sarà verticale)"},
      {Meaning::SymbolRate, "symbol rate"},
      {Meaning::Vpid, "PID video"},
      {Meaning::Apid, "PID audio"},
      {Meaning::Sid, "SID"}};
  QStringList missing;
  for (const auto& [meaning, caption] : wanted) {
    if (!layout_.Has(meaning)) missing += caption;
  }
  if (!missing.isEmpty()) said += "\nSenza colonna: " + missing.join(", ") + ".";
  return said;
}

int ForeignDialog::Satellite() const { return SatelliteIn(*satellite_); }

void ForeignDialog::Confirm() {
  if (satellite_->currentIndex() < 0) {
    dialogs_.Message(NoSatelliteChosen, {});
    satellite_->setFocus();
    return;
  }
  accept();
}

}  // namespace Ui
