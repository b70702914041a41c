#include "ui/sources/row_choices.h"

#include "base/file.h"
#include "formats/sdx_import.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/session/session.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QListWidget>

namespace Ui {
namespace {

constexpr int MostCodes = 10;
constexpr std::size_t LargestFilterList = 1U << 20U;

QCheckBox* Switch(const QString& name, const char* caption, QWidget& dialog) {
  auto* box = new QCheckBox(caption, &dialog);
  box->setObjectName(name);
  return box;
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

RowFilters FiltersOf(const Session& session) {
  RowFilters filters;
  const auto text = Base::ReadFile(Base::PathIn(session.programFolder, "Filtri.txt"), LargestFilterList);
  if (text) filters.filtered = Formats::FilteredServices(Base::AsText(*text));
  for (const Formats::KnownService& known : Formats::KnownServices(session.document.Tables()))
    filters.known.insert(known.service);
  return filters;
}

RowChoices::RowChoices(std::vector<std::string> codes, RowFilters filters, QWidget& dialog)
    : codes_(std::move(codes)),
      filters_(std::move(filters)),
      filterList_(Switch("Check3", "Salta i servizi elencati in Filtri.txt", dialog)),
      skipKnown_(Switch("Chkfiltra", "Salta i canali già in lista", dialog)),
      list_(new QListWidget(&dialog)) {
  constexpr std::array<const char*, 3> Captions = {"Canali TV", "Canali radio", "Servizi dati"};
  for (std::size_t i = 0; i < types_.size(); ++i) {
    types_[i] = Switch(QString("Check1_%1").arg(i), Captions[i], dialog);
    types_[i]->setChecked(i < 2);
  }
  list_->setObjectName("List1");
  list_->setAccessibleName("Codifiche da importare");
  list_->setSelectionMode(QAbstractItemView::MultiSelection);
  KeepLines(*list_, 4);
}

void RowChoices::AddAllCodes() { list_->addItem("Tutte"); }

void RowChoices::AddTo(QFormLayout& form) {
  for (QCheckBox* type : types_) form.addRow(type == types_.front() ? "Importa" : "", type);
  form.addRow("", filterList_);
  form.addRow("", skipKnown_);
  form.addRow("Codifiche da importare", list_);
}

void RowChoices::OnChange(const std::function<void()>& tell) {
  for (QCheckBox* box : {types_[0], types_[1], types_[2], filterList_, skipKnown_})
    QObject::connect(box, &QCheckBox::toggled, box, tell);
  QObject::connect(list_, &QListWidget::itemSelectionChanged, list_, tell);
}

void RowChoices::Take(Formats::SdxOptions& options) const {
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
  if (filterList_->isChecked()) options.filtered = filters_.filtered;
  if (skipKnown_->isChecked()) options.known = filters_.known;
}

const char* RowChoices::Refusal() const {
  const auto selected = list_->selectedItems().size();
  if (selected > MostCodes) return "Troppe codifiche selezionate";
  return selected == 0 ? "Non sono state selezionate codifiche da importare" : nullptr;
}

}  // namespace Ui
