#include "ui/sources/sdx_dialogs.h"

#include "base/text.h"
#include "formats/sdx_import.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"

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

SdxOptionsDialog::SdxOptionsDialog(const std::vector<Routines::Satellite>& satellites,
                                   const std::vector<std::string>& codes, RowFilters filters,
                                   Dialogs& dialogs, QWidget* parent)
    : QDialog(parent),
      dialogs_(dialogs),
      satellite_(Named<QComboBox>("Combo1", this)),
      rows_(codes, std::move(filters), *this) {
  setObjectName("OpzioniImportSDX");
  setWindowTitle("Opzioni importazione SDX");
  FillSatellites(*satellite_, satellites);
  for (const std::string& code : codes) rows_.List().addItem(CodePageText(code));
  rows_.AddAllCodes();

  auto* form = new QFormLayout(this);
  form->addRow("Satellite da assegnare", satellite_);
  rows_.AddTo(*form);
  auto* buttons = new QDialogButtonBox(this);
  auto* confirm = buttons->addButton(QDialogButtonBox::Ok);
  auto* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  confirm->setObjectName("Command1");
  cancel->setObjectName("cmdAnnulla");
  connect(confirm, &QPushButton::clicked, this, &SdxOptionsDialog::Confirm);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  form->addRow(buttons);
  ShowTips(*this);
}

void SdxOptionsDialog::Confirm() {
  if (satellite_->currentIndex() < 0) {
    dialogs_.Message(NoSatelliteChosen, {});
  } else if (const char* refusal = rows_.Refusal(); refusal != nullptr) {
    dialogs_.Message(refusal, {});
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
