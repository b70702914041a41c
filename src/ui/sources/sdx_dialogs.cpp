#include "ui/sources/sdx_dialogs.h"

#include "base/text.h"
#include "formats/list_summary.h"
#include "formats/sdx_import.h"
#include "ui/kit/blank_entries.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"
#include "ui/session/session.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace Ui {
namespace {

template <class Widget, class... Arguments>
Widget* Named(const char* name, Arguments&&... arguments) {
  auto* widget = new Widget(std::forward<Arguments>(arguments)...);
  widget->setObjectName(name);
  return widget;
}

}  // namespace

SdxOptionsDialog::SdxOptionsDialog(const QString& fileName, Contents contents, const Session& session,
                                   QWidget* parent)
    : QDialog(parent),
      session_(session),
      summary_(std::move(contents.summary)),
      satellite_(Named<QComboBox>("Combo1", this)),
      warning_(Named<QLabel>("AvvisoSatellite", this)),
      rows_(std::move(contents.codes), FiltersOf(session), *this) {
  setObjectName("OpzioniImportSDX");
  setWindowTitle("Opzioni importazione SDX");
  FillSatellites(*satellite_, session.bouquets.tables.satellites);
  for (const std::string& code : rows_.Codes()) rows_.List().addItem(CodePageText(code));
  NameBlankEntries(rows_.List());
  rows_.AddAllCodes();
  // Codes are short: beside each other all of them are in sight.
  rows_.List().setFlow(QListView::LeftToRight);
  rows_.List().setWrapping(true);
  rows_.List().setResizeMode(QListView::Adjust);
  rows_.List().setSpacing(2);

  auto* file = Named<QLabel>("FileSDX", FileText(fileName), this);
  for (QLabel* label : {file, warning_}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  warning_->setMinimumHeight(2 * fontMetrics().lineSpacing());
  auto* form = new QFormLayout(this);
  form->addRow(file);
  form->addRow("Satellite da assegnare", satellite_);
  form->addRow("", warning_);
  rows_.AddTo(*form);
  auto* buttons = new QDialogButtonBox(this);
  auto* confirm = buttons->addButton(QDialogButtonBox::Ok);
  auto* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  confirm->setObjectName("Command1");
  cancel->setObjectName("cmdAnnulla");
  connect(confirm, &QPushButton::clicked, this, &SdxOptionsDialog::Confirm);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(satellite_, &QComboBox::currentIndexChanged, this, [this] { warning_->setText(Warning()); });
  form->addRow(buttons);
  ShowTips(*this);
}

QString SdxOptionsDialog::FileText(const QString& fileName) const {
  constexpr std::size_t MostNamed = 4;
  QStringList satellites;
  for (const auto& [name, lines] : summary_.satellites) {
    if (name.empty()) continue;
    const QString count = summary_.satellites.size() > 1 ? QString(" (%1)").arg(lines) : QString();
    satellites += CodePageText(name) + count;
  }
  if (const auto more = satellites.size() - static_cast<qsizetype>(MostNamed); more > 0)
    satellites = satellites.first(MostNamed) + QStringList(QString("e altri %1").arg(more));
  const QString lines = fileName + ": " + Counted(summary_.lines, "riga", "righe");
  return satellites.isEmpty() ? lines : lines + ", " + satellites.join(", ");
}

QString SdxOptionsDialog::Warning() const {
  if (satellite_->currentIndex() < 0) return {};
  const Routines::State& state = session_.document.Tables();
  const auto chosen = static_cast<std::uint32_t>(SatelliteIn(*satellite_));
  const auto proposed = Formats::ProposedSatellites(state, summary_.transponders);
  // A file of more satellites is none of them.
  if (proposed.size() == 1 && proposed.begin()->second != static_cast<int>(chosen)) {
    const auto other = static_cast<std::uint32_t>(proposed.begin()->second);
    return QString("⚠ Nella lista i transponder del file sono in %1, non in %2")
        .arg(Text(Routines::SatelliteLabel(other)), Text(Routines::SatelliteLabel(chosen)));
  }
  if (!Formats::LooksLikeAnother(state, summary_.transponders, static_cast<int>(chosen))) return {};
  return QString("⚠ I transponder di %1 nella lista non sono quelli del file")
      .arg(Text(Routines::SatelliteLabel(chosen)));
}

void SdxOptionsDialog::Confirm() {
  if (satellite_->currentIndex() < 0) {
    session_.dialogs.Message(NoSatelliteChosen, {});
  } else if (const char* refusal = rows_.Refusal(); refusal != nullptr) {
    session_.dialogs.Message(refusal, {});
  } else {
    accept();
  }
}

Formats::SdxOptions SdxOptionsDialog::Chosen() const {
  Formats::SdxOptions options;
  options.satellite = SatelliteIn(*satellite_);
  rows_.Take(options);
  return options;
}

SdxImportDialog::SdxImportDialog(const Routines::State& state, int rows, const QString& others,
                                 QWidget* parent)
    : QDialog(parent), state_(state), rows_(rows), others_(others) {
  setObjectName("ImportazioneSDX");
  setWindowTitle("Importazione canali SDX");
  fromStart_ = Named<QRadioButton>("DallInizio", "Dall' Inizio", this);
  fromChannel_ = Named<QRadioButton>("DalCanale", "Dal canale", this);
  gaps_ = Named<QRadioButton>("NeiPostiVuoti", "Nei posti vuoti", this);
  start_ = Named<QLineEdit>("Partenza", this);
  start_->setAccessibleName("Canale di partenza per importare SDX");
  // Behind the last channel nothing is written over; a full list has no such place to offer.
  const int behind = LastOccupied(state) + 1;
  if (behind <= state.ChannelCount) start_->setText(QString::number(behind));
  fromChannel_->setChecked(true);
  auto* caption = new QLabel("Canale di partenza per importare SDX", this);
  caption->setBuddy(start_);
  outcome_ = Named<QLabel>("EsitoImportazione", this);
  outcome_->setWordWrap(true);
  outcome_->setMinimumHeight(2 * fontMetrics().lineSpacing());

  auto* column = new QVBoxLayout(this);
  for (QWidget* line :
       std::initializer_list<QWidget*>{fromStart_, fromChannel_, caption, start_, gaps_, outcome_})
    column->addWidget(line);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  confirm_ = buttons->button(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  for (QRadioButton* choice : {fromStart_, fromChannel_, gaps_})
    connect(choice, &QRadioButton::toggled, this, &SdxImportDialog::ShowOutcome);
  connect(start_, &QLineEdit::textChanged, this, &SdxImportDialog::ShowOutcome);
  ShowTips(*this);
  ShowOutcome();
}

std::vector<int> SdxImportDialog::Slots() const {
  if (gaps_->isChecked()) return Formats::EmptySlots(state_, rows_);
  const int start = fromStart_->isChecked() ? 1 : Base::LeadingNumber(start_->text().toStdString());
  return start < 1 ? std::vector<int>() : Formats::SlotsFrom(state_, start, rows_);
}

void SdxImportDialog::ShowOutcome() {
  start_->setEnabled(fromChannel_->isChecked());
  const std::vector<int> slots = Slots();
  const Formats::Overwritten over = Formats::OverwrittenBy(state_, slots);
  QStringList parts;
  if (const std::string text = over.Text(); !text.empty()) parts += "sovrascrive " + Text(text);
  if (over.channels == 0 || slots.size() < static_cast<std::size_t>(rows_)) {
    const int free = static_cast<int>(slots.size()) - over.channels;
    parts += QString(free == 1 ? "%1 posto libero per %2 canali" : "%1 posti liberi per %2 canali")
                 .arg(free)
                 .arg(rows_);
  }
  if (!others_.isEmpty()) parts += others_;
  outcome_->setText(parts.join("; "));
  const bool typed = !start_->text().isEmpty() || !fromChannel_->isChecked();
  confirm_->setEnabled(typed && !(gaps_->isChecked() && slots.empty()));
}

}  // namespace Ui
