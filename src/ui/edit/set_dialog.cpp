#include "ui/edit/set_dialog.h"

#include "model/cells.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"
#include "ui/session/session.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>

namespace Ui {

using Routines::ChannelRecord;
namespace Columns = Routines::ChannelColumn;

namespace {

constexpr const char* AsItIs = "com'è";
constexpr int LargestShift = 65535;

constexpr std::pair<int, const char*> Fields[] = {
    {Columns::Flags, "Codifica"}, {Columns::Active, "Attivo"}, {Columns::Transponder, "Transponder"},
    {Columns::Sid, "SID"},        {Columns::Vpid, "VPID"},     {Columns::Apid, "APID"},
    {Columns::Aecm, "AECM"},      {Columns::Vecm, "VECM"},     {Columns::Pcr, "PCR"}};
constexpr int FirstPid = 4;  // among the fields

// A field of a channel, as it is and as it would become.
struct Change {
  int column;
  QString field;
  QString before;
  QString after;
};

// The coding has the bit of the active ones: it is no change of its own where only that is to change.
std::vector<Change> ChangesOf(const ChannelRecord& before, const ChannelRecord& after, bool coding) {
  std::vector<Change> changes;
  for (const auto& [column, field] : Fields) {
    if (column == Columns::Flags && !coding) continue;
    const QString was = CodePageText(Routines::CellOf(before, column));
    const QString becomes = CodePageText(Routines::CellOf(after, column));
    if (was != becomes) changes.push_back({column, field, was, becomes});
  }
  return changes;
}

// "24 Seca", but of a transponder no more than its number.
QString ShortOf(int column, const std::string& value) {
  return column == Columns::Transponder ? Text(value).section(' ', 0, 0) : Text(value);
}

QString Signed(int number) { return (number > 0 ? "+" : "") + QString::number(number); }

QSpinBox* ShiftBox(const char* name, const char* accessible, QWidget* parent) {
  auto* box = new QSpinBox(parent);
  box->setObjectName(name);
  box->setAccessibleName(accessible);
  box->setRange(-LargestShift, LargestShift);
  return box;
}

QComboBox* ChoiceBox(const char* name, QWidget* parent) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  return box;
}

}  // namespace

SetDialog::SetDialog(const Session& session, QWidget* parent)
    : QDialog(parent),
      session_(session),
      scope_(new ScopeChoice(session, this)),
      coding_(ChoiceBox("NuovaCodifica", this)),
      active_(ChoiceBox("NuovoAttivo", this)),
      transponder_(ChoiceBox("NuovoTransponder", this)),
      sid_(ShiftBox("SommaSID", "Da sommare ai SID", this)),
      pid_(ShiftBox("SommaPID", "Da sommare ai PID", this)),
      whichPid_(ChoiceBox("QualiPID", this)),
      preview_(new PreviewModel({"Nome", "Com'è", "Come diventa", "Perché no"}, true, this)),
      outcome_(new QLabel(this)) {
  setObjectName("ImpostaValori");
  setWindowTitle("Imposta");
  outcome_->setObjectName("Esito");
  outcome_->setWordWrap(true);
  Build();
  connect(scope_, &ScopeChoice::Changed, this, &SetDialog::ShowPlan);
  connect(preview_, &PreviewModel::TicksChanged, this, &SetDialog::ShowOutcome);
  ShowPlan();
  coding_->setFocus();
  ShowTips(*this);
  ResizeOnScreen(*this, {940, 620});
}

void SetDialog::Build() {
  auto* form = new QFormLayout(this);
  form->addRow(scope_);
  AddFields(*form);
  auto* table = new QTableView(this);
  table->setObjectName("ValoriNuovi");
  table->setAccessibleName("Valori nuovi");
  ShowPreview(*table, *preview_, {11, 24, 30, 30});
  form->addRow(table);
  form->addRow(outcome_);
  const PreviewButtons buttons(*this, *preview_, "Imposta");
  confirm_ = buttons.confirm;
  form->addRow(buttons.box);
}

void SetDialog::AddFields(QFormLayout& form) {
  coding_->setEditable(true);
  coding_->setInsertPolicy(QComboBox::NoInsert);
  for (QComboBox* box : {coding_, active_, transponder_}) box->addItem(AsItIs);
  for (const std::string_view coding : Edit::Codings) coding_->addItem(Text(coding));
  active_->addItems({"S", "N"});
  for (const std::string& choice : Edit::TransponderChoices(session_.document.Tables()))
    transponder_->addItem(Text(choice));
  transponder_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  transponder_->setMinimumContentsLength(30);
  whichPid_->addItem("tutti i PID");
  for (std::size_t i = FirstPid; i < std::size(Fields); ++i) whichPid_->addItem(Fields[i].second);
  whichPid_->setAccessibleDescription("Quali PID");
  form.addRow("Codifica", coding_);
  form.addRow("Attivo", active_);
  form.addRow("Transponder", transponder_);
  form.addRow("Somma al SID", sid_);
  auto* pids = new QHBoxLayout;
  pids->addWidget(pid_);
  pids->addWidget(whichPid_);
  pids->addStretch();
  form.addRow("Somma ai PID", pids);
  for (const QComboBox* box : {coding_, active_, transponder_, whichPid_})
    connect(box, &QComboBox::currentTextChanged, this, &SetDialog::ShowPlan);
  for (const QSpinBox* box : {sid_, pid_}) connect(box, &QSpinBox::valueChanged, this, &SetDialog::ShowPlan);
}

Edit::FieldChanges SetDialog::Changes() const {
  Edit::FieldChanges changes;
  // The coding first: whether the channel is active is a bit of it.
  for (const auto& [column, box] : {std::pair(Columns::Flags, coding_),
                                    {Columns::Active, active_},
                                    {Columns::Transponder, transponder_}}) {
    const QString text = box->currentText().trimmed();
    if (!text.isEmpty() && text != AsItIs) changes.values.push_back({column, text.toStdString()});
  }
  if (sid_->value() != 0) changes.shifts.push_back({Columns::Sid, sid_->value()});
  for (std::size_t i = FirstPid; i < std::size(Fields); ++i) {
    const bool wanted = whichPid_->currentIndex() == 0 || whichPid_->currentText() == Fields[i].second;
    if (pid_->value() != 0 && wanted) changes.shifts.push_back({Fields[i].first, pid_->value()});
  }
  return changes;
}

QString SetDialog::What() const {
  QString what;
  for (const Edit::FieldValue& value : Changes().values)
    for (const auto& [column, field] : Fields)
      if (column == value.column) what += QString(", %1 %2").arg(field, ShortOf(column, value.text));
  if (sid_->value() != 0) what += ", SID " + Signed(sid_->value());
  const QString pid = whichPid_->currentIndex() == 0 ? QString("PID") : whichPid_->currentText();
  if (pid_->value() != 0) what += ", " + pid + " " + Signed(pid_->value());
  return what;
}

void SetDialog::ShowPlan() {
  const Routines::State& state = session_.document.Tables();
  auto plan = Edit::PlanFields(state, scope_->Chosen(), Changes());
  fault_ = plan ? QString() : Text(plan.error().message);
  planned_ = plan ? std::move(*plan) : std::vector<Edit::ChangedChannel>();
  const bool coding = coding_->currentText() != AsItIs;
  std::vector<PreviewLine> lines;
  for (const Edit::ChangedChannel& channel : planned_) {
    QStringList was;
    QStringList becomes;
    for (const Change& change : ChangesOf(state.Channel(channel.slot), channel.after, coding)) {
      was += change.field + " " + change.before;
      becomes += change.field + " " + change.after;
    }
    const QString name = CodePageText(Base::TrimmedRight(channel.after.Name()));
    lines.push_back(
        {channel.slot, {name, was.join(", "), becomes.join(", "), Text(channel.fault)}, Text(channel.fault)});
  }
  preview_->Show(std::move(lines));
}

// "Codifica 04 → 24 (30), Attivo N → S (2)", the most frequent first.
QString SetDialog::FromWhat() const {
  constexpr qsizetype MostShown = 4;
  const Routines::State& state = session_.document.Tables();
  QMap<QString, int> counts;
  for (const Edit::ChangedChannel& channel : Chosen())
    for (const Change& change :
         ChangesOf(state.Channel(channel.slot), channel.after, coding_->currentText() != AsItIs))
      if (change.column == Columns::Flags || change.column == Columns::Active ||
          change.column == Columns::Transponder)
        ++counts[change.field + " " + change.before + " → " + change.after];
  QStringList texts = counts.keys();
  std::stable_sort(texts.begin(), texts.end(), [&counts](const QString& one, const QString& other) {
    return counts[one] > counts[other];
  });
  for (QString& text : texts) text += QString(" (%1)").arg(counts[text]);
  const bool more = texts.size() > MostShown;
  return texts.mid(0, MostShown).join(", ") + (more ? "…" : "");
}

void SetDialog::ShowOutcome() {
  const int ticked = preview_->TickedLines();
  const auto faults =
      std::count_if(planned_.begin(), planned_.end(),
                    [](const Edit::ChangedChannel& channel) { return !channel.fault.empty(); });
  QString said = fault_;
  if (said.isEmpty())
    said = planned_.empty() ? QString("Nessun canale cambia")
                            : "Da cambiare: " + Counted(ticked, "canale", "canali");
  if (const QString from = FromWhat(); !from.isEmpty()) said += "; " + from;
  if (faults > 0) said += "; in rosso quelli che non possono cambiare: " + QString::number(faults);
  outcome_->setText(said);
  confirm_->setEnabled(ticked > 0);
}

std::vector<Edit::ChangedChannel> SetDialog::Chosen() const {
  std::vector<Edit::ChangedChannel> chosen;
  for (std::size_t i = 0; i < planned_.size(); ++i)
    if (preview_->Ticked(i)) chosen.push_back(planned_[i]);
  return chosen;
}

}  // namespace Ui
