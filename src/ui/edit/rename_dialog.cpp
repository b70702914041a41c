#include "ui/edit/rename_dialog.h"

#include "ui/kit/screen_fit.h"
#include "ui/kit/settings_file.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"
#include "ui/session/session.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace Ui {

using Edit::RenameKind;
using Edit::RenameRule;

namespace {

constexpr const char* KeptGroup = "RegoleNomi";

struct KindCaption {
  RenameKind kind;
  const char* caption;
  const char* text;  // what the first field is for; empty where there is none
  const char* with;
};

constexpr KindCaption Kinds[] = {
    {RenameKind::Replace, "Sostituisci", "testo da cercare", "nuovo testo"},
    {RenameKind::Pattern, "Sostituisci il modello", "espressione regolare", "nuovo testo, $1 è il gruppo 1"},
    {RenameKind::TakeFront, "Togli davanti", "parola", ""},
    {RenameKind::TakeBehind, "Togli dietro", "parola", ""},
    {RenameKind::PutFront, "Metti davanti", "parola", ""},
    {RenameKind::PutBehind, "Metti dietro", "parola", ""},
    {RenameKind::Capitals, "Iniziali maiuscole", "", ""},
    {RenameKind::Upper, "Tutto maiuscolo", "", ""},
    {RenameKind::Lower, "Tutto minuscolo", "", ""},
    {RenameKind::Tidy, "Riordina gli spazi", "", ""},
    {RenameKind::FromSource, "Nomi della lista a destra", "", ""},
};

// A name of the user's own as a key of the settings, which know slashes as groups.
QString KeyOf(const QString& name) { return QString::fromLatin1(QUrl::toPercentEncoding(name)); }

QLineEdit* TextField(const char* name, QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(name);
  return field;
}

QPushButton* NamedButton(const char* name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

RuleLine::RuleLine(QWidget* parent)
    : QWidget(parent),
      kind_(new QComboBox(this)),
      text_(TextField("TestoRegola", this)),
      with_(TextField("NuovoTestoRegola", this)) {
  kind_->setObjectName("TipoRegola");
  kind_->setAccessibleDescription("Regola");
  for (const KindCaption& kind : Kinds) kind_->addItem(kind.caption);
  auto* remove = new QToolButton(this);
  remove->setObjectName("TogliRegola");
  remove->setText("✕");
  remove->setAccessibleName("Togli la regola");
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(kind_);
  line->addWidget(text_, 1);
  line->addWidget(with_, 1);
  line->addStretch();
  line->addWidget(remove);
  connect(remove, &QToolButton::clicked, this, &RuleLine::RemoveWanted);
  connect(kind_, &QComboBox::currentIndexChanged, this, [this] {
    ShowTexts();
    Q_EMIT Changed();
  });
  for (QLineEdit* field : {text_, with_}) connect(field, &QLineEdit::textChanged, this, &RuleLine::Changed);
  ShowTexts();
}

void RuleLine::ShowTexts() {
  const KindCaption& kind = Kinds[kind_->currentIndex()];
  for (const auto& [field, purpose] : {std::pair(text_, kind.text), {with_, kind.with}}) {
    field->setVisible(*purpose != '\0');
    field->setPlaceholderText(purpose);
    field->setAccessibleName(purpose);
  }
}

void RuleLine::Set(const RenameRule& rule) {
  for (int i = 0; i < kind_->count(); ++i)
    if (Kinds[i].kind == rule.kind) kind_->setCurrentIndex(i);
  text_->setText(Text(rule.text));
  with_->setText(Text(rule.with));
}

RenameRule RuleLine::Rule() const {
  const KindCaption& kind = Kinds[kind_->currentIndex()];
  RenameRule rule{kind.kind};
  if (*kind.text != '\0') rule.text = text_->text().toStdString();
  if (*kind.with != '\0') rule.with = with_->text().toStdString();
  return rule;
}

RenameDialog::RenameDialog(const Session& session, Edit::SourceName source, QWidget* parent)
    : QDialog(parent),
      session_(session),
      source_(std::move(source)),
      scope_(new ScopeChoice(session, this)),
      lines_(new QVBoxLayout),
      kept_(new QComboBox(this)),
      names_(new PreviewModel({"Nome", "Nuovo nome", "Byte", "Perché no"}, true, this)),
      table_(new QTableView(this)),
      outcome_(new QLabel(this)) {
  setObjectName("CambiaNomi");
  setWindowTitle("Cambia nomi");
  outcome_->setObjectName("Esito");
  outcome_->setWordWrap(true);
  Build();
  connect(scope_, &ScopeChoice::Changed, this, &RenameDialog::ShowNames);
  connect(names_, &PreviewModel::TicksChanged, this, &RenameDialog::ShowTicks);
  ShowKept();
  AddRule({});
  ShowTips(*this);
  ResizeOnScreen(*this, {720, 620});
}

void RenameDialog::Build() {
  table_->setObjectName("NomiNuovi");
  table_->setAccessibleName("Nomi nuovi");
  ShowPreview(*table_, *names_, {11, 24, 26, 11});
  auto* another = NamedButton("AggiungiRegola", "Aggiungi una regola", this);
  connect(another, &QPushButton::clicked, this, [this] { AddRule({}); });
  auto* column = new QVBoxLayout(this);
  column->addWidget(scope_);
  column->addLayout(lines_);
  column->addWidget(another, 0, Qt::AlignLeft);
  column->addWidget(KeptRules());
  column->addWidget(table_, 1);
  column->addWidget(outcome_);
  const PreviewButtons buttons(*this, *names_, "Cambia");
  confirm_ = buttons.confirm;
  column->addWidget(buttons.box);
}

QWidget* RenameDialog::KeptRules() {
  auto* box = new QWidget(this);
  kept_->setObjectName("RegoleTenute");
  kept_->setEditable(true);
  kept_->setInsertPolicy(QComboBox::NoInsert);
  kept_->lineEdit()->setPlaceholderText("nome delle regole");
  kept_->setAccessibleName("Regole tenute");
  auto* caption = new QLabel("Regole &tenute", this);
  caption->setBuddy(kept_);
  auto* keep = NamedButton("TieniRegole", "Tieni", this);
  auto* forget = NamedButton("ScordaRegole", "Scorda", this);
  auto* line = new QHBoxLayout(box);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(caption);
  line->addWidget(kept_, 1);
  line->addWidget(keep);
  line->addWidget(forget);
  connect(kept_, &QComboBox::textActivated, this, &RenameDialog::TakeKept);
  connect(keep, &QPushButton::clicked, this, &RenameDialog::Keep);
  connect(forget, &QPushButton::clicked, this, &RenameDialog::Forget);
  return box;
}

void RenameDialog::AddRule(const RenameRule& rule) {
  auto* line = new RuleLine(this);
  line->Set(rule);
  lines_->addWidget(line);
  rules_.push_back(line);
  connect(line, &RuleLine::Changed, this, &RenameDialog::ShowNames);
  connect(line, &RuleLine::RemoveWanted, this, [this, line] { RemoveRule(line); });
  ShowTips(*line);
  ShowNames();
}

void RenameDialog::RemoveRule(RuleLine* line) {
  rules_.erase(std::find(rules_.begin(), rules_.end(), line));
  line->hide();
  line->deleteLater();
  ShowNames();
}

// A rule that was just added says nothing yet and is left alone.
std::vector<RenameRule> RenameDialog::Rules() const {
  std::vector<RenameRule> rules;
  for (const RuleLine* line : rules_)
    if (const RenameRule rule = line->Rule(); !(rule == RenameRule{})) rules.push_back(rule);
  return rules;
}

void RenameDialog::ShowNames() {
  auto names = Edit::NewNames(session_.document.Tables(), scope_->Chosen(), Rules(), source_);
  fault_ = names ? QString() : Text(names.error().message);
  planned_ = names ? std::move(*names) : std::vector<Edit::NewName>();
  std::vector<PreviewLine> lines;
  for (const Edit::NewName& name : planned_) {
    const QString room = QString("%1 di %2").arg(name.bytes).arg(Routines::ChannelRecord::NameSize);
    lines.push_back(
        {name.slot, {Text(name.before), Text(name.after), room, Text(name.fault)}, Text(name.fault)});
  }
  names_->Show(std::move(lines));
}

void RenameDialog::ShowTicks() {
  const int ticked = names_->TickedLines();
  const auto faults = std::count_if(planned_.begin(), planned_.end(),
                                    [](const Edit::NewName& name) { return !name.fault.empty(); });
  QString said = fault_;
  if (said.isEmpty())
    said =
        planned_.empty() ? QString("Nessun nome cambia") : "Da cambiare: " + Counted(ticked, "nome", "nomi");
  if (faults > 0) said += "; in rosso quelli che non possono cambiare: " + QString::number(faults);
  outcome_->setText(said);
  if (confirm_ != nullptr) confirm_->setEnabled(ticked > 0);
}

std::vector<Edit::NewName> RenameDialog::Chosen() const {
  std::vector<Edit::NewName> chosen;
  for (std::size_t i = 0; i < planned_.size(); ++i)
    if (names_->Ticked(i)) chosen.push_back(planned_[i]);
  return chosen;
}

// Enter in the field for a name of rules is about the rules: it must not change the list.
void RenameDialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && focusWidget() == kept_) return;
  QDialog::keyPressEvent(event);
}

void RenameDialog::ShowKept() {
  const QString typed = kept_->currentText();
  kept_->clear();
  ReadSettings(session_.SettingsFile(), [this](QSettings& settings) {
    settings.beginGroup(KeptGroup);
    for (const QString& key : settings.childKeys()) kept_->addItem(QUrl::fromPercentEncoding(key.toLatin1()));
  });
  kept_->setCurrentText(typed);
}

void RenameDialog::TakeKept(const QString& name) {
  const QString key = QString(KeptGroup) + "/" + KeyOf(name);
  const QStringList lines = Setting(session_.SettingsFile(), key).toStringList();
  if (lines.isEmpty()) return;
  while (!rules_.empty()) RemoveRule(rules_.back());
  for (const QString& line : lines)
    if (const auto rule = Edit::RenameRuleOf(line.toStdString())) AddRule(*rule);
}

void RenameDialog::Keep() {
  const QString name = kept_->currentText().trimmed();
  QStringList lines;
  for (const RenameRule& rule : Rules()) lines += Text(Edit::TextOf(rule));
  if (name.isEmpty() || lines.isEmpty()) {
    outcome_->setText(name.isEmpty() ? "Per tenere le regole serve un nome" : "Non ci sono regole da tenere");
    return;
  }
  KeepSetting(session_.SettingsFile(), QString(KeptGroup) + "/" + KeyOf(name), lines);
  ShowKept();
  outcome_->setText("Regole tenute: " + name);
}

void RenameDialog::Forget() {
  const QString name = kept_->currentText().trimmed();
  KeepSetting(session_.SettingsFile(), QString(KeptGroup) + "/" + KeyOf(name), {});
  kept_->setCurrentText({});
  ShowKept();
}

}  // namespace Ui
