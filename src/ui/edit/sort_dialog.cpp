#include "ui/edit/sort_dialog.h"

#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"
#include "ui/session/session.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>

namespace Ui {

using Edit::SortKey;

namespace {

constexpr std::pair<SortKey, const char*> Keys[] = {{SortKey::Name, "Nome"},
                                                    {SortKey::Kind, "TV, radio, servizi"},
                                                    {SortKey::Satellite, "Satellite"},
                                                    {SortKey::Bouquet, "Bouquet"},
                                                    {SortKey::Frequency, "Frequenza"},
                                                    {SortKey::Sid, "SID"},
                                                    {SortKey::Coding, "Codifica"},
                                                    {SortKey::HdFirst, "HD prima di SD"},
                                                    {SortKey::FavouritesFirst, "Prima i preferiti"},
                                                    {SortKey::ActiveFirst, "Prima gli attivi"}};
constexpr const char* KeyCaptions[] = {"Ordina per", "poi per", "poi per"};
constexpr int Multiples[] = {0, 10, 50, 100};

}  // namespace

SortDialog::SortDialog(const Session& session, QWidget* parent)
    : QDialog(parent),
      session_(session),
      fromChannel_(new QRadioButton("Dal canale", this)),
      selection_(new QRadioButton(this)),
      start_(new QSpinBox(this)),
      keys_{},
      multiple_(new QComboBox(this)),
      preview_(new PreviewModel({"Nome", "Era al"}, false, this)),
      outcome_(new QLabel(this)) {
  setObjectName("OrdinaCanaliPer");
  setWindowTitle("Ordina Canali");
  fromChannel_->setObjectName("OrdinaDalCanale");
  selection_->setObjectName("OrdinaSelezione");
  start_->setObjectName("OrdinaDa");
  multiple_->setObjectName("GruppiAMultipli");
  outcome_->setObjectName("Esito");
  outcome_->setWordWrap(true);
  const Edit::Slots selected = session.view.ListGrid().Selected();
  start_->setRange(1, std::max(Routines::LastOccupied(session.document.Tables()), 1));
  start_->setAccessibleName("Primo canale da ordinare");
  start_->setValue(selected.size() == 1 ? selected.front() : 1);
  Build(static_cast<int>(selected.size()));
  ShowPlan();
  ShowTips(*this);
  ResizeOnScreen(*this, {520, 600});
}

void SortDialog::Build(int selected) {
  selection_->setText(QString("Le righe selezionate (%1)").arg(selected));
  selection_->setEnabled(selected > 1);
  (selected > 1 ? selection_ : fromChannel_)->setChecked(true);
  auto* form = new QFormLayout(this);
  auto* from = new QHBoxLayout;
  from->addWidget(fromChannel_);
  from->addWidget(start_);
  from->addStretch();
  form->addRow(from);
  form->addRow(selection_);
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    keys_[i] = new QComboBox(this);
    keys_[i]->setObjectName(QString("Chiave_%1").arg(i));
    if (i > 0) keys_[i]->addItem("niente altro");
    for (const auto& [key, caption] : Keys) keys_[i]->addItem(caption);
    form->addRow(KeyCaptions[i], keys_[i]);
    connect(keys_[i], &QComboBox::currentIndexChanged, this, &SortDialog::ShowPlan);
  }
  for (const int multiple : Multiples)
    multiple_->addItem(multiple == 0 ? QString("dopo il precedente")
                                     : QString("a un multiplo di %1").arg(multiple));
  form->addRow("Ogni gruppo comincia", multiple_);
  auto* table = new QTableView(this);
  table->setObjectName("NuovoOrdine");
  table->setAccessibleName("La lista come diventa");
  ShowPreview(*table, *preview_, {8, 26});
  form->addRow(table);
  form->addRow(outcome_);
  const PreviewButtons buttons(*this, *preview_, "Ordina");
  confirm_ = buttons.confirm;
  form->addRow(buttons.box);
  connect(fromChannel_, &QRadioButton::toggled, this, &SortDialog::ShowPlan);
  connect(start_, &QSpinBox::valueChanged, this, &SortDialog::ShowPlan);
  connect(multiple_, &QComboBox::currentIndexChanged, this, &SortDialog::ShowPlan);
}

std::vector<int> SortDialog::Slots() const {
  return selection_->isChecked() ? session_.view.ListGrid().Selected()
                                 : Edit::SlotRun(start_->value(), session_.document.Tables().ChannelCount);
}

Edit::SortOrder SortDialog::Order() const {
  Edit::SortOrder order{{}, Multiples[multiple_->currentIndex()]};
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    const int key = keys_[i]->currentIndex() - (i > 0 ? 1 : 0);
    if (key >= 0) order.keys.push_back(Keys[key].first);
  }
  return order;
}

QString SortDialog::How() const {
  QStringList keys;
  for (std::size_t i = 0; i < keys_.size(); ++i)
    if (i == 0 || keys_[i]->currentIndex() > 0) keys += keys_[i]->currentText();
  return "(" + keys.join(", ") + ")" +
         (selection_->isChecked() ? QString(" nelle righe selezionate")
                                  : QString(" dal canale %1").arg(start_->value()));
}

void SortDialog::ShowPlan() {
  const Routines::State& state = session_.document.Tables();
  start_->setEnabled(fromChannel_->isChecked());
  const std::vector<int> slots = Slots();
  plan_ = Edit::PlanSort(state, slots, Order());
  preview_->Show(LinesOf(state, plan_.map, slots));
  ShowOutcome();
}

void SortDialog::ShowOutcome() {
  outcome_->setText(Text(Edit::TextOf(plan_)));
  if (confirm_ != nullptr) confirm_->setEnabled(plan_.moved > 0 && plan_.without == 0);
}

}  // namespace Ui
