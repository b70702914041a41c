#include "ui/sources/sdx_dialogs.h"

#include "base/code_page.h"
#include "base/file.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/control_tips.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace Ui {
namespace {

constexpr int MostCodes = 10;
constexpr const char* AllCodes = "Tutte";

template <class Widget, class... Arguments>
Widget* Named(const char* name, Arguments&&... arguments) {
  auto* widget = new Widget(std::forward<Arguments>(arguments)...);
  widget->setObjectName(name);
  return widget;
}

}  // namespace

void FillSatellites(QComboBox& box, const std::vector<Routines::Satellite>& satellites) {
  for (const Routines::Satellite& satellite : satellites) {
    box.addItem(CodePageText(satellite.name) + " " + CodePageText(satellite.label).toUpper());
  }
  for (char letter = 'A'; satellites.empty() && letter <= 'Z'; ++letter)
    box.addItem(QString("SAT ") + letter);
  box.setCurrentIndex(-1);
}

int SatelliteIn(const QComboBox& box) { return box.currentText().back().unicode() - 'A'; }

SdxOptionsDialog::SdxOptionsDialog(const std::vector<Routines::Satellite>& satellites,
                                   const std::vector<std::string>& codes, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), codes_(codes) {
  setObjectName("OpzioniImportSDX");
  setWindowTitle("Opzioni importazione SDX");
  satellite_ = Named<QComboBox>("Combo1", this);
  FillSatellites(*satellite_, satellites);

  auto* form = new QFormLayout(this);
  form->addRow("Satellite da assegnare", satellite_);
  const char* captions[] = {"Canali TV", "Canali radio", "Servizi dati"};
  for (int i = 0; i < 3; ++i) {
    types_[i] = Named<QCheckBox>("", captions[i], this);
    types_[i]->setObjectName(QString("Check1_%1").arg(i));
    types_[i]->setChecked(i < 2);
    form->addRow(i == 0 ? "Importa" : "", types_[i]);
  }
  filterList_ = Named<QCheckBox>("Check3", "Salta i servizi elencati in Filtri.txt", this);
  skipKnown_ = Named<QCheckBox>("Chkfiltra", "Salta i canali già in lista", this);
  form->addRow("", filterList_);
  form->addRow("", skipKnown_);
  list_ = Named<QListWidget>("List1", this);
  list_->setAccessibleName("Codifiche da importare");
  list_->setSelectionMode(QAbstractItemView::MultiSelection);
  KeepLines(*list_, 4);
  for (const std::string& code : codes_) list_->addItem(CodePageText(code));
  list_->addItem(AllCodes);
  form->addRow("Codifiche da importare", list_);

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
  const auto selected = list_->selectedItems().size();
  if (satellite_->currentIndex() < 0) {
    dialogs_.Message("Si deve specificare il codice da assegnare al satellite", {});
  } else if (selected > MostCodes) {
    dialogs_.Message("Troppe codifiche selezionate", {});
  } else if (selected == 0) {
    dialogs_.Message("Non sono state selezionate codifiche da importare", {});
  } else {
    accept();
  }
}

Formats::SdxOptions SdxOptionsDialog::Chosen() const {
  Formats::SdxOptions options;
  options.satellite = SatelliteIn(*satellite_);
  options.television = types_[0]->isChecked();
  options.radio = types_[1]->isChecked();
  options.data = types_[2]->isChecked();
  for (const QListWidgetItem* item : list_->selectedItems()) {
    const auto row = static_cast<std::size_t>(list_->row(item));
    if (row < codes_.size()) {
      options.codes.push_back(codes_[row]);
    } else {
      options.allCodes = true;
    }
  }
  return options;
}

bool SdxOptionsDialog::UseFilterList() const { return filterList_->isChecked(); }

bool SdxOptionsDialog::SkipKnown() const { return skipKnown_->isChecked(); }

SdxImportDialog::SdxImportDialog(QWidget* parent) : QDialog(parent) {
  setObjectName("ImportazioneSDX");
  setWindowTitle("Importazione canali SDX");
  fromStart_ = Named<QRadioButton>("DallInizio", "Dall' Inizio", this);
  auto* fromChannel = Named<QRadioButton>("DalCanale", "Dal canale", this);
  start_ = Named<QLineEdit>("Partenza", this);
  fromStart_->setChecked(true);
  start_->setEnabled(false);
  start_->setAccessibleName("Canale di partenza per importare SDX");
  connect(fromChannel, &QRadioButton::toggled, start_, &QWidget::setEnabled);

  auto* caption = new QLabel("Canale di partenza per importare SDX", this);
  caption->setBuddy(start_);
  auto* column = new QVBoxLayout(this);
  for (QWidget* line : std::initializer_list<QWidget*>{fromStart_, fromChannel, caption, start_})
    column->addWidget(line);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
  ShowTips(*this);
}

QString SdxImportDialog::Start() const { return fromStart_->isChecked() ? QString("1") : start_->text(); }

MissingWindow::MissingWindow(const QString& text, Session& session, QWidget* parent)
    : ToolWindow("ElencoNonInSDX", "Elenco canali Non in SDX", parent), session_(session), text_(text) {
  auto* lines = new QPlainTextEdit(text, this);
  lines->setObjectName("RigheNonInSDX");
  lines->setAccessibleName(windowTitle());
  // Not to be changed, but with a cursor, by which keys and screen readers go from line to line.
  lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* buttons = new FlowLayout;
  AddButton(*buttons, "CopiaNonInSDX", "Copia", [text] { QApplication::clipboard()->setText(text); });
  AddButton(*buttons, "SalvaNonInSDX", "Salva come testo…", [this] { Save(); });
  auto* column = new QVBoxLayout(this);
  column->addWidget(lines);
  column->addLayout(WithClose(buttons, "ChiudiNonInSDX"));
  ResizeOnScreen(*this, {420, 480});
}

void MissingWindow::Save() {
  const std::string path =
      session_.AskSave("Salva l'elenco", "Files di testo(*.txt)|*.txt", FolderKind::Foreign, "Non salvato");
  if (path.empty()) return;
  const std::string bytes = Base::FromUtf8Lossy(QString(text_).replace("\n", "\r\n").toStdString());
  if (const auto written = Base::ReplaceFile(path, Base::AsBytes(bytes)); !written)
    session_.Message(written.error());
}

}  // namespace Ui
