#include "ui/review/compare_window.h"

#include "base/file.h"
#include "ui/kit/elided_label.h"
#include "ui/kit/flow_layout.h"
#include "ui/kit/screen_fit.h"
#include "ui/kit/text.h"
#include "ui/list/row_look.h"
#include "ui/session/lines_window.h"
#include "ui/session/set_commands.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include <numeric>
#include <set>

namespace Ui {

using Review::Mark;
using Routines::State;

namespace {

// How each kind of other side is named.
struct Names {
  const char* title;
  CompareModel::Wording kinds;
  const char* before;
  const char* order;  // the button that takes it
  const char* taken;  // the step that it makes
};

const Names& NamesOf(const OtherSide& other) {
  constexpr const char* Here = "Solo in questa lista";
  static constexpr std::array<Names, 5> All = {
      {{"Confronto con un'altra flash",
        {Here, "Solo nell'altra", "Nell'altra"},
        "L'altra: ",
        "Prendi l'ordine dell'altra",
        "Preso l'ordine dell'altra"},
       {"Confronto con il file su disco",
        {Here, "Solo sul disco", "Sul disco"},
        "Sul disco: ",
        "Prendi l'ordine del disco",
        "Preso l'ordine del disco"},
       {"Confronto con la lista a destra", {Here, "Solo a destra", "A destra"}, "A destra: ", "", ""},
       {"Ordina come un elenco",
        {"Non nell'elenco", "Non trovato", "Nell'elenco"},
        "L'elenco: ",
        "Ordina come l'elenco",
        "Ordinati i canali come l'elenco"},
       {"Confronto con un file CSV", {Here, "Solo nel CSV", "Nel CSV"}, "Il CSV: ", "", ""}}};
  return All[static_cast<std::size_t>(other.What())];
}

// Whether differences of that kind can be, and whether they are shown at first.
bool HasKind(OtherSide::Kind what, Mark mark) {
  const bool order = mark == Mark::OnlyHere || mark == Mark::OnlyThere || mark == Mark::Moved;
  if (what == OtherSide::Kind::Order) return order;
  return mark != Mark::Favourites || (what != OtherSide::Kind::Rows && what != OtherSide::Kind::Csv);
}

// Few lists on the right are in an order that anybody wants, and many have but a part of what a satellite brings.
bool ShownAtFirst(OtherSide::Kind what, Mark mark) {
  // Perhaps only some rows were exported.
  if (what == OtherSide::Kind::Csv) return mark != Mark::OnlyHere;
  return what != OtherSide::Kind::Rows || (mark != Mark::Moved && mark != Mark::OnlyHere);
}

}  // namespace

CompareWindow::CompareWindow(Session& session, OtherSide other, QMainWindow& window)
    : ToolWindow("FinestraConfronto", NamesOf(other).title, &window),
      session_(session),
      other_(std::move(other)),
      model_(new CompareModel(NamesOf(other_).kinds, this)),
      table_(new QTableView(this)),
      names_(new ElidedLabel(Qt::ElideMiddle, this)),
      rest_(new QLabel(this)),
      result_(new ElidedLabel(Qt::ElideRight, this)),
      place_(new QComboBox(this)),
      numbering_(new QComboBox(this)) {
  names_->setObjectName("NomiConfronto");
  rest_->setObjectName("AltreDifferenze");
  rest_->setTextFormat(Qt::PlainText);
  rest_->setWordWrap(true);
  result_->setObjectName("RisultatoConfronto");
  TakeKeys(window);
  SetUpTable();
  auto* column = new QVBoxLayout(this);
  column->addWidget(names_);
  column->addLayout(KindBoxes());
  column->addWidget(table_, 1);
  column->addWidget(rest_);
  column->addWidget(result_);
  column->addLayout(Buttons());
  ResizeOnScreen(*this, {900, 600});
  setTabOrder(kinds_.back(), table_);
  setTabOrder(table_, goTo_);

  connect(&session.document, &Document::Changed, this, &CompareWindow::Refresh);
  connect(&session.settings, &SettingsPanel::Clicked, this, &CompareWindow::Refresh);
  connect(model_, &CompareModel::TicksChanged, this, &CompareWindow::ShowTicks);
  Refresh();
  if (model_->rowCount() > 0) table_->selectRow(0);
  Tell(IsOrder()
           ? "Un clic porta al canale. I canali che l'elenco non ha vanno dopo gli altri, nel loro ordine."
           : "Un clic porta al canale; la barra spaziatrice segna le righe selezionate. Si applica solo "
             "ciò che le caselle in alto mostrano.");
  table_->setFocus();
}

QLayout* CompareWindow::KindBoxes() {
  auto* row = new FlowLayout;
  for (std::size_t kind = 0; kind < kinds_.size(); ++kind) {
    kinds_[kind] = new QCheckBox(this);
    kinds_[kind]->setObjectName(QString("Mostra_%1").arg(kind));
    kinds_[kind]->setChecked(ShownAtFirst(other_.What(), static_cast<Mark>(kind)));
    kinds_[kind]->setVisible(HasKind(other_.What(), static_cast<Mark>(kind)));
    connect(kinds_[kind], &QCheckBox::toggled, this, [this] { Fill(model_->Found()); });
    row->addWidget(kinds_[kind]);
  }
  return row;
}

void CompareWindow::SetUpTable() {
  table_->setObjectName("Differenze");
  table_->setAccessibleName("Differenze");
  table_->setModel(model_);
  table_->setItemDelegate(new RowDelegate(table_));
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setWordWrap(false);
  KeepLines(*table_, 5);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
  QHeaderView& header = *table_->horizontalHeader();
  header.setHighlightSections(false);
  header.setStretchLastSection(true);
  table_->setColumnWidth(CompareModel::Tick,
                         style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, table_) + 14);
  constexpr std::pair<int, int> Widths[] = {
      {CompareModel::Kind, 27}, {CompareModel::Here, 25}, {CompareModel::There, 25}};
  for (const auto& [column, letters] : Widths) table_->setColumnWidth(column, Letters(*table_, letters));
  table_->installEventFilter(this);
  connect(table_, &QTableView::clicked, this, [this](const QModelIndex& index) {
    if (index.column() != CompareModel::Tick) GoTo(index);
  });
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& index) {
            goTo_->setEnabled(index.isValid() && model_->At(index.row()).here != 0);
          });
}

QLayout* CompareWindow::Buttons() {
  auto* left = new FlowLayout;
  goTo_ = AddButton(*left, "VaiAlDiverso", "Vai al canale", [this] { GoTo(table_->currentIndex()); });
  select_ = AddButton(*left, "SelezionaDiversi", "Seleziona i trovati", [this] { SelectFound(); });
  auto* all = AddButton(*left, "SegnaTutti", "Segna tutti", [this] { TickAll(true); });
  auto* none = AddButton(*left, "TogliSegni", "Togli i segni", [this] { TickAll(false); });
  apply_ = AddButton(*left, "ApplicaSegnati", "Applica i segnati", [this] { Apply(); });
  AddChoice(*left, place_, "PostoNuovi", "Posto dei canali nuovi",
            {"Nuovi in fondo", "Nuovi nei posti vuoti", "Nuovi dietro il loro bouquet"});
  AddChoice(*left, numbering_, "Numerazione", "Numeri che prendono i canali",
            {"Continua dopo l'ultimo", "Tieni i numeri dell'elenco"});
  order_ = AddButton(*left, "PrendiOrdine", NamesOf(other_).order, [this] { TakeOrder(); });
  missing_ = AddButton(*left, "NonTrovati", "Elenco dei non trovati", [this] { ListMissing(); });
  // An order is taken as a whole.
  const bool order = IsOrder();
  for (QWidget* control : std::initializer_list<QWidget*>{all, none, apply_, place_})
    control->setVisible(!order);
  for (QWidget* control : std::initializer_list<QWidget*>{numbering_, missing_}) control->setVisible(order);
  order_->setVisible(*NamesOf(other_).order != '\0');
  table_->setColumnHidden(CompareModel::Tick, order);
  connect(numbering_, &QComboBox::currentIndexChanged, this, [this](int chosen) {
    other_.Number(static_cast<Review::Numbering>(chosen));
    Refresh();
  });
  return WithClose(left, "ChiudiConfronto");
}

void CompareWindow::AddChoice(QLayout& row, QComboBox* box, const char* name, const char* what,
                              const QStringList& choices) {
  box->setObjectName(name);
  box->setAccessibleDescription(what);
  box->addItems(choices);
  row.addWidget(box);
}

void CompareWindow::Refresh() {
  if (!session_.document.Tables().Loaded) {
    close();
    return;
  }
  other_.Follow(session_);
  Fill(other_.Compare(session_));
  ShowCounts();
}

// The place in the table stays.
void CompareWindow::Fill(Review::Comparison found) {
  const int row = table_->currentIndex().row();
  const int top = table_->verticalScrollBar()->value();
  Review::MarkSet shown;
  for (std::size_t kind = 0; kind < kinds_.size(); ++kind) shown[kind] = kinds_[kind]->isChecked();
  model_->Show(session_.document.Tables(), other_.List(), std::move(found), shown);
  goTo_->setEnabled(false);
  select_->setEnabled(model_->rowCount() > 0);
  if (row >= 0 && model_->rowCount() > 0) {
    table_->selectRow(std::min(row, model_->rowCount() - 1));
    table_->verticalScrollBar()->setValue(top);
  }
}

void CompareWindow::ShowCounts() {
  const State& mine = session_.document.Tables();
  const QString here = PathText(Base::FileName(mine.InputFlash));
  names_->Show(QString("Questa lista: %1%2 canali   ↔   %3%4")
                   .arg(here.isEmpty() ? here : here + ", ")
                   .arg(Routines::UsedChannels(mine))
                   .arg(NamesOf(other_).before, other_.Title()));
  for (std::size_t kind = 0; kind < kinds_.size(); ++kind) {
    const int count = model_->Count(static_cast<Mark>(kind));
    const QString text = model_->KindText(static_cast<Mark>(kind));
    kinds_[kind]->setText(QString("%1 (%2)").arg(text).arg(count));
    kinds_[kind]->setAccessibleName("Mostra: " + kinds_[kind]->text());
    kinds_[kind]->setEnabled(count > 0);
  }
  const bool nothing = model_->Found().Nothing();
  rest_->setText(
      nothing ? "Nessuna differenza"
              : Text(Review::OtherDifferences(
                    model_->Found(), QString(NamesOf(other_).kinds.onlyThere).toLower().toStdString())));
  rest_->setVisible(!rest_->text().isEmpty());
  order_->setEnabled(model_->Count(Mark::Moved) > 0 || model_->Found().shifted > 0);
  missing_->setEnabled(model_->Count(Mark::OnlyThere) > 0);
}

void CompareWindow::ShowTicks() {
  const auto ticked = model_->Ticked().size();
  apply_->setText(ticked == 0 ? "Applica i segnati" : QString("Applica i segnati (%1)").arg(ticked));
  apply_->setEnabled(ticked > 0);
}

void CompareWindow::Tell(const QString& text) { result_->Show(text); }

std::vector<int> CompareWindow::SelectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : table_->selectionModel()->selectedRows()) rows.push_back(index.row());
  return rows;
}

void CompareWindow::TickAll(bool on) {
  std::vector<int> rows(static_cast<std::size_t>(model_->rowCount()));
  std::iota(rows.begin(), rows.end(), 0);
  model_->SetTicks(rows, on);
}

// All of them are ticked unless they are already.
void CompareWindow::TickSelected() {
  const std::vector<int> rows = SelectedRows();
  model_->SetTicks(rows,
                   !std::all_of(rows.begin(), rows.end(), [this](int row) { return model_->IsTicked(row); }));
}

void CompareWindow::GoTo(const QModelIndex& index) {
  if (!index.isValid()) return;
  const int slot = model_->At(index.row()).here;
  if (slot == 0) {
    Tell("Il canale non è in questa lista.");
    return;
  }
  session_.GoToChannel(slot);
}

Edit::NewPlace CompareWindow::Place() const { return static_cast<Edit::NewPlace>(place_->currentIndex()); }

// The channels of this list among the rows that are ticked, or among all where none is.
Edit::Slots CompareWindow::FoundHere() const {
  std::set<int> slots;
  const bool ticked = !model_->Ticked().empty();
  for (int row = 0; row < model_->rowCount(); ++row) {
    if (!ticked || model_->IsTicked(row)) slots.insert(model_->At(row).here);
  }
  slots.erase(0);
  return {slots.begin(), slots.end()};
}

void CompareWindow::SelectFound() {
  const Edit::Slots slots = FoundHere();
  if (slots.empty()) return Tell("Nessuno di questi canali è in questa lista.");
  SelectChannels(session_, slots);
}

void CompareWindow::Apply() {
  const std::vector<Review::Difference> chosen = model_->Ticked();
  const Review::Comparison found = model_->Found();
  const std::string label = (chosen.size() == 1 ? "Applicata " : "Applicate ") +
                            Base::Counted(chosen.size(), "differenza", "differenze");
  const auto report = session_.document.Apply(label, [&](State& state) {
    return Edit::TakeOver(state, other_.List(), found, chosen, session_.bouquets.tables, Place());
  });
  const QString text =
      Text(label) + ": " + Text(Edit::TextOf(report, Place())) + session_.Losses(report.lost);
  session_.status.ShowResult(text);
  Tell(text);
}

void CompareWindow::TakeOrder() {
  const Review::Comparison found = model_->Found();
  const std::string label = NamesOf(other_).taken;
  const int moved = session_.document.Apply(
      label, [&](State& state) { return Edit::TakeOrder(state, other_.List(), found); });
  const QString text =
      Text(label) + ": " + Counted(moved, "canale con un altro numero", "canali con un altro numero");
  session_.status.ShowResult(text);
  Tell(text);
}

void CompareWindow::ListMissing() {
  QString lines;
  for (const Review::Difference& difference : model_->Found().differences) {
    if (!difference.Has(Mark::OnlyThere)) continue;
    const auto& record = other_.List().At(difference.there).record;
    lines +=
        QString("%1;%2\n").arg(CodePageText(record.Name())).arg(Get(record, Routines::ChannelField::Sid));
  }
  (new LinesWindow("ElencoNonTrovati", "Voci dell'elenco non trovate", lines, session_, this))->BringUp();
}

bool CompareWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != table_ || event->type() != QEvent::KeyPress) return ToolWindow::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Space) {
    TickSelected();
  } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    GoTo(table_->currentIndex());
  } else {
    return ToolWindow::eventFilter(watched, event);
  }
  return true;
}

}  // namespace Ui
